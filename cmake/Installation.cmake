# Installs the three libraries, the message catalogs, the headers, the package files for
# find_package(QVRGeneralUtilities) and for pkg-config, the documentation, and qvrnames if it was built.
# docs/packaging.md lists the folders.

include(CMakePackageConfigHelpers)

set(package QVRGeneralUtilities)
set(headers ${CMAKE_INSTALL_INCLUDEDIR}/${package})
set(package_files ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
set(pkgconfig_files ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# The pkg-config files use paths relative to themselves, so that an installed copy can be moved.
file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_files} /)

# qvr_install_library(library export-name description requires): installs one library with its pkg-config file.
# `requires` lists the packages that pkg-config adds.
function(qvr_install_library library export_name description requires)
  # The source tree has several include folders; an installed copy has one.
  get_target_property(folders ${library} INTERFACE_INCLUDE_DIRECTORIES)
  if(folders)
    set_target_properties(${library} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${folders}>")
  endif()
  target_compile_features(${library} INTERFACE cxx_std_17)
  set_target_properties(${library} PROPERTIES
    EXPORT_NAME ${export_name}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH $ORIGIN) # an installed copy can be moved
  add_library(${package}::${export_name} ALIAS ${library})
  install(TARGETS ${library} EXPORT ${package}Targets INCLUDES DESTINATION ${headers})
  get_property(link_option TARGET ${library} PROPERTY QVR_PKG_CONFIG_LINK_OPTION)
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${library}.pc DESTINATION ${pkgconfig_files})
endfunction()

qvr_install_library(ZFXPlatform Platform "The object model and the interfaces between a host and QVRNameUtility" "")
qvr_install_library(QVRNameUtility QVRNameUtility "${PROJECT_DESCRIPTION}" "ZFXPlatform = ${PROJECT_VERSION}")
qvr_install_library(ZFXMemoryModel MemoryModel "In-memory analysis documents for tests and tools"
  "ZFXPlatform = ${PROJECT_VERSION}")

# Programs cannot link functions of these headers, because the libraries do not export them.
set(internal_headers "(CaseMapping|HostProbe|Memory(Attributes|Faults|Object|Session)|Utf8|ZFXLibraryFile)[.]h$")
install(DIRECTORY
  ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/public-headers/
  ${PROJECT_BINARY_DIR}/include/
  ${PROJECT_SOURCE_DIR}/platform/
  DESTINATION ${headers} FILES_MATCHING PATTERN "*.h" PATTERN "*.def" PATTERN "unicode" EXCLUDE
  REGEX "/${internal_headers}" EXCLUDE)
install(DIRECTORY ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/resources/msgcatalog/ DESTINATION ${QVR_CATALOGS})

install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${package_files})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
file(WRITE ${PROJECT_BINARY_DIR}/${package}Config.cmake
  "include(\${CMAKE_CURRENT_LIST_DIR}/${package}Targets.cmake)\n")
install(FILES
  ${PROJECT_BINARY_DIR}/${package}Config.cmake
  ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
  DESTINATION ${package_files})

install(FILES COPYRIGHT DESTINATION ${CMAKE_INSTALL_DOCDIR} RENAME copyright)
# The pages keep their relative paths, so that the links between them work.
install(FILES README.md ARCHITECTURE.md CONTRIBUTING.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES platform/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/platform)
install(FILES examples/minimal-host/main.cpp DESTINATION ${CMAKE_INSTALL_DOCDIR}/examples/minimal-host)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR}
  FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "man" EXCLUDE)

if(TARGET qvrnames)
  file(RELATIVE_PATH libraries_from_programs
    /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(qvrnames PROPERTIES INSTALL_RPATH $ORIGIN/${libraries_from_programs})
  install(TARGETS qvrnames)
  install(FILES tools/qvrnames/document.schema.json tools/qvrnames/report.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/${package})
  install(DIRECTORY tools/qvrnames/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/${package})
  if(EXISTS ${PROJECT_SOURCE_DIR}/docs/man/qvrnames.1)
    install(FILES docs/man/qvrnames.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  endif()
  if(EXISTS ${PROJECT_SOURCE_DIR}/tools/qvrnames/completion/qvrnames.bash)
    install(FILES tools/qvrnames/completion/qvrnames.bash
      DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME qvrnames)
    install(FILES tools/qvrnames/completion/_qvrnames DESTINATION ${CMAKE_INSTALL_DATADIR}/zsh/site-functions)
  endif()
endif()

if(QVR_BUILD_TESTS)
  add_subdirectory(tests/build)
endif()

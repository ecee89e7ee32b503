# What an installed copy holds: the three libraries with the message catalog beside them, their headers, package files
# for find_package(QVRGeneralUtilities) and for pkg-config, the pages, and the command-line host when it was built.
# docs/packaging.md shows the folders.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(package QVRGeneralUtilities)
set(headers ${CMAKE_INSTALL_INCLUDEDIR}/${package})
set(package_files ${CMAKE_INSTALL_LIBDIR}/cmake/${package})
set(pkgconfig_files ${CMAKE_INSTALL_LIBDIR}/pkgconfig)

# pkg-config's files lead to the folders from where they lie themselves, so that a copy may be moved.
file(RELATIVE_PATH prefix_from_pkgconfig /${pkgconfig_files} /)

# qvr_install_library(library export-name description requires): `requires` is what pkg-config adds.
function(qvr_install_library library export_name description requires)
  # Each library says where its headers lie in this tree; a copy has them all in one folder.
  get_target_property(folders ${library} INTERFACE_INCLUDE_DIRECTORIES)
  if(folders)
    set_target_properties(${library} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${folders}>")
  endif()
  target_compile_features(${library} INTERFACE cxx_std_17)
  set_target_properties(${library} PROPERTIES
    EXPORT_NAME ${export_name}
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR}
    INSTALL_RPATH $ORIGIN) # a copy finds its parts wherever it is moved to
  add_library(${package}::${export_name} ALIAS ${library})
  install(TARGETS ${library} EXPORT ${package}Targets INCLUDES DESTINATION ${headers})
  configure_file(${PROJECT_SOURCE_DIR}/cmake/library.pc.in ${PROJECT_BINARY_DIR}/pkgconfig/${library}.pc @ONLY)
  install(FILES ${PROJECT_BINARY_DIR}/pkgconfig/${library}.pc DESTINATION ${pkgconfig_files})
endfunction()

qvr_install_library(ZFXPlatform Platform "What a host and the rules of names share" "")
qvr_install_library(QVRNameUtility QVRNameUtility "${PROJECT_DESCRIPTION}" "ZFXPlatform = ${PROJECT_VERSION}")
qvr_install_library(ZFXMemoryModel MemoryModel "Analysis documents in memory, for tests and tools"
  "ZFXPlatform = ${PROJECT_VERSION}")

install(DIRECTORY
  ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/public-headers/
  ${PROJECT_BINARY_DIR}/include/
  ${PROJECT_SOURCE_DIR}/platform/
  DESTINATION ${headers} FILES_MATCHING PATTERN "*.h" PATTERN "*.def" PATTERN "unicode" EXCLUDE)
# The platform looks for catalogs in this folder beside itself; on Windows libraries lie beside programs.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/resources/msgcatalog
        DESTINATION $<IF:$<PLATFORM_ID:Windows>,${CMAKE_INSTALL_BINDIR},${CMAKE_INSTALL_LIBDIR}>)

install(EXPORT ${package}Targets NAMESPACE ${package}:: DESTINATION ${package_files})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake COMPATIBILITY SameMajorVersion)
file(WRITE ${PROJECT_BINARY_DIR}/${package}Config.cmake
  "include(\${CMAKE_CURRENT_LIST_DIR}/${package}Targets.cmake)\n")
install(FILES
  ${PROJECT_BINARY_DIR}/${package}Config.cmake
  ${PROJECT_BINARY_DIR}/${package}ConfigVersion.cmake
  DESTINATION ${package_files})

# The pages keep their places to each other, so that their links hold.
install(FILES README.md ARCHITECTURE.md CONTRIBUTING.md CHANGELOG.md DESTINATION ${CMAKE_INSTALL_DOCDIR})
install(FILES platform/README.md DESTINATION ${CMAKE_INSTALL_DOCDIR}/platform)
install(DIRECTORY docs DESTINATION ${CMAKE_INSTALL_DOCDIR}
  FILES_MATCHING PATTERN "*.md" PATTERN "*.svg" PATTERN "man" EXCLUDE)

if(TARGET qvrnames)
  file(RELATIVE_PATH libraries_from_programs
    /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(qvrnames PROPERTIES INSTALL_RPATH $ORIGIN/${libraries_from_programs})
  install(TARGETS qvrnames)
  install(FILES tools/qvrnames/document.schema.json DESTINATION ${CMAKE_INSTALL_DATADIR}/${package})
  install(DIRECTORY tools/qvrnames/examples DESTINATION ${CMAKE_INSTALL_DATADIR}/${package})
  if(EXISTS ${PROJECT_SOURCE_DIR}/docs/man/qvrnames.1)
    install(FILES docs/man/qvrnames.1 DESTINATION ${CMAKE_INSTALL_MANDIR}/man1)
  endif()
  if(EXISTS ${PROJECT_SOURCE_DIR}/tools/qvrnames/completion/qvrnames.bash)
    install(FILES tools/qvrnames/completion/qvrnames.bash
      DESTINATION ${CMAKE_INSTALL_DATADIR}/bash-completion/completions RENAME qvrnames)
  endif()
endif()

if(QVR_BUILD_TESTS)
  add_subdirectory(tests/build)
endif()

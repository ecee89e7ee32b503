# What an installed copy holds: the three libraries with the message catalog beside them, their headers, a package
# file for find_package(QVRNameUtility), and the command-line host when it was built.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(headers ${CMAKE_INSTALL_INCLUDEDIR}/QVRNameUtility)
set(package ${CMAKE_INSTALL_LIBDIR}/cmake/QVRNameUtility)
set(libraries ZFXPlatform QVRNameUtility ZFXMemoryModel)

foreach(library IN LISTS libraries)
  # Each library says where its headers lie in this tree; a copy has them all in one folder.
  get_target_property(folders ${library} INTERFACE_INCLUDE_DIRECTORIES)
  if(folders)
    set_target_properties(${library} PROPERTIES INTERFACE_INCLUDE_DIRECTORIES "$<BUILD_INTERFACE:${folders}>")
  endif()
  target_compile_features(${library} INTERFACE cxx_std_20)
  # A copy finds its parts wherever it is moved to.
  set_target_properties(${library} PROPERTIES INSTALL_RPATH $ORIGIN)
endforeach()

install(TARGETS ${libraries} EXPORT QVRNameUtilityTargets INCLUDES DESTINATION ${headers})
install(EXPORT QVRNameUtilityTargets NAMESPACE QVRNameUtility:: DESTINATION ${package})
install(DIRECTORY ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/public-headers/ ${PROJECT_SOURCE_DIR}/platform/
        DESTINATION ${headers} FILES_MATCHING PATTERN "*.h" PATTERN "*.def" PATTERN "unicode" EXCLUDE)
# The platform looks for catalogs in this folder beside itself; on Windows libraries lie beside programs.
install(DIRECTORY ${PROJECT_SOURCE_DIR}/QVRGeneralUtilities/resources/msgcatalog
        DESTINATION $<IF:$<PLATFORM_ID:Windows>,${CMAKE_INSTALL_BINDIR},${CMAKE_INSTALL_LIBDIR}>)

write_basic_package_version_file(${PROJECT_BINARY_DIR}/QVRNameUtilityConfigVersion.cmake
  COMPATIBILITY SameMinorVersion)
file(WRITE ${PROJECT_BINARY_DIR}/QVRNameUtilityConfig.cmake
  "include(\${CMAKE_CURRENT_LIST_DIR}/QVRNameUtilityTargets.cmake)\n")
install(FILES
  ${PROJECT_BINARY_DIR}/QVRNameUtilityConfig.cmake
  ${PROJECT_BINARY_DIR}/QVRNameUtilityConfigVersion.cmake
  DESTINATION ${package})

if(TARGET qvrnames)
  file(RELATIVE_PATH libraries_from_programs
    /${CMAKE_INSTALL_BINDIR} /${CMAKE_INSTALL_LIBDIR})
  set_target_properties(qvrnames PROPERTIES INSTALL_RPATH $ORIGIN/${libraries_from_programs})
  install(TARGETS qvrnames)
endif()

if(QVR_BUILD_TESTS)
  add_subdirectory(tests/build)
endif()

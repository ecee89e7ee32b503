# The packages that ./dev package creates with CPack. Each contains everything that is installed.

set(CPACK_PACKAGE_NAME qvrnameutility)
set(CPACK_PACKAGE_VENDOR "QVRNameUtility developers")
set(CPACK_PACKAGE_CONTACT "QVRNameUtility developers <developers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
  "A shared library that checks whether the name of an analysis feature is legal and unique and proposes the next unused
name, with an in-memory analysis model, the headers, and the command-line checker qvrnames.")
set(CPACK_PACKAGE_FILE_NAME ${CPACK_PACKAGE_NAME}-${PROJECT_VERSION}-${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR})
set(CPACK_PACKAGE_CHECKSUM SHA256)
set(CPACK_STRIP_FILES ON)

if(WIN32)
  set(CPACK_GENERATOR ZIP)
else()
  set(CPACK_GENERATOR DEB TGZ)
endif()

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SECTION libdevel)
# Depends on the libraries that ours are linked with. A compiler is needed only to build against the headers.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "g++ | clang, cmake, pkgconf")
# Packages that link with our libraries get a dependency on this package, and the installation updates the loader's
# cache.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

include(CPack)

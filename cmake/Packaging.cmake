# The packages of one release build, which ./dev package makes with CPack: the whole of an installed copy in one file.

set(CPACK_PACKAGE_NAME qvrnameutility)
set(CPACK_PACKAGE_VENDOR "QVRNameUtility developers")
set(CPACK_PACKAGE_CONTACT "QVRNameUtility developers <developers@localhost>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_PACKAGE_DESCRIPTION
  "A shared library that says whether the name of an analysis feature is legal and unique, and what the next free name
is, with the in-memory model, the headers, and the command-line host qvrnames.")
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
# What the libraries and the program are linked with; the compiler only when somebody builds against the headers.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_SUGGESTS "g++ | clang, cmake, pkgconf")
# Packages that are linked with ours get their dependency on it, and the loader's cache is renewed.
set(CPACK_DEBIAN_PACKAGE_GENERATE_SHLIBS ON)

include(CPack)

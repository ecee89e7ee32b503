# Compiler and linker settings of all targets, and the function that adds a shared library.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
option(QVR_COMPILER_EXTENSIONS "Use the extensions in platform/base/CompilerExtensions.h" ON)
if(QVR_COMPILER_EXTENSIONS)
  set(CMAKE_CXX_VISIBILITY_PRESET hidden)
  set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
else() # without an extension, no symbol can be marked as exported
  add_compile_definitions(ZFX_NO_COMPILER_EXTENSIONS)
endif()
set(CMAKE_POSITION_INDEPENDENT_CODE ON)

# The build has the folders of an installed copy, because the libraries find the message catalogs by a relative path.
if(NOT CMAKE_INSTALL_DOCDIR)
  set(CMAKE_INSTALL_DOCDIR share/doc/qvrnameutility) # where Debian requires the package's copyright file
endif()
include(GNUInstallDirs)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_BINDIR})
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/${CMAKE_INSTALL_LIBDIR})
set(QVR_CATALOGS ${CMAKE_INSTALL_DATADIR}/QVRGeneralUtilities/msgcatalog)
# Windows searches for a program's libraries in the folder of the program.
if(WIN32)
  file(RELATIVE_PATH QVR_CATALOGS_FROM_LIBRARIES /${CMAKE_INSTALL_BINDIR} /${QVR_CATALOGS})
else()
  file(RELATIVE_PATH QVR_CATALOGS_FROM_LIBRARIES /${CMAKE_INSTALL_LIBDIR} /${QVR_CATALOGS})
endif()

set(QVR_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

# 4251 and 4275 warn that classes of the standard library are not exported from our libraries. The program and the
# libraries use one standard library. Warnings are not errors, because the sources have never been compiled with MSVC.
if(MSVC)
  add_compile_options(/W4 /wd4251 /wd4275 /utf-8 /permissive- /Zc:__cplusplus)
else()
  add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)
endif()
if(WIN32)
  add_compile_definitions(NOMINMAX) # <windows.h> must not replace std::min and std::max
endif()

# Low-cost checks, also in a release: buffer overruns, stack protection, read-only relocations. For Windows, the linker
# enables the system's protections by default.
string(APPEND CMAKE_CXX_FLAGS_DEBUG " -D_GLIBCXX_ASSERTIONS")
if(NOT WIN32)
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -D_FORTIFY_SOURCE=2 -fstack-protector-strong")
  add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")

  # Faster calls: a library calls its own functions directly, and functions of other libraries without a stub.
  add_compile_options("$<$<CONFIG:Release>:-fno-semantic-interposition;-fno-plt>")
  add_link_options("$<$<CONFIG:Release>:LINKER:-Bsymbolic-functions>")
endif()

if(QVR_SANITIZERS)
  add_compile_options(-fsanitize=${QVR_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QVR_SANITIZERS})
endif()

# qvr_shared_library(name source...): adds a shared library without undefined symbols, so that a reference to a library
# that it must not use fails at link time. The sanitizer builds skip this check, because the program contains Clang's
# sanitizer runtime. Windows always checks it.
function(qvr_shared_library name)
  add_library(${name} SHARED ${ARGN})
  if(NOT QVR_SANITIZERS AND NOT WIN32)
    target_link_options(${name} PRIVATE -Wl,-z,defs)
  endif()
  if(WIN32)
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
  # A library with symbols that are unique in the process could not be unloaded.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${name} PRIVATE -fno-gnu-unique)
  endif()
endfunction()

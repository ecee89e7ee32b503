# What every target of this project is built with.

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${CMAKE_BINARY_DIR}/lib)
# Where the shared libraries are, and so the message catalogs: Windows looks for libraries beside programs.
if(WIN32)
  set(QVR_LIBRARIES_HOME ${CMAKE_RUNTIME_OUTPUT_DIRECTORY})
else()
  set(QVR_LIBRARIES_HOME ${CMAKE_LIBRARY_OUTPUT_DIRECTORY})
endif()

set(QVR_SANITIZERS "" CACHE STRING "Sanitizers to build with, such as address,undefined")

add_compile_options(-Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror)

# What can be checked at little cost is checked, also in a release: writes past a buffer, the stack, the loader's tables.
# Windows has guards of its own, which the linker for it asks for.
string(APPEND CMAKE_CXX_FLAGS_DEBUG " -D_GLIBCXX_ASSERTIONS")
if(NOT WIN32)
  string(APPEND CMAKE_CXX_FLAGS_RELEASE " -D_FORTIFY_SOURCE=2 -fstack-protector-strong")
  add_link_options("$<$<CONFIG:Release>:LINKER:-z,relro,-z,now>")

  # A library's own functions are its own: it calls them directly, and what other libraries offer without a stub.
  add_compile_options("$<$<CONFIG:Release>:-fno-semantic-interposition;-fno-plt>")
  add_link_options("$<$<CONFIG:Release>:LINKER:-Bsymbolic-functions>")
endif()

if(QVR_SANITIZERS)
  add_compile_options(-fsanitize=${QVR_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=${QVR_SANITIZERS})
endif()

# A shared library of this project: nothing left undefined, so that a layer which reaches
# for what it may not see fails at link. Clang's sanitizer runtime lives in the program, so
# that check is left to the other builds there. Windows knows no other way.
function(qvr_shared_library name)
  add_library(${name} SHARED ${ARGN})
  if(NOT QVR_SANITIZERS AND NOT WIN32)
    target_link_options(${name} PRIVATE -Wl,-z,defs)
  endif()
  if(WIN32)
    set_target_properties(${name} PROPERTIES PREFIX "")
  endif()
  # Symbols that the loader keeps unique for the life of the process would pin the library.
  if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
    target_compile_options(${name} PRIVATE -fno-gnu-unique)
  endif()
endfunction()

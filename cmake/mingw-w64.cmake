# For Windows (64 bits), built with mingw-w64 elsewhere; what is built runs there under Wine.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tools x86_64-w64-mingw32)
# The compiler whose standard library has threads.
set(CMAKE_C_COMPILER ${tools}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tools}-g++-posix)
set(CMAKE_RC_COMPILER ${tools}-windres)

# This machine's own headers and libraries are none of Windows'.
set(CMAKE_FIND_ROOT_PATH /usr/${tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

find_program(WINE64 wine64 PATHS /usr/lib/wine) # only the tests need it
if(WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE64})
endif()

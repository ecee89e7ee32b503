# Toolchain file: builds for 64-bit Windows with mingw-w64 on another system. The programs run under Wine there.

set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)

set(tools x86_64-w64-mingw32)
# The variant whose standard library supports threads.
set(CMAKE_C_COMPILER ${tools}-gcc-posix)
set(CMAKE_CXX_COMPILER ${tools}-g++-posix)
set(CMAKE_RC_COMPILER ${tools}-windres)

# Headers and libraries of the build machine must not be used.
set(CMAKE_FIND_ROOT_PATH /usr/${tools})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE BOTH)

find_program(WINE64 wine64 PATHS /usr/lib/wine) # only the tests need it
if(WINE64)
  set(CMAKE_CROSSCOMPILING_EMULATOR ${WINE64})
endif()

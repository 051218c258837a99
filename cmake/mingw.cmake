# What the Windows toolchains share; mingw-x64.cmake and mingw-x86.cmake name the processor first, mingw-x64-gcc.cmake
# the compiler too.

# clang and lld make debug information that the debuggers of Windows read; headers and libraries are gcc's. On Windows
# the compiler is that of MSYS2.
if(CMAKE_HOST_WIN32)
    set(BRX_MINGW_COMPILER gcc)
else()
    set(CMAKE_SYSTEM_NAME Windows)
    if(NOT BRX_MINGW_COMPILER)
        set(BRX_MINGW_COMPILER clang)
    endif()
    set(CMAKE_FIND_ROOT_PATH /usr/${BRX_MINGW_TRIPLE})
    set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
    set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
    set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
    set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
endif()

find_program(BRX_MINGW_RC NAMES ${BRX_MINGW_TRIPLE}-windres windres REQUIRED)
set(CMAKE_RC_COMPILER "${BRX_MINGW_RC}")
include("${CMAKE_CURRENT_LIST_DIR}/mingw-${BRX_MINGW_COMPILER}.cmake")

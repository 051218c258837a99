# What both Windows toolchains share; mingw-x64.cmake and mingw-x86.cmake name the processor first.

if(NOT CMAKE_HOST_WIN32)
    set(CMAKE_SYSTEM_NAME Windows)
endif()

# Debian has two flavours of each compiler; std::thread and friends exist in the posix one only. Elsewhere (MSYS2)
# there is one flavour, without a suffix.
find_program(BRX_MINGW_CC NAMES ${BRX_MINGW_TRIPLE}-gcc-posix ${BRX_MINGW_TRIPLE}-gcc REQUIRED)
find_program(BRX_MINGW_CXX NAMES ${BRX_MINGW_TRIPLE}-g++-posix ${BRX_MINGW_TRIPLE}-g++ REQUIRED)
find_program(BRX_MINGW_RC NAMES ${BRX_MINGW_TRIPLE}-windres windres REQUIRED)
set(CMAKE_C_COMPILER "${BRX_MINGW_CC}")
set(CMAKE_CXX_COMPILER "${BRX_MINGW_CXX}")
set(CMAKE_RC_COMPILER "${BRX_MINGW_RC}")

if(NOT CMAKE_HOST_WIN32)
    set(CMAKE_FIND_ROOT_PATH /usr/${BRX_MINGW_TRIPLE})
    set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
    set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
    set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
    set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)
endif()

# One file is all that a host has to ship: no run-time DLL of the compiler beside it.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
endforeach()

# Debian has two flavours of each compiler; std::thread and friends exist in the posix one only. Elsewhere (MSYS2)
# there is one flavour, without a suffix.
find_program(BRX_MINGW_CC NAMES ${BRX_MINGW_TRIPLE}-gcc-posix ${BRX_MINGW_TRIPLE}-gcc REQUIRED)
find_program(BRX_MINGW_CXX NAMES ${BRX_MINGW_TRIPLE}-g++-posix ${BRX_MINGW_TRIPLE}-g++ REQUIRED)
set(CMAKE_C_COMPILER "${BRX_MINGW_CC}")
set(CMAKE_CXX_COMPILER "${BRX_MINGW_CXX}")

# One file is all that a host has to ship: no run-time DLL of the compiler beside it.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -static-libgcc -static-libstdc++")
endforeach()

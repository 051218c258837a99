# A second opinion on the Windows sources: clang with the mingw headers. It compiles, it does not link.
set(CMAKE_SYSTEM_NAME Windows)
set(CMAKE_SYSTEM_PROCESSOR x86_64)
set(BRX_MINGW_TRIPLE x86_64-w64-mingw32)
set(CMAKE_C_COMPILER clang)
set(CMAKE_CXX_COMPILER clang++)
set(CMAKE_C_COMPILER_TARGET ${BRX_MINGW_TRIPLE})
set(CMAKE_CXX_COMPILER_TARGET ${BRX_MINGW_TRIPLE})
find_program(CMAKE_RC_COMPILER ${BRX_MINGW_TRIPLE}-windres REQUIRED)
set(CMAKE_TRY_COMPILE_TARGET_TYPE STATIC_LIBRARY)

# clang does not find the standard library of Debian's posix flavour by itself.
file(GLOB standard_library /usr/lib/gcc/${BRX_MINGW_TRIPLE}/*-posix/include/c++)
set(CMAKE_CXX_FLAGS_INIT
    "-nostdinc++ -isystem ${standard_library} -isystem ${standard_library}/${BRX_MINGW_TRIPLE}")
set(CMAKE_C_FLAGS_INIT "")

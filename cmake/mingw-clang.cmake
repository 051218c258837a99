# clang and lld with the headers and run-time libraries of Debian's gcc, of the flavour that has std::thread.
find_program(BRX_MINGW_CC clang REQUIRED)
find_program(BRX_MINGW_CXX clang++ REQUIRED)
find_program(BRX_MINGW_LINKER ld.lld REQUIRED)
set(CMAKE_C_COMPILER "${BRX_MINGW_CC}")
set(CMAKE_CXX_COMPILER "${BRX_MINGW_CXX}")
set(CMAKE_C_COMPILER_TARGET ${BRX_MINGW_TRIPLE})
set(CMAKE_CXX_COMPILER_TARGET ${BRX_MINGW_TRIPLE})
find_program(CMAKE_AR llvm-ar REQUIRED)
find_program(CMAKE_RANLIB llvm-ranlib REQUIRED)
find_program(CMAKE_OBJCOPY llvm-objcopy REQUIRED)
find_program(CMAKE_STRIP llvm-strip REQUIRED)

file(GLOB gcc_files /usr/lib/gcc/${BRX_MINGW_TRIPLE}/*-posix)
if(NOT gcc_files)
    message(FATAL_ERROR "There is no gcc of the posix flavour for ${BRX_MINGW_TRIPLE}: run scripts/setup.sh")
endif()

# Nothing of this machine's own. Thread-local variables are as in gcc's libraries; type information is compared by name,
# for there may be two of a type.
set(headers "-isystem /usr/${BRX_MINGW_TRIPLE}/include")
set(CMAKE_C_FLAGS_INIT "-femulated-tls -nostdlibinc ${headers}")
set(CMAKE_CXX_FLAGS_INIT "-femulated-tls -D__GXX_TYPEINFO_EQUALITY_INLINE=0 -nostdlibinc \
-isystem ${gcc_files}/include/c++ -isystem ${gcc_files}/include/c++/${BRX_MINGW_TRIPLE} ${headers}")

# One file is all that a host has to ship: no run-time DLL of the compiler beside it.
foreach(kind EXE SHARED MODULE)
    set(CMAKE_${kind}_LINKER_FLAGS_INIT "-static -fuse-ld=lld -B${gcc_files} -L${gcc_files} -lpthread -Qunused-arguments")
endforeach()

# What every target of the project is compiled with: link brx_options.

option(BRX_SANITIZE "Address and undefined behaviour sanitizers, first finding ends the program" OFF)

# Where what is slow to make lies, the same for every checkout; the scripts use the same folder.
if(DEFINED ENV{XDG_CACHE_HOME})
    set(BRX_CACHE "$ENV{XDG_CACHE_HOME}/brxopcdlgs6")
elseif(DEFINED ENV{HOME})
    set(BRX_CACHE "$ENV{HOME}/.cache/brxopcdlgs6")
else()
    file(TO_CMAKE_PATH "$ENV{USERPROFILE}/.cache/brxopcdlgs6" BRX_CACHE)
endif()

# clang for Windows writes its command line into the debug information.
set(BRX_PDB OFF)
if(MINGW AND CMAKE_CXX_COMPILER_ID STREQUAL Clang)
    set(BRX_PDB ON)
endif()

find_program(BRX_CCACHE ccache)
mark_as_advanced(BRX_CCACHE)
if(BRX_CCACHE)
    # Paths relative to the checkout, so that a second checkout profits from the first one's work.
    set(cache "${CMAKE_COMMAND}" -E env "CCACHE_DIR=${BRX_CACHE}/ccache" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
        CCACHE_NOHASHDIR=1)
    if(BRX_PDB)
        # It asks a clang that it knows for colours. Sums of the sources are debug information, so that a remark counts,
        # which it sees only by the files that were read.
        list(APPEND cache CCACHE_COMPILERTYPE=other CCACHE_DEPEND=1)
    endif()
    foreach(language C CXX)
        set(CMAKE_${language}_COMPILER_LAUNCHER ${cache} "${BRX_CCACHE}")
    endforeach()
endif()
if(BRX_PDB)
    set(relative "${CMAKE_SOURCE_DIR}/scripts/compile.sh" "${CMAKE_SOURCE_DIR}")
    foreach(language C CXX)
        list(PREPEND CMAKE_${language}_COMPILER_LAUNCHER ${relative})
        set(CMAKE_${language}_LINKER_LAUNCHER ${relative})
    endforeach()
endif()

# Several sources are compiled at a time: most of what a compiler does for one is to read its headers.
option(BRX_TOGETHER "Compile several sources at a time" ON)
set(CMAKE_UNITY_BUILD ${BRX_TOGETHER})
set(CMAKE_UNITY_BUILD_BATCH_SIZE 10)

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
# The debug information is for reading call stacks, Wine's too, which know nothing newer than DWARF 4; more of it only
# makes linking slow.
set(debug -gdwarf-4)
if(BRX_PDB)
    string(APPEND debug " -gcodeview")
endif()
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "${debug} -g1 -DNDEBUG") # the last one says how much
set(CMAKE_C_FLAGS_RELWITHDEBINFO "${debug} -g1 -DNDEBUG")

# How a folder's own targets are optimised in such a build. Most of the product waits for a person, so it is made
# small; what goes through texts by the million says so itself (brx_quick).
set(BRX_OPTIMIZATION -Os)

# The same file from the same source, wherever the checkout lies.
file(RELATIVE_PATH from_build "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
if(BRX_PDB)
    # The names are those seen from the build folder already; see scripts/compile.sh.
    add_compile_options("-ffile-prefix-map=${from_build}=" -ffile-compilation-dir=. "-I${from_build}")
else()
    # With the cache the compiler is told names as seen from the build folder, without it whole ones.
    add_compile_options("-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=" "-ffile-prefix-map=${CMAKE_BINARY_DIR}/="
        "-ffile-prefix-map=${from_build}=")
endif()
if(MINGW)
    add_link_options(-Wl,--no-insert-timestamp)
    add_compile_options(-fstack-protector-strong)
    add_link_options(-fstack-protector-strong)
endif()

if(BRX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_library(brx_options INTERFACE)
target_include_directories(brx_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_features(brx_options INTERFACE cxx_std_20)
set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Wold-style-cast -Woverloaded-virtual)
if(BRX_PDB)
    list(APPEND warnings "SHELL:-Xclang -Werror") # the cache would move it, and with it the command line
else()
    list(APPEND warnings -Werror)
endif()
target_compile_options(brx_options INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:${warnings}>")
if(WIN32)
    # Windows 7 is the oldest system that hosts still run on.
    target_compile_definitions(brx_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
endif()

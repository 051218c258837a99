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

find_program(BRX_CCACHE ccache)
mark_as_advanced(BRX_CCACHE)
if(BRX_CCACHE)
    # Paths relative to the checkout, so that a second checkout profits from the first one's work.
    foreach(language C CXX)
        set(CMAKE_${language}_COMPILER_LAUNCHER
            "${CMAKE_COMMAND}" -E env "CCACHE_DIR=${BRX_CACHE}/ccache" "CCACHE_BASEDIR=${CMAKE_SOURCE_DIR}"
            CCACHE_NOHASHDIR=1 "${BRX_CCACHE}")
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
set(CMAKE_CXX_FLAGS_RELWITHDEBINFO "-g1 -gdwarf-4 -DNDEBUG")
set(CMAKE_C_FLAGS_RELWITHDEBINFO "-g1 -gdwarf-4 -DNDEBUG")

# How a folder's own targets are optimised in such a build. Most of the product waits for a person, so it is made
# small; what goes through texts by the million says so itself (brx_quick).
set(BRX_OPTIMIZATION -Os)

# The same file from the same source, wherever the checkout lies.
# With the cache the compiler is told names as seen from the build folder, without it whole ones.
file(RELATIVE_PATH from_build "${CMAKE_BINARY_DIR}" "${CMAKE_SOURCE_DIR}")
add_compile_options("-ffile-prefix-map=${CMAKE_SOURCE_DIR}/=" "-ffile-prefix-map=${CMAKE_BINARY_DIR}/="
    "-ffile-prefix-map=${from_build}=" "-ffile-prefix-map=${BRX_CACHE}/=")
if(MINGW)
    add_link_options(-Wl,--no-insert-timestamp)
endif()

if(BRX_SANITIZE)
    add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=address,undefined)
endif()

add_library(brx_options INTERFACE)
target_include_directories(brx_options INTERFACE "${CMAKE_SOURCE_DIR}/src")
target_compile_features(brx_options INTERFACE cxx_std_20)
set(warnings -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wsign-conversion -Wnon-virtual-dtor
    -Wold-style-cast -Woverloaded-virtual -Werror)
target_compile_options(brx_options INTERFACE "$<$<COMPILE_LANGUAGE:CXX>:${warnings}>")
if(WIN32)
    # Windows 7 is the oldest system that hosts still run on.
    target_compile_definitions(brx_options INTERFACE
        UNICODE _UNICODE NOMINMAX WIN32_LEAN_AND_MEAN _WIN32_WINNT=0x0601 WINVER=0x0601)
endif()

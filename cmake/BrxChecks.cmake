# Check programs: GoogleTest, with a main of our own that closes with "N passed, N failed, N skipped".
#
# brx_check_program(NAME [PART part] [SECONDS n] [SOURCES] file... [LINK library...])
# brx_check_part(TARGET PART part [SECONDS n]): the same for a program with a main of its own, which closes likewise.
#   PART     which part of ./check runs it; default: native on Linux, windows on Windows
#   SECONDS  its time limit, default 600
# ./check finds the programs in ${CMAKE_BINARY_DIR}/check-programs, a file each: part, limit, program; CTest knows each
# as a test, so that editors do.

if(CMAKE_CROSSCOMPILING AND EXISTS /usr/src/googletest/CMakeLists.txt)
    # Debian's GoogleTest is built for Debian only; its source package is what the other targets use.
    set(INSTALL_GTEST OFF)
    set(BUILD_GMOCK ON)
    add_subdirectory(/usr/src/googletest "${CMAKE_BINARY_DIR}/googletest" EXCLUDE_FROM_ALL SYSTEM)
    if(NOT TARGET GTest::gmock)
        add_library(GTest::gtest ALIAS gtest)
        add_library(GTest::gmock ALIAS gmock)
    endif()
else()
    find_package(GTest REQUIRED)
endif()

add_library(brx_check_main STATIC EXCLUDE_FROM_ALL "${CMAKE_SOURCE_DIR}/checks/support/main.cpp")
target_link_libraries(brx_check_main PUBLIC brx_options GTest::gmock GTest::gtest)

set(BRX_CHECK_PROGRAMS "${CMAKE_BINARY_DIR}/check-programs")
file(REMOVE_RECURSE "${BRX_CHECK_PROGRAMS}")

function(brx_check_part name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PART;SECONDS" "")
    if(NOT arg_PART)
        set(arg_PART native)
        if(WIN32)
            set(arg_PART windows)
        endif()
    endif()
    if(NOT arg_SECONDS)
        set(arg_SECONDS 600)
    endif()
    file(GENERATE OUTPUT "${BRX_CHECK_PROGRAMS}/${name}"
        CONTENT "${arg_PART} ${arg_SECONDS} $<TARGET_FILE:${name}>\n")
    set_property(GLOBAL APPEND PROPERTY BRX_CHECK_TARGETS ${name})
    set_property(GLOBAL PROPERTY BRX_SECONDS_OF_${name} ${arg_SECONDS})
    add_test(NAME ${name} COMMAND ${name})
    set_tests_properties(${name} PROPERTIES TIMEOUT ${arg_SECONDS} LABELS ${arg_PART})
    if(WIN32)
        set_tests_properties(${name} PROPERTIES RUN_SERIAL ON) # they share a screen
    endif()
endfunction()

function(brx_check_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "PART;SECONDS" "SOURCES;LINK")
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS} ${arg_SOURCES})
    brx_optimized(${name})
    target_include_directories(${name} PRIVATE "${CMAKE_SOURCE_DIR}/checks")
    target_link_libraries(${name} PRIVATE brx_check_main ${arg_LINK})
    if(BRX_TOGETHER AND CMAKE_CXX_COMPILER_ID STREQUAL GNU)
        # A fixture is no less its file's own for being compiled together with others.
        target_compile_options(${name} PRIVATE -Wno-subobject-linkage)
        if(WIN32)
            target_compile_options(${name} PRIVATE -Wa,-mbig-obj) # so many sections
        endif()
    endif()
    brx_check_part(${name} PART "${arg_PART}" SECONDS "${arg_SECONDS}")
endfunction()

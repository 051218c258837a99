# The few ways in which the folders declare what they build. The word SOURCES may be left out everywhere.

# brx_folders(FOLDER...): adds the folders that have something to build.
function(brx_folders)
    foreach(folder IN LISTS ARGN)
        if(EXISTS "${CMAKE_CURRENT_SOURCE_DIR}/${folder}/CMakeLists.txt")
            add_subdirectory(${folder})
        endif()
    endforeach()
endfunction()

# brx_optimized(TARGET): as its folder says. Of what is optimised the linker can leave out what nobody calls.
function(brx_optimized name)
    set(options ${BRX_OPTIMIZATION})
    if(NOT BRX_OPTIMIZATION STREQUAL "-O0")
        list(APPEND options -ffunction-sections -fdata-sections)
    endif()
    target_compile_options(${name} PRIVATE "$<$<CONFIG:RelWithDebInfo>:${options}>")
endfunction()

# brx_quick(TARGET): for speed. Texts are converted by the million, in short loops that are worth vectorising although
# their length is unknown.
function(brx_quick name)
    target_compile_options(${name} PRIVATE "$<$<CONFIG:RelWithDebInfo>:-O2>")
    target_compile_options(${name} PRIVATE
        "$<$<AND:$<COMPILE_LANG_AND_ID:CXX,GNU>,$<CONFIG:RelWithDebInfo>>:-fvect-cost-model=dynamic>")
endfunction()

# brx_library(NAME [SOURCES] file... [LINK library...]): a static library; who links it also gets what it links.
function(brx_library name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "SOURCES;LINK")
    add_library(${name} STATIC ${arg_UNPARSED_ARGUMENTS} ${arg_SOURCES})
    brx_optimized(${name})
    target_link_libraries(${name} PUBLIC brx_options ${arg_LINK})
endfunction()

# brx_debugged(TARGET): the linker makes TARGET.pdb beside the file, for the debuggers of Windows and for the package's
# list of parts, where it can.
function(brx_debugged name)
    if(BRX_PDB)
        # What is written down of names and folders is the same for every checkout.
        file(RELATIVE_PATH folder "${CMAKE_BINARY_DIR}" "${CMAKE_CURRENT_BINARY_DIR}")
        target_link_options(${name} PRIVATE "-Wl,--pdb=${folder}/${name}.pdb,-Xlink=-pdbaltpath:${name}.pdb"
            "-Wl,-Xlink=-pdbsourcepath:C:\\${name}")
        set_target_properties(${name} PROPERTIES ADDITIONAL_CLEAN_FILES "${name}.pdb")
    endif()
endfunction()

# brx_program(NAME [WINDOWED] [WIDE_MAIN] [SOURCES] file... [LINK library...]): a program. On Windows it starts in
# wWinMain and has no console when WINDOWED, in wmain when WIDE_MAIN, in main otherwise.
function(brx_program name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "WINDOWED;WIDE_MAIN" "" "SOURCES;LINK")
    add_executable(${name} ${arg_UNPARSED_ARGUMENTS} ${arg_SOURCES})
    brx_optimized(${name})
    target_link_libraries(${name} PRIVATE brx_options ${arg_LINK})
    if(arg_WINDOWED)
        set_target_properties(${name} PROPERTIES WIN32_EXECUTABLE ON)
    endif()
    if(MINGW AND (arg_WINDOWED OR arg_WIDE_MAIN))
        target_link_options(${name} PRIVATE -municode)
    endif()
    brx_debugged(${name})
endfunction()

# brx_com_dll(NAME DEF file [SOURCES] file... [LINK library...]): an in-process COM server, NAME.dll. The definition
# file lists the exports by their plain names, which are what every caller asks for in 32 bits too. The debug
# information goes to NAME.dll.debug and, from compilers that can, to NAME.pdb for the debuggers of Windows.
function(brx_com_dll name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "DEF" "SOURCES;LINK")
    add_library(${name} MODULE ${arg_UNPARSED_ARGUMENTS} ${arg_SOURCES} "${arg_DEF}")
    brx_optimized(${name})
    cmake_path(ABSOLUTE_PATH arg_DEF OUTPUT_VARIABLE def)
    set_target_properties(${name} PROPERTIES PREFIX "" LINK_DEPENDS "${def}")
    target_link_libraries(${name} PRIVATE brx_options ${arg_LINK})
    brx_debugged(${name})
    target_link_options(${name} PRIVATE -Wl,--enable-stdcall-fixup,--kill-at,--exclude-all-symbols
        -Wl,--gc-sections)
    # It would write down when it ran.
    set(objcopy "${CMAKE_COMMAND}" -E env SOURCE_DATE_EPOCH=0 "${CMAKE_OBJCOPY}")
    # The debug file is the whole one: what llvm-objcopy leaves with --only-keep-debug nobody can read.
    add_custom_command(TARGET ${name} POST_BUILD
        COMMAND "${CMAKE_COMMAND}" -E copy "$<TARGET_FILE:${name}>" "$<TARGET_FILE:${name}>.debug"
        COMMAND ${objcopy} --strip-unneeded "--add-gnu-debuglink=$<TARGET_FILE:${name}>.debug"
                "$<TARGET_FILE:${name}>"
        VERBATIM)
endfunction()

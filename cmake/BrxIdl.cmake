# Interface definitions: from one IDL file come the C++ header, the identifiers and the type library.
#
# brx_idl(NAME IDL file.idl [IMPORTS library...] [RENAMED identifier]) makes for file.idl:
#   ${CMAKE_BINARY_DIR}/idl/file.h, file_i.c, file.tlb
#   NAME      a library to link: #include "file.h" as a platform header, the identifiers compiled in
#   NAME_tlb  a target that stands for the three files
# and sets BRX_TLB of NAME to the full name of the type library. IMPORTS are brx_idl libraries whose IDL this one
# imports or whose type library it refers to with importlib. RENAMED is an identifier of which the header says by
# cpp_quote that it is called file_identifier in C: the compiler does not put that into file_i.c.
#
# brx_model_header(NAME library...) makes ${CMAKE_BINARY_DIR}/idl/brxModel.h, the base of a host's objects, from the
# headers of these brx_idl libraries, and NAME, a library to link.
#
# A resource script takes the type library with `1 TYPELIB "file.tlb"`: call brx_typelib_resource(TARGET x.rc NAME).

if(NOT WIN32)
    return()
endif()

# stdole2.tlb: Wine ships it on Linux, the system itself has it on Windows. Only references to it are stored, so the
# 64-bit one serves both.
find_program(BRX_WIDL NAMES ${BRX_MINGW_TRIPLE}-widl widl REQUIRED)
find_file(BRX_STDOLE stdole2.tlb NO_CMAKE_FIND_ROOT_PATH REQUIRED
    PATHS /usr/lib/x86_64-linux-gnu/wine/x86_64-windows /usr/lib/wine/x86_64-windows "$ENV{SystemRoot}/System32")
find_path(BRX_IDL_INCLUDES oaidl.idl NO_CMAKE_FIND_ROOT_PATH REQUIRED
    PATHS /usr/include/wine/wine/windows PATH_SUFFIXES include)
find_program(BRX_AWK NAMES awk gawk mawk REQUIRED)
mark_as_advanced(BRX_WIDL BRX_STDOLE BRX_IDL_INCLUDES BRX_AWK)
set(BRX_IDL_DIR "${CMAKE_BINARY_DIR}/idl")
file(MAKE_DIRECTORY "${BRX_IDL_DIR}")

function(brx_idl name)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "IDL;RENAMED" "IMPORTS")
    cmake_path(ABSOLUTE_PATH arg_IDL NORMALIZE OUTPUT_VARIABLE source)
    cmake_path(GET source STEM stem)
    cmake_path(GET source PARENT_PATH folder)
    set(made "${BRX_IDL_DIR}/${stem}.h" "${BRX_IDL_DIR}/${stem}_i.c" "${BRX_IDL_DIR}/${stem}.tlb")
    cmake_path(GET BRX_STDOLE PARENT_PATH stdole_folder)
    set(rename "${CMAKE_COMMAND}" -E true)
    if(arg_RENAMED)
        set(rename sed -i "s/CLSID_${arg_RENAMED}\\b/CLSID_${stem}_${arg_RENAMED}/" "${stem}_i.c")
    endif()
    set(bits "$<IF:$<EQUAL:${CMAKE_SIZEOF_VOID_P},8>,--win64,--win32>")

    # widl tells no dependencies, so any IDL file or include beside this one counts.
    file(GLOB neighbours CONFIGURE_DEPENDS "${folder}/*.idl" "${folder}/*.idh")
    set(imported_tlbs)
    foreach(import IN LISTS arg_IMPORTS)
        list(APPEND imported_tlbs "$<TARGET_PROPERTY:${import},BRX_TLB>")
    endforeach()
    add_custom_command(
        OUTPUT ${made}
        # The compiler writes down when it ran.
        COMMAND "${CMAKE_COMMAND}" -E env WIDL_TIME_OVERRIDE=0 "${BRX_WIDL}" ${bits} "-I${BRX_IDL_INCLUDES}" "-I${folder}" "-I${CMAKE_SOURCE_DIR}/src"
                "-L${stdole_folder}" "-L${BRX_IDL_DIR}"
                -h -H "${stem}.h" -u -U "${stem}_i.c" -t -T "${stem}.tlb" "${source}"
        COMMAND ${rename}
        WORKING_DIRECTORY "${BRX_IDL_DIR}"
        DEPENDS "${source}" ${neighbours} ${imported_tlbs}
        COMMENT "widl ${stem}.idl"
        VERBATIM)
    add_custom_target(${name}_tlb DEPENDS ${made})
    set_property(GLOBAL APPEND PROPERTY BRX_IDL_TARGETS ${name}_tlb)
    add_library(${name} STATIC "${BRX_IDL_DIR}/${stem}_i.c")
    add_dependencies(${name} ${name}_tlb)
    target_include_directories(${name} SYSTEM PUBLIC "${BRX_IDL_DIR}")
    target_link_libraries(${name} PUBLIC ${arg_IMPORTS})
    set_target_properties(${name} PROPERTIES BRX_TLB "${BRX_IDL_DIR}/${stem}.tlb")
endfunction()

# brx_typelib_resource(TARGET script.rc NAME): `script.rc` of TARGET includes the type library of brx_idl(NAME).
function(brx_typelib_resource target script name)
    get_target_property(tlb ${name} BRX_TLB)
    set_property(SOURCE ${script} APPEND PROPERTY OBJECT_DEPENDS "${tlb}")
    set_property(SOURCE ${script} APPEND PROPERTY INCLUDE_DIRECTORIES "${BRX_IDL_DIR}" "${CMAKE_SOURCE_DIR}/src"
        "${BRX_CONFIGURED}")
    add_dependencies(${target} ${name}_tlb)
endfunction()

function(brx_model_header name)
    set(made "${BRX_IDL_DIR}/brxModel.h")
    set(frame "${CMAKE_SOURCE_DIR}/packaging/brxModel.h")
    set(script "${CMAKE_SOURCE_DIR}/scripts/package/model.awk")
    set(headers)
    foreach(library IN LISTS ARGN)
        get_target_property(tlb ${library} BRX_TLB)
        cmake_path(REPLACE_EXTENSION tlb h OUTPUT_VARIABLE header)
        list(APPEND headers "${header}")
    endforeach()
    add_custom_command(
        OUTPUT "${made}"
        COMMAND "${BRX_AWK}" -f "${script}" "${frame}" ${headers} > "${made}"
        DEPENDS "${script}" "${frame}" ${headers}
        COMMENT "awk brxModel.h"
        VERBATIM)
    add_custom_target(${name}_made ALL DEPENDS "${made}")
    set_property(GLOBAL APPEND PROPERTY BRX_IDL_TARGETS ${name}_made)
    add_library(${name} INTERFACE)
    add_dependencies(${name} ${name}_made)
    target_link_libraries(${name} INTERFACE ${ARGN})
endfunction()

# The target brx_headers: every header by itself, included twice. Headers of the platform's folders take part on
# their platform only.

file(GLOB_RECURSE headers CONFIGURE_DEPENDS RELATIVE "${CMAKE_SOURCE_DIR}" src/*.h sample/*.h checks/*.h)
if(NOT WIN32)
    list(FILTER headers EXCLUDE REGEX "(^|/)(com|win32|windows)/|^checks/(bench|conversions|server)/|^sample/(objects|tour|window)/|^checks/(leaks)/")
endif()

set(sources)
foreach(header IN LISTS headers)
    string(MAKE_C_IDENTIFIER "${header}" unit)
    set(source "${CMAKE_BINARY_DIR}/headers/${unit}.cpp")
    file(CONFIGURE OUTPUT "${source}" CONTENT "#include \"@header@\"\n#include \"@header@\"\n" @ONLY)
    list(APPEND sources "${source}")
endforeach()
if(NOT sources)
    return()
endif()

add_library(brx_headers OBJECT EXCLUDE_FROM_ALL ${sources})
set_target_properties(brx_headers PROPERTIES UNITY_BUILD OFF)
target_include_directories(brx_headers PRIVATE
    "${CMAKE_SOURCE_DIR}" "${CMAKE_SOURCE_DIR}/checks" "${CMAKE_SOURCE_DIR}/checks/support"
    "${CMAKE_SOURCE_DIR}/sample")
target_link_libraries(brx_headers PRIVATE brx_options GTest::gmock GTest::gtest)
if(TARGET brx_sqlite)
    target_include_directories(brx_headers SYSTEM PRIVATE
        "$<TARGET_PROPERTY:brx_sqlite,INTERFACE_INCLUDE_DIRECTORIES>")
endif()
if(TARGET brx_com_interfaces)
    target_link_libraries(brx_headers PRIVATE brx_com_interfaces)
endif()
if(WIN32)
    get_property(idl_targets GLOBAL PROPERTY BRX_IDL_TARGETS)
    if(idl_targets)
        add_dependencies(brx_headers ${idl_targets})
        target_include_directories(brx_headers SYSTEM PRIVATE "${BRX_IDL_DIR}")
    endif()
endif()

# What the check kit takes from a Windows build, as the install component "checks": each file at its place in the build
# tree, where the check programs look for the DLL and the sample's programs; and programs.txt, their list.

if(NOT WIN32 OR NOT TARGET brxSampleHost)
    return()
endif()

# brx_in_kit(TARGET...): programs are stripped, for nobody there has their sources.
function(brx_in_kit)
    foreach(target IN LISTS ARGN)
        get_target_property(folder ${target} BINARY_DIR)
        file(RELATIVE_PATH folder "${CMAKE_BINARY_DIR}" "${folder}")
        install(TARGETS ${target} RUNTIME DESTINATION "${folder}" COMPONENT checks EXCLUDE_FROM_ALL)
    endforeach()
endfunction()

# brx_dll_in_kit(TARGET FOLDER...): the product as it is shipped, at its own place and in folders of programs.
function(brx_dll_in_kit target)
    get_target_property(folder ${target} BINARY_DIR)
    file(RELATIVE_PATH folder "${CMAKE_BINARY_DIR}" "${folder}")
    foreach(each IN LISTS folder ARGN)
        install(FILES "$<TARGET_FILE:${target}>" DESTINATION "${each}" COMPONENT checks EXCLUDE_FROM_ALL)
    endforeach()
endfunction()

get_property(checks GLOBAL PROPERTY BRX_CHECK_TARGETS)
# Those that look at little besides the system come first, the longest last.
set(order brx_conversions brx_com_checks brx_screen_checks brx_server_checks brx_win32_checks brx_sample_checks
    brx_stories_windows brx_apart_checks brx_leak_checks)
set(forgotten ${checks})
list(REMOVE_ITEM forgotten ${order})
if(forgotten)
    message(FATAL_ERROR "The check kit does not know where ${forgotten} should come")
endif()

set(lines "")
foreach(target IN LISTS order)
    get_target_property(folder ${target} BINARY_DIR)
    file(RELATIVE_PATH folder "${CMAKE_BINARY_DIR}" "${folder}")
    if(target IN_LIST checks)
        get_property(seconds GLOBAL PROPERTY BRX_SECONDS_OF_${target})
        string(APPEND lines "${seconds} gtest ${target} ${folder}/${target}.exe\n")
    else()
        string(APPEND lines "600 plain ${target} ${folder}/${target}.exe\n"
            "600 plain ${target}_script ${folder}/${target}.exe --script en-US\n")
    endif()
endforeach()
file(GENERATE OUTPUT "${CMAKE_BINARY_DIR}/programs.txt" CONTENT "${lines}")
install(FILES "${CMAKE_BINARY_DIR}/programs.txt" DESTINATION . COMPONENT checks EXCLUDE_FROM_ALL)

# brxCheck lies beside the list.
install(TARGETS brxCheck RUNTIME DESTINATION . COMPONENT checks EXCLUDE_FROM_ALL)
brx_in_kit(${order} brxSampleHost brxSampleServer brxDescribe)
brx_dll_in_kit(brxOpcDlgs6 sample/window)
brx_dll_in_kit(brxSample sample/window)
add_custom_target(brx_check_kit DEPENDS brxCheck ${order} brxSampleHost brxSampleServer brxDescribe)

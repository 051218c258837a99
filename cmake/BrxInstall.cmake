# What `cmake --install` and CPack take from a build, for those who build themselves: the DLL, the type libraries, the
# headers and the IDL. ./package makes the whole kit, of both bits.

if(NOT TARGET brxOpcDlgs6)
    return()
endif()

# The DLL is a module, which CMake would take for something to load and put into lib.
install(TARGETS brxOpcDlgs6 LIBRARY DESTINATION bin)
install(FILES "$<TARGET_FILE:brxOpcDlgs6>.debug" DESTINATION bin)
if(BRX_PDB)
    install(FILES "$<TARGET_FILE_DIR:brxOpcDlgs6>/brxOpcDlgs6.pdb" DESTINATION bin)
endif()
foreach(library brx_dlgs_idl brx_opc_auto_idl brx_database_idl)
    install(FILES "$<TARGET_PROPERTY:${library},BRX_TLB>" DESTINATION bin)
endforeach()
foreach(interfaces OPCAutomation brxDatabase6 brxError6 brxOpcAuto6 brxOpcDlgs6 hlxER01)
    install(FILES "${BRX_IDL_DIR}/${interfaces}.h" "${BRX_IDL_DIR}/${interfaces}_i.c" DESTINATION include)
endforeach()
install(FILES "${BRX_IDL_DIR}/brxModel.h" DESTINATION include)
install(DIRECTORY "${CMAKE_SOURCE_DIR}/src/com/idl/" DESTINATION idl FILES_MATCHING PATTERN "*.idl" PATTERN "*.idh")
install(DIRECTORY "${CMAKE_SOURCE_DIR}/docs/" DESTINATION doc)
install(FILES "${CMAKE_SOURCE_DIR}/LICENSE" "${CMAKE_SOURCE_DIR}/NOTICE" DESTINATION .)

set(CPACK_GENERATOR ZIP)
set(CPACK_PACKAGE_VENDOR "${BRX_COMPANY}")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
set(CPACK_RESOURCE_FILE_LICENSE "${CMAKE_SOURCE_DIR}/LICENSE")
include(CPack)

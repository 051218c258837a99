# What the project says of itself, put into the sources that say it: CMakeLists.txt has the version.
#
# brx_manifest(TARGET FILE.manifest): what the target's resource script names is made from FILE.manifest.in.

set(BRX_COMPANY "The brxOpcDlgs6 project" CACHE STRING "Who makes this, in the version resources and the package")
set(BRX_COPYRIGHT "Copyright 2026 the owner of brxOpcDlgs6" CACHE STRING "Whose this is, in the same places")
set(BRX_VERSION_NUMBERS "${PROJECT_VERSION_MAJOR},${PROJECT_VERSION_MINOR},${PROJECT_VERSION_PATCH},0")
set(BRX_VERSION_DOTTED "${PROJECT_VERSION}.0")

set(BRX_CONFIGURED "${CMAKE_BINARY_DIR}/configured")
configure_file("${CMAKE_SOURCE_DIR}/src/common/version.h.in" "${BRX_CONFIGURED}/common/version.h" @ONLY)
target_include_directories(brx_options INTERFACE "${BRX_CONFIGURED}")

function(brx_manifest target manifest)
    set(configured "${BRX_CONFIGURED}/manifests")
    configure_file("${manifest}.in" "${configured}/${manifest}" @ONLY)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "\\.rc$")
    set_property(SOURCE ${sources} APPEND PROPERTY INCLUDE_DIRECTORIES "${configured}")
    set_property(SOURCE ${sources} APPEND PROPERTY OBJECT_DEPENDS "${configured}/${manifest}")
endfunction()

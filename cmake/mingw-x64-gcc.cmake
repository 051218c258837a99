# A second opinion on the Windows sources.
set(BRX_MINGW_COMPILER gcc)
include("${CMAKE_CURRENT_LIST_DIR}/mingw-x64.cmake")

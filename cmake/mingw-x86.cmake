set(CMAKE_SYSTEM_PROCESSOR i686)
set(BRX_MINGW_TRIPLE i686-w64-mingw32)
include("${CMAKE_CURRENT_LIST_DIR}/mingw.cmake")
if(NOT CMAKE_HOST_WIN32)
    set(CMAKE_CROSSCOMPILING_EMULATOR "${CMAKE_CURRENT_LIST_DIR}/../scripts/wine.sh" --32 --seconds 1800)
endif()

# 32-bit hosts call in with a stack aligned to 4 bytes, the compiler counts on 16. Without tables as in 64 bits, who
# called is read from the chain of frames.
string(APPEND CMAKE_C_FLAGS_INIT " -mstackrealign -fno-omit-frame-pointer")
string(APPEND CMAKE_CXX_FLAGS_INIT " -mstackrealign -fno-omit-frame-pointer")

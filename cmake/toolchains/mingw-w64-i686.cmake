# Cross build for 32-bit Windows with Debian's mingw-w64 packages.
set(CMAKE_SYSTEM_PROCESSOR x86)
set(VELKOR6_MINGW_TRIPLET i686-w64-mingw32)
include(${CMAKE_CURRENT_LIST_DIR}/mingw-w64-common.cmake)
# Exports without the stdcall decoration, as COM and regsvr32 look them up.
string(APPEND CMAKE_SHARED_LINKER_FLAGS_INIT " -Wl,--kill-at,--enable-stdcall-fixup")

# Shared by the mingw-w64 toolchain files; they set VELKOR6_MINGW_TRIPLET first.
set(CMAKE_SYSTEM_NAME Windows)

# The posix thread model gives the full standard thread library; everything links statically so
# the programs and the DLL depend on system DLLs only.
set(CMAKE_C_COMPILER ${VELKOR6_MINGW_TRIPLET}-gcc-posix)
set(CMAKE_CXX_COMPILER ${VELKOR6_MINGW_TRIPLET}-g++-posix)
set(CMAKE_RC_COMPILER ${VELKOR6_MINGW_TRIPLET}-windres)
set(VELKOR6_WIDL ${VELKOR6_MINGW_TRIPLET}-widl)

set(CMAKE_FIND_ROOT_PATH /usr/${VELKOR6_MINGW_TRIPLET})
set(CMAKE_FIND_ROOT_PATH_MODE_PROGRAM NEVER)
set(CMAKE_FIND_ROOT_PATH_MODE_LIBRARY ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_INCLUDE ONLY)
set(CMAKE_FIND_ROOT_PATH_MODE_PACKAGE ONLY)

set(CMAKE_EXE_LINKER_FLAGS_INIT "-static")
set(CMAKE_SHARED_LINKER_FLAGS_INIT "-static")
set(CMAKE_MODULE_LINKER_FLAGS_INIT "-static")

# GCC 12 warns falsely about overlapping copies inside its own string functions when it inlines
# them for mingw-w64.
set(CMAKE_CXX_FLAGS_INIT "-Wno-restrict")

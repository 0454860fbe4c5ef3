#!/usr/bin/env bash
# Builds and runs every test: the default preset, then the sanitizer preset, then the Windows
# builds (the 64-bit one tested under Wine, the 32-bit one built and linked). VELKOR6_WINDOWS=0
# leaves the Windows builds out.
set -euo pipefail
cd "$(dirname "$0")/.."

windows=${VELKOR6_WINDOWS:-1}
windowsPackages=()
if [ "$windows" != 0 ]; then
    windowsPackages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine
                     wine64 libwine)
fi
scripts/deps.sh "${windowsPackages[@]}"

for preset in default asan; do
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j2
done

if [ "$windows" != 0 ]; then
    echo "== windows-x64 (tests under Wine)"
    cmake --preset windows-x64 >/dev/null
    cmake --build --preset windows-x64
    ctest --preset windows-x64
    echo "== windows-x86 (built and linked; not run: Wine runs 64-bit programs only here)"
    cmake --preset windows-x86 >/dev/null
    cmake --build --preset windows-x86 --target velkor6_com
fi

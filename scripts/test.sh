#!/usr/bin/env bash
# Builds and runs every test: the default preset, then the sanitizer preset, then the Debian
# packages on a fresh Debian 12 (as root; VELKOR6_PACKAGES=0 leaves them out), then the fuzzers for
# 20 seconds each when clang is installed, then the Windows builds, the 64-bit and the 32-bit
# one, each tested under Wine. VELKOR6_WINDOWS=0 leaves the Windows builds out.
set -euo pipefail
cd "$(dirname "$0")/.."

windows=${VELKOR6_WINDOWS:-1}
windowsPackages=()
if [ "$windows" != 0 ]; then
    windowsPackages=(g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine xvfb
                     x11-apps imagemagick wine64 libwine)
fi
# The X11 window tests: a private X server, a window manager, a window to find, and tools that
# press keys and read window properties.
scripts/deps.sh xvfb jwm x11-apps x11-utils xdotool "${windowsPackages[@]}"
# 32-bit Wine comes from another architecture's package lists, which a mirror may not serve at
# the moment: without it the 32-bit build is built and linked but not run.
x86Tests=0
if [ "$windows" != 0 ]; then
    if scripts/deps.sh wine32:i386; then
        x86Tests=1
    else
        echo "32-bit Wine could not be installed: the 32-bit build will not be run" >&2
    fi
fi

for preset in default asan; do
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j2
done

# The Debian packages, installed and used on a fresh Debian 12: a chroot, so as root only.
if [ "${VELKOR6_PACKAGES:-1}" != 0 ]; then
    if [ "$(id -u)" = 0 ]; then
        echo "== packages"
        tests/packages/run.sh
    else
        echo "== packages: left out (the Debian 12 chroot needs root)"
    fi
fi

# The fuzzers, when clang is there to build them: 20 seconds each on their seed corpora.
if command -v clang++ >/dev/null; then
    clangMajor=$(clang++ -dumpversion | cut -d. -f1)
    scripts/deps.sh "libclang-rt-$clangMajor-dev"
    echo "== fuzz"
    cmake --preset fuzz >/dev/null
    cmake --build --preset fuzz
    scripts/fuzz.sh 20
fi

if [ "$windows" != 0 ]; then
    echo "== windows-x64 (tests under Wine)"
    cmake --preset windows-x64 >/dev/null
    cmake --build --preset windows-x64
    ctest --preset windows-x64
    cmake --preset windows-x86 >/dev/null
    if [ "$x86Tests" = 1 ]; then
        echo "== windows-x86 (tests under 32-bit Wine)"
        cmake --build --preset windows-x86
        ctest --preset windows-x86
    else
        echo "== windows-x86 (built and linked only)"
        cmake --build --preset windows-x86 --target velkor6_com
    fi
fi

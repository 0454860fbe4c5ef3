#!/usr/bin/env bash
# Builds the Debian packages (libvelkor6-6, libvelkor6-dev, velkor6; libvelkor6-qt and
# libvelkor6-qt-dev where Qt is there), installs them with apt on a
# fresh Debian 12, and there builds the program of tests/consumer against them, with find_package
# and with pkg-config: each build must print 1, and so must the velkor6 program. Then purges
# them and checks that nothing of them is left.
#
#   tests/packages/run.sh [BUILD_DIR]          (as root; BUILD_DIR defaults to build/packages)
#
# The fresh Debian 12 is a chroot. debootstrap makes a minimal system with a compiler, CMake and
# pkg-config once, from Debian's mirror, and keeps it in $VELKOR6_DEBIAN_CACHE (default
# /var/cache/velkor6/debian12); each run installs into a throwaway copy of it.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
build=${1:-$root/build/packages}
cache=${VELKOR6_DEBIAN_CACHE:-/var/cache/velkor6/debian12}
mirror=${VELKOR6_DEBIAN_MIRROR:-http://deb.debian.org/debian}

[ "$(id -u)" = 0 ] || { echo "packages: needs root, for the chroot" >&2; exit 1; }
# dpkg-shlibdeps finds the packages' dependencies.
"$root/scripts/deps.sh" dpkg-dev debootstrap
# The package build compiles the library once more: with ccache, only the first time.
if [ -z "${CMAKE_CXX_COMPILER_LAUNCHER:-}" ] && command -v ccache >/dev/null; then
    export CMAKE_CXX_COMPILER_LAUNCHER=ccache
fi
failed=0
fail() { echo "FAIL $*"; failed=1; }

echo "== build the packages in $build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr \
    -DVELKOR6_TESTS=OFF -DVELKOR6_PROGRAM=ON >/dev/null
cmake --build "$build"
rm -f "$build"/*.deb
(cd "$build" && cpack -G DEB >/dev/null)
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
major=${version%%.*}
arch=$(dpkg --print-architecture)
multiarch=$(dpkg-architecture -qDEB_HOST_MULTIARCH)
packages=("libvelkor6-$major" libvelkor6-dev velkor6)
# The Qt library and its development files, where Qt was there to build it.
grep -q '^Qt6Widgets_DIR:PATH=/' "$build/CMakeCache.txt" && packages+=(libvelkor6-qt libvelkor6-qt-dev)
for package in "${packages[@]}"; do
    deb=$build/${package}_$version-1_$arch.deb
    [ -f "$deb" ] || { fail "no $(basename "$deb")"; continue; }
    echo "$(basename "$deb"): $(dpkg-deb -f "$deb" Depends)"
done
[ "$failed" = 0 ] || exit 1
# What each package must hold, and the dependency the development files need.
contents() { dpkg-deb -c "$build/${1}_$version-1_$arch.deb" | awk '{ print $6 }'; }
contents "libvelkor6-$major" | grep -qx "./usr/lib/$multiarch/libvelkor6.so.$version" ||
    fail "libvelkor6-$major does not hold libvelkor6.so.$version"
contents "libvelkor6-$major" | grep -q '\.h$\|bin/' && fail "libvelkor6-$major holds more than the library"
for f in include/velkor6/lib.h "lib/$multiarch/libvelkor6.so" "lib/$multiarch/pkgconfig/velkor6.pc" \
    "lib/$multiarch/cmake/velkor6/velkor6-config.cmake"; do
    contents libvelkor6-dev | grep -qx "./usr/$f" || fail "libvelkor6-dev does not hold /usr/$f"
done
contents velkor6 | grep -qx ./usr/bin/velkor6 || fail "velkor6 does not hold /usr/bin/velkor6"
if [ ${#packages[@]} = 5 ]; then
    contents libvelkor6-qt | grep -qx "./usr/lib/$multiarch/libvelkor6-qt.so" ||
        fail "libvelkor6-qt does not hold the Qt library"
    for f in include/velkor6/qt.h "lib/$multiarch/cmake/velkor6/velkor6-qt-targets.cmake"; do
        contents libvelkor6-qt-dev | grep -qx "./usr/$f" || fail "libvelkor6-qt-dev does not hold /usr/$f"
    done
    dpkg-deb -f "$build/libvelkor6-qt_$version-1_$arch.deb" Depends |
        grep -q "libvelkor6-$major (= $version-1)" || fail "libvelkor6-qt does not depend on its library"
fi
contents libvelkor6-dev | grep -q 'velkor6/qt\.h$' && fail "libvelkor6-dev holds the Qt header"
dpkg-deb -f "$build/libvelkor6-dev_$version-1_$arch.deb" Depends |
    grep -q "libvelkor6-$major (= $version-1)" || fail "libvelkor6-dev does not depend on its library"

echo "== a fresh Debian 12"
if [ ! -e "$cache/.complete" ]; then
    rm -rf "$cache.new"
    mkdir -p "$(dirname "$cache")"
    debootstrap --variant=minbase --include=g++,cmake,make,pkgconf bookworm "$cache.new" \
        "$mirror" >"$(dirname "$cache")/debootstrap.log"
    touch "$cache.new/.complete"
    rm -rf "$cache"
    mv "$cache.new" "$cache"
fi
system=$(mktemp -d /var/tmp/velkor6-debian12.XXXXXX)
# shellcheck disable=SC2317 # run by the trap
cleanup() {
    # Never remove a tree that still has the host's /proc mounted in it.
    if mountpoint -q "$system/proc"; then
        umount "$system/proc" || { echo "left $system: its /proc is still mounted" >&2; return; }
    fi
    rm -rf "$system"
}
trap cleanup EXIT
cp -a "$cache/." "$system/"
cp /etc/resolv.conf "$system/etc/resolv.conf"
mount -t proc proc "$system/proc"
mkdir "$system/tmp/velkor6"
cp "$build"/*.deb "$here/../consumer/main.cpp" "$here/../consumer/qt_main.cpp" \
    "$here/../consumer/CMakeLists.txt" \
    "$system/tmp/velkor6/"

echo "== install, build against the packages, purge"
chroot "$system" /usr/bin/env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME=/root \
    DEBIAN_FRONTEND=noninteractive MAJOR="$major" /bin/bash -s <<'IN_CHROOT' || failed=1
set -euo pipefail
failed=0
fail() { echo "FAIL $*"; failed=1; }
expect1() { # what, command...
    local what=$1 out
    shift
    if out=$("$@") && [ "$out" = 1 ]; then echo "$what prints 1"; else fail "$what printed '$out'"; fi
}
cd /tmp/velkor6
# No terminal in here for dpkg to log through.
apt=(apt-get -qq -o Dpkg::Use-Pty=0)
"${apt[@]}" update
"${apt[@]}" install -y --no-install-recommends ./*.deb >/dev/null
dpkg-query -W -f='${Package} ${Version}\n' "libvelkor6-$MAJOR" libvelkor6-dev velkor6 libpugixml-dev
expect1 "velkor6 call vkrCountSubString abc a" velkor6 call vkrCountSubString abc a
readelf -d "$(dpkg -L "libvelkor6-$MAJOR" | grep '\.so\.[0-9.]*\.[0-9]*$')" | grep -q "SONAME.*\[libvelkor6.so.$MAJOR\]" ||
    fail "the installed library's SONAME is not libvelkor6.so.$MAJOR"

cmake -S . -B cmake-build >cmake.log 2>&1 && cmake --build cmake-build >>cmake.log 2>&1 ||
    { cat cmake.log; fail "the consumer did not build with find_package"; }
grep -q "velkor6 .* in /usr/lib/" cmake.log || fail "find_package did not take the packaged velkor6"
expect1 "the find_package build" cmake-build/consumer
# With libvelkor6-qt-dev, find_package(velkor6 COMPONENTS qt) gives velkor6::qt.
if [ -x cmake-build/consumer_qt ]; then
    expect1 "the Qt build" env QT_QPA_PLATFORM=offscreen cmake-build/consumer_qt
elif dpkg-query -W libvelkor6-qt-dev >/dev/null 2>&1; then
    fail "libvelkor6-qt-dev is installed but the Qt consumer was not built"
fi
# shellcheck disable=SC2046 # the flags are words
g++ -std=c++20 main.cpp $(pkg-config --cflags --libs velkor6) -o consumer-pc ||
    fail "the consumer did not build with pkg-config"
expect1 "the pkg-config build" ./consumer-pc

# Every package of ours, the Qt dialog host's among them where it was built.
mapfile -t ours < <(dpkg-query -W -f='${Package}\n' 'libvelkor6*' velkor6)
"${apt[@]}" purge -y "${ours[@]}" >/dev/null
left=$(ls -d /usr/include/velkor6 /usr/lib/*/libvelkor6* /usr/lib/*/cmake/velkor6 /usr/bin/velkor6 \
           /usr/share/doc/velkor6 2>/dev/null || true)
[ -z "$left" ] || fail "left after the purge: $left"
exit "$failed"
IN_CHROOT

[ "$failed" = 0 ] && echo "packages: passed"
exit "$failed"

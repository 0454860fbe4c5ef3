#!/usr/bin/env bash
# Installs velkor6 into a temporary prefix and builds a program against it the two ways a user
# would: with CMake's find_package and with pkg-config. Each build must run and print 1.
#
#   tests/consumer/run.sh [BUILD_DIR]
#
# With BUILD_DIR, installs from that build as it is (the CTest `consumer` does so); without,
# configures and builds velkor6 in build/consumer first.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
root=$(cd "$here/../.." && pwd)
cxx=${CXX:-g++}

if [ $# -ge 1 ]; then
    build=$1
else
    build=$root/build/consumer
    cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DVELKOR6_TESTS=OFF >/dev/null
    cmake --build "$build"
fi

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
prefix=$work/prefix
failed=0
fail() { echo "FAIL $*"; failed=1; }

echo "== install into $prefix"
cmake --install "$build" --prefix "$prefix" >/dev/null

# The install holds the headers, the library with its CMake package and pkg-config file, the
# program, the Qt dialog host, the member reference, the README and the C++ example, nothing else.
pc=$(find "$prefix" -name velkor6.pc)
[ -n "$pc" ] || { echo "FAIL no velkor6.pc installed"; exit 1; }
libdir=$(dirname "$(dirname "${pc#"$prefix"/}")")
version=$(sed -n 's/^CMAKE_PROJECT_VERSION:STATIC=//p' "$build/CMakeCache.txt")
major=${version%%.*}
shared=0
grep -q '^VELKOR6_SHARED:BOOL=ON$' "$build/CMakeCache.txt" && shared=1
qtlib=0
[ -f "$build/tools/velkor6/libvelkor6-qt.so" ] && qtlib=1
expected=$( (cd "$root/include" && find velkor6 -name '*.h' ! -name qt.h | sed 's|^|include/|')
            grep -q '^VELKOR6_PROGRAM:BOOL=ON$' "$build/CMakeCache.txt" && echo bin/velkor6
            # The Qt library with its header and CMake target, where Qt was there to build it.
            if [ "$qtlib" = 1 ]; then
                printf '%s\n' "$libdir/libvelkor6-qt.so" include/velkor6/qt.h \
                    "$libdir/cmake/velkor6/velkor6-qt-targets.cmake" \
                    "$libdir/cmake/velkor6/velkor6-qt-targets-CONFIG.cmake"
            fi
            if [ "$shared" = 1 ]; then
                printf "$libdir/%s\n" libvelkor6.so "libvelkor6.so.$major" "libvelkor6.so.$version"
            else
                echo "$libdir/libvelkor6.a"
            fi
            (cd "$root/examples" && find cpp -type f | sed 's|^|share/doc/velkor6/examples/|')
            printf '%s\n' share/doc/velkor6/members.md share/doc/velkor6/README.md \
                "$libdir/pkgconfig/velkor6.pc" "$libdir/cmake/velkor6/velkor6-config.cmake" \
                "$libdir/cmake/velkor6/velkor6-config-version.cmake" \
                "$libdir/cmake/velkor6/velkor6-targets.cmake" \
                "$libdir/cmake/velkor6/velkor6-targets-CONFIG.cmake")
actual=$(cd "$prefix" && find . ! -type d |
         sed 's|^\./||; s|-targets-[a-z]*\.cmake$|-targets-CONFIG.cmake|')
if ! diff <(sort <<<"$expected") <(sort <<<"$actual"); then
    fail "installed files differ from the expected ones (< expected, > installed)"
fi
# The layers are built into the library: a consumer must not be sent looking for them.
if grep -l 'velkor6_core\|velkor6_platform\|velkor6_subsystems' \
       "$prefix/$libdir/cmake/velkor6/"*.cmake "$pc"; then
    fail "the installed package names the build's internal layers"
fi

if [ "$shared" = 1 ]; then
    echo "== libvelkor6.so: its name and what it exports"
    so=$prefix/$libdir/libvelkor6.so.$version
    soname=$(readelf -d "$so" | sed -n 's/.*(SONAME).*\[\(.*\)\]$/\1/p')
    echo "SONAME $soname"
    [ "$soname" = "libvelkor6.so.$major" ] || fail "the SONAME is '$soname', not libvelkor6.so.$major"
    [ "$(readlink "$prefix/$libdir/libvelkor6.so.$major")" = "libvelkor6.so.$version" ] ||
        fail "libvelkor6.so.$major does not point to libvelkor6.so.$version"
    # Each exported symbol must belong to a class or function the public headers mark for
    # export; the layers' own functions, pugixml's and the standard templates' instances stay
    # inside.
    declared=$(grep -rhoE '^(class|struct) VELKOR6_API [A-Za-z_][A-Za-z0-9_]*|^VELKOR6_API [^(]*\(' \
                   "$root/include/velkor6" | sed -E 's/\($//; s/.* //' | sort -u)
    exported=$(nm -D --defined-only -C "$so" | cut -d' ' -f3-)
    count=$(wc -l <<<"$exported")
    internal=$(sed -E 's/^(typeinfo name for|typeinfo for|vtable for|non-virtual thunk to) //' \
                   <<<"$exported" |
               awk -v names="$declared" '
                   BEGIN { n = split(names, list, "\n"); for (i = 1; i <= n; i++) ok[list[i]] = 1 }
                   !/^velkor6::/ { print; next }
                   { s = substr($0, 10); match(s, /^(operator[^(]*|[A-Za-z_][A-Za-z0-9_]*)/)
                     if (!(substr(s, 1, RLENGTH) in ok)) print }')
    if [ -n "$internal" ]; then
        head -20 <<<"$internal"
        fail "libvelkor6.so exports $(wc -l <<<"$internal") symbols the public headers do not declare"
    else
        echo "exports $count symbols, all declared in include/velkor6"
    fi
fi

if [ "$qtlib" = 1 ]; then
    echo "== libvelkor6-qt.so: what it exports"
    # The functions of velkor6/qt.h, the two entries the library's loader looks up, and the type
    # information of the library's own classes; nothing of Qt's or the standard templates'.
    qtexported=$(nm -D --defined-only -C "$prefix/$libdir/libvelkor6-qt.so" | cut -d' ' -f3-)
    qtdeclared=$(grep -oE '^VELKOR6_QT_API [^(]*\(' "$root/include/velkor6/qt.h" |
                 sed -E 's/\($//; s/.* //')
    stray=$(grep -vE '^(velkor6_qt_dialog_host|velkor6_qt_control_window|_edata|_end|__bss_start)$' \
                <<<"$qtexported" |
            grep -vE '^(typeinfo name for|typeinfo for|vtable for) velkor6::[A-Za-z]+$' |
            awk -v names="$qtdeclared" '
                BEGIN { n = split(names, list, "\n"); for (i = 1; i <= n; i++) ok[list[i]] = 1 }
                { s = $0; sub(/^velkor6::qt::/, "", s); sub(/\(.*/, "", s)
                  if (!(index($0, "velkor6::qt::") == 1 && (s in ok))) print }')
    if [ -n "$stray" ]; then
        head -20 <<<"$stray"
        fail "libvelkor6-qt.so exports $(wc -l <<<"$stray") symbols velkor6/qt.h does not declare"
    else
        echo "exports $(wc -l <<<"$qtexported") symbols, as velkor6/qt.h declares them"
    fi
fi

echo "== find_package(velkor6)"
if cmake -S "$here" -B "$work/cmake" -DCMAKE_PREFIX_PATH="$prefix" -DCMAKE_CXX_COMPILER="$cxx" \
       >"$work/configure.log" 2>&1 &&
    cmake --build "$work/cmake" >"$work/build.log" 2>&1; then
    # Found in the prefix, not in some other install on the machine.
    grep -q "velkor6 .* in $prefix/" "$work/configure.log" ||
        fail "find_package took velkor6 elsewhere: $(grep 'velkor6 .* in' "$work/configure.log")"
    out=$("$work/cmake/consumer") || fail "the CMake-built consumer exited with status $?"
    if [ "$out" = 1 ]; then
        echo "prints $out"
    else
        fail "the CMake-built consumer printed '$out', expected 1"
    fi
    if [ "$qtlib" = 1 ]; then
        out=$(QT_QPA_PLATFORM=offscreen "$work/cmake/consumer_qt") ||
            fail "the Qt consumer (find_package(velkor6 COMPONENTS qt)) exited with status $?"
        [ "$out" = 1 ] && echo "the Qt consumer prints $out" ||
            fail "the Qt consumer printed '$out', expected 1"
    fi
else
    cat "$work/configure.log" "$work/build.log" 2>/dev/null
    fail "the consumer did not build with find_package"
fi

echo "== pkg-config velkor6"
PKG_CONFIG_PATH=$(dirname "$pc")
export PKG_CONFIG_PATH
# A static library names what it needs in the private fields.
static=()
[ "$shared" = 1 ] || static=(--static)
flags=$(pkg-config "${static[@]}" --cflags --libs velkor6)
echo "pkg-config ${static[*]} --cflags --libs velkor6: $flags"
# A shared library in a prefix the loader does not search is found through the program's run path.
rpath=()
[ "$shared" = 1 ] && rpath=("-Wl,-rpath,$(pkg-config --variable=libdir velkor6)")
# shellcheck disable=SC2086 # the flags are words
if "$cxx" -std=c++20 "$here/main.cpp" $flags "${rpath[@]}" -o "$work/consumer-pc"; then
    out=$("$work/consumer-pc") || fail "the pkg-config-built consumer exited with status $?"
    if [ "$out" = 1 ]; then
        echo "prints $out"
    else
        fail "the pkg-config-built consumer printed '$out', expected 1"
    fi
else
    fail "the consumer did not build with pkg-config"
fi

[ "$failed" = 0 ] && echo "consumer: passed"
exit "$failed"

#!/usr/bin/env bash
# Registration of velkor6.dll in the build's Wine prefix: per user (plain regsvr32) and per
# machine (regsvr32 /n /i:machine) write the classes, ProgIDs and type library, and
# unregistering leaves the registry exactly as it was.
# usage: registration.sh BUILD_DIR DLL
set -u
build=$1
dll=$(readlink -f "$2")
. "$(dirname "$0")/wine_env.sh" "$build" "$dll"
dllPath=$(winpath "$dll")
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
passed=0
failed=0

check() { # description, command...
    local what=$1
    shift
    if "$@" >"$work/check.log" 2>&1; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL $what"; head -5 "$work/check.log"
    fi
}

snapshot() { # root key, file
    : >"$2"
    winsys reg export "$1\\Software\\Classes" "$(winpath "$2")" /y >/dev/null 2>&1
    # Timestamps and the order of keys do not matter; the content does.
    tr -d '\0\r' <"$2" | sort >"$2.sorted"
}

value() { # key, value name ("" for the default value)
    if [ -z "$2" ]; then
        winsys reg query "$1" /ve 2>/dev/null | tr -d '\r'
    else
        winsys reg query "$1" /v "$2" 2>/dev/null | tr -d '\r'
    fi
}

for scope in user machine; do
    if [ $scope = user ]; then
        root=HKEY_CURRENT_USER
        install=(regsvr32 /s "$dllPath")
        uninstall=(regsvr32 /s /u "$dllPath")
    else
        root=HKEY_LOCAL_MACHINE
        install=(regsvr32 /s /n /i:machine "$dllPath")
        uninstall=(regsvr32 /s /u /n /i:machine "$dllPath")
    fi
    classes="$root\\Software\\Classes"
    snapshot $root "$work/before"
    check "$scope: register" winsys "${install[@]}"
    clsid=$(value "$classes\\velkor6.lib\\CLSID" "" | grep -o '{[0-9A-F-]*}')
    check "$scope: velkor6.lib names a class" test -n "$clsid"
    check "$scope: the versioned ProgID" grep -q "$clsid" <(value "$classes\\velkor6.lib.1\\CLSID" "")
    check "$scope: the class's server is the DLL" \
        grep -qiF "$dllPath" <(value "$classes\\CLSID\\$clsid\\InprocServer32" "")
    check "$scope: apartment threading" \
        grep -q Apartment <(value "$classes\\CLSID\\$clsid\\InprocServer32" ThreadingModel)
    check "$scope: the type library" \
        grep -qiF "$dllPath" <(winsys reg query "$classes\\TypeLib" /s 2>/dev/null | tr -d '\r')
    check "$scope: unregister" winsys "${uninstall[@]}"
    snapshot $root "$work/after"
    if diff "$work/before.sorted" "$work/after.sorted" >"$work/diff"; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        echo "FAIL $scope: unregistering left the registry changed:"
        cat "$work/diff"
    fi
done

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]

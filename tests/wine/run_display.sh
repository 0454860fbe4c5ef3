#!/usr/bin/env bash
# Runs VBScript clients whose dialogs must be drawn and answered: Wine gets an X display of its own
# (Xvfb on a free display number, stopped again by its PID) and a prefix of its own, which draws
# windows (the other Wine tests' prefix has the null display driver) inside a virtual desktop
# (Wine draws title bars there; there is no window manager). Each client gets the Windows path of
# HELPER (dialog_keys.exe) as its first argument and, with --shots DIR, the Windows path of DIR as
# its second: a "NAME.ready" file appearing there is taken as a request for a screenshot, saved as
# DIR/NAME.png, and deleted when taken.
# usage: run_display.sh BUILD_DIR DLL HELPER [--shots DIR] CLIENT...
set -u
build=$1
dll=$(readlink -f "$2")
helper=$(readlink -f "$3")
shift 3
shots=
if [ "${1:-}" = --shots ]; then
    mkdir -p "$2"
    shots=$(readlink -f "$2")
    shift 2
fi
skip=77

for tool in Xvfb wine; do
    if ! command -v $tool >/dev/null; then
        echo "SKIP: $tool is not installed (packages xvfb, wine)"
        exit $skip
    fi
done
if [ -n "$shots" ] && ! { command -v xwd && command -v convert; } >/dev/null; then
    echo "SKIP: screenshots need xwd and convert (packages x11-apps, imagemagick)"
    exit $skip
fi

work=$(mktemp -d)
xvfbPid=
shotPid=
cleanup() {
    [ -n "$shotPid" ] && kill "$shotPid" 2>/dev/null
    if [ -n "${dllPath:-}" ]; then
        winsys regsvr32 /s /u /n /i:machine "$dllPath" >/dev/null 2>&1
        wineserver -k 2>/dev/null
    fi
    [ -n "$xvfbPid" ] && kill "$xvfbPid" 2>/dev/null && wait "$xvfbPid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT

# Xvfb picks a free display itself and writes its number to descriptor 3.
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" 2>"$work/xvfb.log" &
xvfbPid=$!
for _ in $(seq 100); do
    [ -s "$work/display" ] && break
    kill -0 "$xvfbPid" 2>/dev/null || break
    sleep 0.1
done
if [ ! -s "$work/display" ]; then
    echo "SKIP: Xvfb did not start: $(head -3 "$work/xvfb.log")"
    exit $skip
fi
export DISPLAY=:$(head -1 "$work/display")

mkdir -p "$build/display"
. "$(dirname "$0")/client_result.sh"
. "$(dirname "$0")/wine_env.sh" "$build/display" "$dll"
if ! grep -q '"Graphics"="x11"' "$WINEPREFIX/user.reg" 2>/dev/null; then
    wine reg add 'HKCU\Software\Wine\Drivers' /v Graphics /d x11 /f >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null 2>&1
    wine reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1024x768 /f >/dev/null 2>&1
    wineserver -w
fi

dllPath=$(winpath "$dll")
if ! winsys regsvr32 /s /n /i:machine "$dllPath" >/dev/null 2>&1; then
    echo "regsvr32 /n /i:machine failed for $dllPath"
    exit 1
fi

if [ -n "$shots" ]; then
    (
        while :; do
            for ready in "$shots"/*.ready; do
                [ -e "$ready" ] || continue
                sleep 0.3 # the box paints itself after it is found
                xwd -root -display "$DISPLAY" | convert xwd:- -trim "${ready%.ready}.png"
                rm -f "$ready"
            done
            sleep 0.1
        done
    ) &
    shotPid=$!
fi

passed=0
failed=0
for script in "$@"; do
    name=$(basename "$script")
    combined="$work/velkor6-$name"
    cat "$(dirname "$0")/check.inc" "$script" >"$combined"
    arguments=("$(winpath "$helper")")
    [ -n "$shots" ] && arguments+=("$(winpath "$shots")")
    timeout 600 "$wine64" "$(winsysprogram cscript)" //nologo "$(winpath "$combined")" "${arguments[@]}" \
        >"$work/log" 2>&1
    client_result "$name" $? "$work/log"
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]

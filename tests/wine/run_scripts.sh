#!/usr/bin/env bash
# Registers velkor6.dll per machine in the build's Wine prefix (Wine reads classes only from
# there), runs each client (a VBScript file with cscript, a program directly) and unregisters
# the DLL again. A client passes when it exits with 0 and printed its "N passed, M failed"
# line: Wine's cscript exits with 0 and prints nothing on a syntax error. Each client runs under
# ANSWERER (answer_boxes.exe), which presses the default button of every box the client shows.
# Test-only servers that clients create (VELKOR6_TEST_SERVERS, paths separated by ":") are
# registered beside it, with their own DllRegisterServer.
# usage: run_scripts.sh BUILD_DIR DLL ANSWERER CLIENT...
set -u
build=$1
dll=$(readlink -f "$2")
answerer=$(readlink -f "$3")
shift 3
. "$(dirname "$0")/client_result.sh"
. "$(dirname "$0")/wine_env.sh" "$build" "$dll"

dllPath=$(winpath "$dll")
if ! winsys regsvr32 /s /n /i:machine "$dllPath" >/dev/null 2>&1; then
    echo "regsvr32 /n /i:machine failed for $dllPath"
    exit 1
fi

servers=()
IFS=: read -r -a servers <<<"${VELKOR6_TEST_SERVERS:-}"
unregister() {
    local server
    for server in "${servers[@]}"; do
        winsys regsvr32 /s /u "$(winpath "$server")" >/dev/null 2>&1
    done
    winsys regsvr32 /s /u /n /i:machine "$dllPath" >/dev/null 2>&1
}
for server in "${servers[@]}"; do
    if ! winsys regsvr32 /s "$(winpath "$server")" >/dev/null 2>&1; then
        echo "regsvr32 failed for $server"
        unregister
        exit 1
    fi
done

# A folder of this run's own: runs of other builds may be going at the same time.
work=$(mktemp -d)
log=$work/log
# Programs the clients started (an editor, say) end with the prefix's server.
trap 'unregister; wineserver -k; rm -rf "$work"' EXIT

passed=0
failed=0
for script in "$@"; do
    name=$(basename "$script")
    case "$script" in
    *.vbs)
        # VBScript has no include: the shared checks go in front of each script.
        combined="$work/velkor6-$name"
        cat "$(dirname "$0")/check.inc" "$script" >"$combined"
        timeout 600 wine "$answerer" "$(winsysprogram cscript)" //nologo "$(winpath "$combined")" \
            >"$log" 2>&1
        ;;
    *.js)
        timeout 600 wine "$answerer" "$(winsysprogram cscript)" //nologo "$(winpath "$script")" \
            >"$log" 2>&1
        ;;
    *) timeout 600 wine "$answerer" "$(winpath "$script")" >"$log" 2>&1 ;;
    esac
    client_result "$name" $? "$log"
done
echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]

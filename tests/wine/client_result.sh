# Sourced by the Wine runners: counts one client's result into `passed` and `failed`. A client
# passes when it printed its "N passed, M failed" line without failures and exited with 0;
# Wine's cscript exits with 0 and prints nothing on a syntax error.
# usage: client_result NAME STATUS LOG
client_result() {
    local name=$1 status=$2 output summary scriptFailed
    output=$(tr -d '\r' <"$3")
    echo "$output" | sed "s/^/$name: /"
    summary=$(echo "$output" | grep -E '^[0-9]+ passed, [0-9]+ failed$' | tail -1)
    if [ -z "$summary" ]; then
        echo "$name: no summary line (a syntax error stops a script silently)"
        failed=$((failed + 1))
        return
    fi
    passed=$((passed + ${summary%% *}))
    scriptFailed=$(echo "$summary" | sed -E 's/.* ([0-9]+) failed$/\1/')
    failed=$((failed + scriptFailed))
    if [ "$scriptFailed" -eq 0 ] && [ "$status" -ne 0 ]; then
        echo "$name: exit status $status"
        failed=$((failed + 1))
    fi
}

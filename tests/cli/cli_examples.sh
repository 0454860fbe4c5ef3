#!/usr/bin/env bash
# The program end to end: documented examples, exit codes, and a current member reference.
set -u
bin=$(realpath "$1")
root=$2
failed=0
passed=0

check() { # name, expected output, command...
    local name=$1 expected=$2
    shift 2
    local actual
    actual=$("$@" 2>&1)
    if [ "$actual" == "$expected" ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAIL %s\n--- expected\n%s\n--- actual\n%s\n' "$name" "$expected" "$actual"
    fi
}

status() { # name, expected status, command...
    local name=$1 expected=$2
    shift 2
    "$@" >/dev/null 2>&1
    local actual=$?
    if [ "$actual" == "$expected" ]; then
        passed=$((passed + 1))
    else
        failed=$((failed + 1))
        printf 'FAIL %s: status %s, expected %s\n' "$name" "$actual" "$expected"
    fi
}

check find-first $'1%\nsFound = "select"' \
    "$bin" call --typed vkrFindSubString "Select a, b FROM t" "from|select"
check find-listed $'13%\nsFound = "from"' \
    "$bin" call --typed vkrFindSubString "Select a, b FROM t" "from|select" "bFindFirst:=False"
check val-german '1234.5#' "$bin" call --typed --locale de-DE vkrVal "EUR 1.234,50"
check print-german '1234,5' "$bin" call --locale de-DE vkrVal "EUR 1.234,50"
check unknown-member 'error 438: Object doesn'"'"'t support this property or method (velkor6)' \
    "$bin" call vkrNoSuchThing
check missing-argument 'error 449: Argument not optional (velkor6)' "$bin" call vkrFindSubString "x"
check script $'13\nsFound = "from"' \
    "$bin" <<<'vkrFindSubString("Select a, b FROM t", "from|select", bFindFirst:=False)'
status error-exit 1 "$bin" call vkrNoSuchThing
status usage-exit 2 "$bin" frobnicate
status usage-call 2 "$bin" call

# Usage errors: exit 2 and a message naming the problem, before any member runs.
check version-word 'velkor6: --app-version x: '"'"'x'"'"' is no number from 0 to 32767' \
    "$bin" --app demo --app-version x call appName
check version-wraps 'velkor6: --app-version 6.40000: '"'"'40000'"'"' is no number from 0 to 32767' \
    "$bin" --app demo --app-version 6.40000 call appName
status version-parts 2 "$bin" --app demo --app-version 1.2.3.4 call appName
check single-overflow 'velkor6: overflow: 1E39! is beyond the range of a Single' \
    "$bin" call --typed vkrCVal 4 '1E39!'
check year-below-100 'velkor6: date #0050-01-01# is before the year 100, the first a Date holds' \
    "$bin" call --typed vkrCVal 7 '#0050-01-01#'
deep=$(printf 'Array(%.0s' $(seq 18000))
status deep-array 2 "$bin" call vkrCVal 12 "$deep"
check early-date '#0100-01-01#' "$bin" call --typed vkrCVal 7 '#0100-01-01#'
check script-usage $'1.5\nvelkor6: line 2: overflow: 1E39! is beyond the range of a Single' \
    "$bin" <<<$'vkrCVal(4, 1.5)\nvkrCVal(4, 1E39!)'
status script-usage-exit 2 "$bin" <<<'vkrCVal(4, 1E39!)'

# Without --app-path the application's folder is the current folder, absolute.
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
# shellcheck disable=SC2016 # the inner shell expands its own arguments
check app-path "$work/demo.ini" bash -c 'cd "$1" && "$2" --app demo call iniFile' - "$work" "$bin"

# deflate | inflate gives back every byte; --strict is the same, --compatible the member's
# reading, which alters a text long enough to fill the dictionary.
services=$work/services
for port in $(seq 1 400); do
    printf 'service-%s\t\t%s/tcp\t\t# entry %s\nservice-%s\t\t%s/udp\n' \
        $((port % 17)) "$port" "$port" $((port % 17)) "$port"
done >"$services"
status inflate-exact 0 cmp -s "$services" <("$bin" deflate <"$services" | "$bin" inflate)
status inflate-strict 0 cmp -s "$services" <("$bin" deflate <"$services" | "$bin" inflate --strict)
status inflate-compatible 1 cmp -s "$services" <("$bin" deflate <"$services" | "$bin" inflate --compatible)
status inflate-unknown 2 "$bin" inflate --loose </dev/null

# Dialogs without a display: the answer comes from VELKOR6_ANSWERS; without one, and with no
# terminal to ask, the box is answered at once as Esc would (here the set's cancel button, No).
headless() { VELKOR6_UI=headless timeout 10 "$@" 2>/dev/null </dev/null; }
check dialog-answered 7 headless env VELKOR6_ANSWERS=7 "$bin" call vkrMsgBox "p" "d" 4
check dialog-unanswered 7 headless env -u VELKOR6_ANSWERS "$bin" call vkrMsgBox "p" "d" 6
check dialog-typed $'1\nvalue = "12345678"' \
    headless env VELKOR6_ANSWERS=text:1234567890 "$bin" call vkrInputValue "08|Code" "T" ""
check dialog-shown $'--- velkor6 ---\n(exclamation)\nRuntime error \'53\':\nFile not found\n  1 = OK (default)' \
    env -u VELKOR6_ANSWERS VELKOR6_UI=headless "$bin" call vkrErrorMsg 53 "File not found" ""

members=$("$bin" members)
if ! grep -q '^Function vkrFindSubString(sSource As String' <<<"$members"; then
    failed=$((failed + 1))
    echo "FAIL members: vkrFindSubString not listed"
else
    passed=$((passed + 1))
fi
if ! "$bin" members --markdown | diff -u "$root/docs/members.md" - >/dev/null; then
    failed=$((failed + 1))
    echo "FAIL docs/members.md is not current: run velkor6 members --markdown > docs/members.md"
else
    passed=$((passed + 1))
fi

echo "$passed passed, $failed failed"
[ "$failed" -eq 0 ]

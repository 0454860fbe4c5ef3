#!/usr/bin/env bash
# The program end to end: documented examples, exit codes, and a current member reference.
set -u
bin=$1
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

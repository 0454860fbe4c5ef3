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

# Command line, brackets, number codes, scrambling and the font list.
check cmd-params $'2\nsales\nreport.txt\nnone\nTrue\nFalse' "$bin" --app demo <<<'splitCommandLine("/db=sales -v report.txt")
cmdParam("DB")
cmdParam("v")
cmdParam(1, "none")
cmdHasParam("-V")
cmdHasParam("report.txt")'
check cmd-quoting $'3\nC:\\My Files\\\nsay "hi"' "$bin" --app demo <<<'splitCommandLine("/out=""C:\My Files\\"" /say ""say \""hi\"""" x")
cmdParam("out")
cmdParam("say")'
check separate-function $'True\nsName = "IIf"\nvArgs = Array("a > 1", "\'x, y\'", "Max(b, c)")' \
    "$bin" call vkrSeparateFunction "IIf(a > 1, 'x, y', Max(b, c))" '""' Empty
check extract-expression $'f(a, b)\nsRest = "\'x,y\', 3"' \
    "$bin" call vkrExtractExpression "f(a, b), 'x,y', 3"
check extract-brackets 'a * (b + 1)' "$bin" call vkrExtractBrackets "Sum(a * (b + 1)) + c"
check decimal-chars "Preis > 1234.5 AND c = '2,5'" \
    "$bin" call --locale de-DE vkrReplaceDecimalChars "Preis > 1.234,5 AND c = '2,5'"
check res-conv '&amp;Ja &lt;1&gt;' "$bin" call vkrResConv '&Ja <1>'
check lng2str '-ZIK0ZK' "$bin" call vkrLng2Str -2147483648
check str2lng '2147483647&' "$bin" call --typed vkrStr2Lng zik0zj
check str2lng-overflow 'error 6: Overflow (velkor6)' "$bin" call vkrStr2Lng ZIK0ZK
check scramble 'Geheim' "$bin" call vkrDecryptedValue "$("$bin" call vkrEncryptedValue Geheim)"
check unscramble-bad \
    "error -2147221504: The text is not a value written by vkrEncryptedValue. (velkor6.vkrDecryptedValue)" \
    "$bin" call vkrDecryptedValue "Geheim"
check font-unknown 'error 438: Object doesn'"'"'t support this property or method (velkor6.vkrGlobalObj)' \
    "$bin" call vkrGlobalObj FadeIn
status font-list 0 "$bin" call vkrGlobalVar GetFontList

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

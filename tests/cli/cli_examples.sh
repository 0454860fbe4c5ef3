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
check unknown-member 'error 438: Object doesn'"'"'t support this property or method (vkrNoSuchThing)' \
    "$bin" call vkrNoSuchThing
check missing-argument 'error 449: Argument not optional (vkrFindSubString)' "$bin" call vkrFindSubString "x"
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
check str2lng-overflow 'error 6: Overflow (vkrStr2Lng)' "$bin" call vkrStr2Lng ZIK0ZK
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
status script-usage-exit 1 "$bin" <<<'vkrCVal(4, 1E39!)'

# Errors name the member and the argument that did not fit; a literal that is malformed is a
# usage error, not a String.
check argument-error 'error 13: Type mismatch (vkrFindSubString, argument iStartSearch)' \
    "$bin" call vkrFindSubString abc b x
check open-string $'velkor6: \'"abc\': the string has no closing "' \
    "$bin" call vkrFindSubString '"abc' b
for bad in '#2024-13-45#' 'Array(1, 2' '&HZZ' '1e400' 'sFind:="x'; do
    status "malformed $bad" 2 "$bin" call vkrFindSubString abc "$bad"
done
check applib-needs-app 'velkor6: iniFile is a member of applib: give --app NAME (the application'"'"'s name)' \
    "$bin" call iniFile
status applib-needs-app-exit 2 "$bin" call iniFile

# GNU-style options: =value or a separate value, before or after the command, -- ends them, a
# negative number is an argument.
check options-anywhere '1234.5#' "$bin" call vkrVal "EUR 1.234,50" --locale=de-DE --typed
check double-dash '"typed"' "$bin" call --typed vkrMid -- --typed 3
check negative-number '-2%' "$bin" call --typed vkrCVal 2 -2
check posix-locale '1.5' "$bin" call --locale C.UTF-8 vkrVal 1.5
usage_error() { # name, message, arguments...
    local name=$1 message=$2
    shift 2
    check "$name" "velkor6: $message"$'\n'"Try 'velkor6 --help' for more information." "$bin" "$@"
    status "$name-exit" 2 "$bin" "$@"
}
usage_error unknown-option "unknown option '--frob'" call --frob vkrVal 1
usage_error missing-value "option '--locale' needs a value" call vkrVal 1 --locale
usage_error unknown-locale '--locale xx-YY: no such locale (de-DE, en-US, or one that locale -a lists)' \
    --locale xx-YY call vkrVal 1
usage_error no-value-wanted "option '--typed' takes no value" --typed=yes call vkrVal 1
usage_error misplaced-option "option '--idl' does not go with 'call'" call --idl vkrVal 1
usage_error unknown-command "unknown command 'frobnicate' (call, members, deflate, inflate)" frobnicate
help=$("$bin" --help)
for word in call members deflate inflate --typed --let --locale --app --app-path --app-version \
    --markdown --idl --compatible --strict --help --version; do
    grep -q -- "$word" <<<"$help" || { failed=$((failed + 1)); echo "FAIL --help lacks $word"; }
done
status version 0 grep -q '^velkor6 [0-9]' <("$bin" --version)

# Output that cannot be written fails with a message.
check full-disk 'velkor6: write error: No space left on device' bash -c '"$0" members >/dev/full' "$bin"
status full-disk-exit 1 bash -c '"$0" members >/dev/full' "$bin"
# shellcheck disable=SC2016 # the inner shell expands its own arguments
check closed-pipe $'velkor6: write error: Broken pipe\n1' \
    bash -c 'trap "" PIPE; (sleep 0.3; "$0" members; echo $? >&2) | true' "$bin"

# Script mode: a byte-order mark, comments, several calls on a line; a failing line is reported
# with its number, the others run, and the status is 1.
check bom '1' bash -c 'printf "\xef\xbb\xbfvkrVal(\"1\")\n" | "$0"' "$bin"
check script-lines $'1\nvelkor6: line 3: syntax error: expected ) at column 10\n2\n3\nerror 13: Type mismatch (vkrCVal, argument VarType)\n4' \
    "$bin" <<<$'vkrVal("1") \' one\nRem nothing\nvkrVal(1 : vkrVal(2)\nvkrVal("2"): vkrVal 3 Rem x\nvkrCVal("x", 1)\nvkrVal("a:4")'
status script-fails 1 "$bin" <<<$'vkrVal(1)\nvkrCVal("x", 1)\nvkrVal(2)'

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

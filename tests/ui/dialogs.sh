#!/usr/bin/env bash
# The Qt dialogs driven from outside like a user: the program shows a box on an Xvfb display of
# the test's own, real key events (XTEST through xdotool) answer it, and the printed result must
# be what the button the keys chose returns. Cases that need a window manager's close run under jwm.
#
#   tests/ui/dialogs.sh PROGRAM       (exit 77: skipped, no Xvfb, xdotool or Qt host)
set -uo pipefail
cli=$1
here=$(dirname "$0")
qtlib=$(dirname "$cli")/libvelkor6-qt.so
if [ ! -f "$qtlib" ]; then
    echo "SKIP: the Qt dialog host was not built (no Qt 6 Widgets)"
    exit 77
fi
if ! command -v xdotool >/dev/null; then
    echo "SKIP: xdotool is not installed"
    exit 77
fi
. "$here/xvfb.sh"
xvfb_start || exit 77

# The boxes' language is the library's own setting, kept beside the program: a copy with English
# set runs the cases, whatever the build's own settings say.
stage=$xvfb_dir/program
mkdir -p "$stage"
cp "$cli" "$qtlib" "$stage/"
printf '[Application]\nLanguage=2\n' >"$stage/velkor6.ini"
cli=$stage/$(basename "$cli")
# In a sanitizer build: what the system's libraries under Qt keep is theirs.
export LSAN_OPTIONS="suppressions=$(realpath "$here")/lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"

failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# The visible window of a process, once it is mapped.
pid_window() {
    local pid=$1 id i
    for i in $(seq 200); do
        id=$(xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -n 1)
        [ -n "$id" ] && { echo "$id"; return 0; }
        kill -0 "$pid" 2>/dev/null || return 1
        sleep 0.05
    done
    return 1
}

# Waits up to 10 s for a process to end; kills it when it does not.
reap() {
    local pid=$1 i
    for i in $(seq 200); do
        kill -0 "$pid" 2>/dev/null || break
        sleep 0.05
    done
    if kill -0 "$pid" 2>/dev/null; then
        kill -KILL "$pid"
        wait "$pid" 2>/dev/null
        return 1
    fi
    wait "$pid"
}

# check NAME EXPECTED "KEY ..." MEMBER [ARG ...]: the program's output must equal EXPECTED
# (its lines joined by "|") after the keys; the form's trace is kept in $trace.
trace=
check() {
    local name=$1 expected=$2 keys=$3
    shift 3
    local out=$xvfb_dir/out err=$xvfb_dir/err
    VELKOR6_QT_TRACE=1 "$cli" call --locale en-US "$@" >"$out" 2>"$err" </dev/null &
    local pid=$! id
    if ! id=$(pid_window "$pid"); then
        fail "$name: no window appeared ($(tr '\n' ' ' <"$err"))"
        reap "$pid"
        return
    fi
    # Keys go where the X focus is; a window that has just been mapped may not take it yet.
    local i
    for i in $(seq 40); do
        xdotool windowfocus "$id" 2>/dev/null
        [ "$(xdotool getwindowfocus 2>/dev/null)" = "$id" ] && break
        sleep 0.05
    done
    sleep 0.1
    local key
    for key in $keys; do
        xdotool key "$key"
    done
    if ! reap "$pid"; then
        fail "$name: the dialog did not close after '$keys'"
        return
    fi
    trace=$(grep '^velkor6-qt:' "$err")
    # A sanitizer build reports on standard error.
    if grep -qE 'ERROR: (Address|Leak)Sanitizer|runtime error:' "$err"; then
        fail "$name: sanitizer report: $(grep -m 3 -E 'Sanitizer|runtime error' "$err")"
    fi
    local got
    got=$(paste -sd '|' "$out")
    [ "$got" = "$expected" ] || fail "$name: printed '$got', expected '$expected'"
}

box=(vkrMsgBox "Save changes?" "The file was changed.")

check "N presses No" 7 "n" "${box[@]}" 4
grep -q 'button "&Yes"' <<<"$trace" && grep -q 'button "&No"' <<<"$trace" ||
    fail "the buttons of style 4 are not &Yes and &No: $trace"
check "Esc presses the cancel button" 7 "Escape" "${box[@]}" 4
check "Enter presses the default button" 6 "Return" "${box[@]}" 4
check "Enter presses the second default button" 7 "Return" "${box[@]}" 260
check "Alt+Y presses Yes" 6 "alt+y" "${box[@]}" 4
check "Tab then Space presses the next button" 7 "Tab space" "${box[@]}" 4
check "R presses Retry" 4 "r" "${box[@]}" 5
grep -q 'button "&Retry"' <<<"$trace" && grep -q 'button "&Cancel"' <<<"$trace" ||
    fail "style 5 does not show &Retry and &Cancel: $trace"
check "C presses Cancel" 2 "c" "${box[@]}" 5
check "a letter without a button does nothing" 7 "x n" "${box[@]}" 4

check "the error box" "" "Return" vkrErrorMsg -2147221504 "x" "velkor6.loadRes"
grep -qF "text \"Runtime error '&H80040000':\"" <<<"$trace" ||
    fail "the error box's headline is wrong: $trace"
grep -qF 'form "velkor6.loadRes"' <<<"$trace" || fail "the error box's title is wrong: $trace"

check "the input is cut at 8 characters" '1|value = "12345678"' "1 2 3 4 5 6 7 8 9 0 Return" \
    vkrInputValue "08|Code" "Title" "" ""
grep -q 'field maxLength 8' <<<"$trace" || fail "the input field has no limit of 8: $trace"

# Closing through the window manager sends WM_DELETE_WINDOW; xdotool's own close would destroy
# the window instead.
if wm_start; then
    check "the close box" 0 "alt+F4" "${box[@]}" 4
    check "Enter under a window manager" 6 "Return" "${box[@]}" 4
    wm_stop
else
    echo "note: jwm is not installed; the close-box case was not run"
fi

# Qt is loaded only by a process that shows a dialog: a text member on the same display leaves
# it out, and without a display or with an unusable platform plugin the text host answers.
if LD_DEBUG=libs "$cli" call vkrCVal 12 3 2>&1 >/dev/null | grep -qE 'libQt6|libvelkor6-qt'; then
    fail "a call without a dialog loaded Qt"
fi
VELKOR6_QT_TRACE=1 "$cli" call --locale en-US "${box[@]}" 4 >"$xvfb_dir/out" 2>"$xvfb_dir/err" \
    </dev/null &
pid=$!
if pid_window "$pid" >/dev/null; then
    grep -q 'libQt6Widgets' "/proc/$pid/maps" || fail "the dialog's process has no Qt mapped"
fi
kill -KILL "$pid" 2>/dev/null
wait "$pid" 2>/dev/null
got=$(env -u DISPLAY "$cli" call --locale en-US "${box[@]}" 4 </dev/null 2>/dev/null)
[ "$got" = 7 ] || fail "without a display the box gave '$got', not the Esc answer 7"
got=$(QT_QPA_PLATFORM=nosuchplugin "$cli" call --locale en-US "${box[@]}" 4 </dev/null 2>/dev/null)
[ "$got" = 7 ] || fail "with a missing platform plugin the box gave '$got', not the Esc answer 7"

if [ "$failures" -gt 0 ]; then
    echo "$failures dialog cases failed"
    exit 1
fi
echo "dialogs: every case answered as expected"

#!/usr/bin/env bash
# The Qt file dialog and folder chooser driven like a user: the program shows the dialog on an
# Xvfb display of the test's own, real key events (XTEST through xdotool) type a name and press
# Enter, and the printed result must be the path the keys chose.
#
#   tests/ui/file_dialogs.sh PROGRAM [SHOT_FOLDER]   (exit 77: skipped, no Xvfb, xdotool or Qt host)
#
# With SHOT_FOLDER, a PNG of the screen is kept there for each dialog before the keys go in.
set -uo pipefail
cli=$1
shots=${2:-}
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
export LSAN_OPTIONS="suppressions=$(realpath "$here")/lsan.supp:print_suppressions=0${LSAN_OPTIONS:+:$LSAN_OPTIONS}"
# In a sanitizer build, LeakSanitizer's tracer crashes (signal 11) while it stops the threads Qt's
# file dialog leaves running at exit, and the program then aborts after answering. The leak check
# is left to the unit tests and ui_dialogs; the address and undefined-behaviour checks stay on.
export ASAN_OPTIONS="${ASAN_OPTIONS:+$ASAN_OPTIONS:}detect_leaks=0"
[ -n "$shots" ] && mkdir -p "$shots"

failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

# The files and folders the dialogs show.
root=$xvfb_dir/files
mkdir -p "$root/docs/sub"
: >"$root/docs/a.txt"
: >"$root/docs/b.log"

# The visible window titled exactly so, within 10 s.
titled_window() {
    local id i
    for i in $(seq 200); do
        id=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | tail -n 1)
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.05
    done
    return 1
}

# type_into TITLE SHOT TEXT KEY...: focuses the window, keeps a screenshot, types TEXT, presses
# the keys.
type_into() {
    local title=$1 shot=$2 text=$3 id i
    shift 3
    if ! id=$(titled_window "$title"); then
        fail "no window '$title' appeared"
        return 1
    fi
    for i in $(seq 40); do
        xdotool windowfocus "$id" 2>/dev/null
        [ "$(xdotool getwindowfocus 2>/dev/null)" = "$id" ] && break
        sleep 0.05
    done
    # The dialog fills its lists after it is shown.
    sleep 0.5
    if [ -n "$shots" ] && [ -n "$shot" ]; then
        xwd -root -display "$DISPLAY" | convert xwd:- "$shots/$shot.png"
    fi
    [ -n "$text" ] && xdotool type --delay 20 "$text"
    local key
    for key in "$@"; do
        xdotool key "$key"
        sleep 0.1
    done
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

out=$xvfb_dir/out
err=$xvfb_dir/err
start() {
    VELKOR6_QT_TRACE=1 "$cli" call --locale en-US "$@" >"$out" 2>"$err" </dev/null &
    pid=$!
}
finish() { # NAME EXPECTED
    reap "$pid" || fail "$1: the dialog did not close"
    if grep -qE 'ERROR: (Address|Leak)Sanitizer|runtime error:' "$err"; then
        fail "$1: sanitizer report: $(grep -m 3 -E 'Sanitizer|runtime error' "$err")"
    fi
    local got
    got=$(cat "$out")
    [ "$got" = "$2" ] || fail "$1: printed '$got', expected '$2'"
}

start vkrFileDialog False "Load texts" "Texts (*.TXT)|*.TXT|Logs|*.log" "$root/docs" 4096
type_into "Load texts" open "a.txt" Return
finish "a typed name in the open dialog" "$root/docs/a.txt"
grep -qF "filters \"Texts (*.TXT) (*.TXT)\" \"Logs (*.log)\"" "$err" ||
    fail "the open dialog's filters: $(grep velkor6-qt "$err")"

start vkrFileDialog False "Load texts" "" "$root/docs" 512
type_into "Load texts" "" '"a.txt" "b.log"' Return
finish "several files picked at once" "$root/docs/a.txt|$root/docs/b.log"

start vkrFileDialog True "Save report" "Texts|*.txt" "$root/docs" 2 "txt"
type_into "Save report" save "report" Return
finish "the save dialog adds the default extension" "$root/docs/report.txt"

start vkrFileDialog False "Load texts" "" "$root/docs"
type_into "Load texts" "" "" Escape
finish "Esc cancels the file dialog" ""

start vkrChoosePath "Export to" "$root/docs"
type_into "Export to" chooser "sub" Return
finish "a folder picked in the chooser" "$root/docs/sub"

start vkrChoosePath "Export to" "$root/docs"
type_into "Export to" "" "made" Return
finish "a new folder typed into the chooser" "$root/docs/made"
[ -d "$root/docs/made" ] || fail "the chooser's new folder was not made"

# Qt's "Create New Folder" button proposes a name to type over; the library makes the folder.
start vkrChoosePath "Export to" "$root/docs"
if id=$(titled_window "Export to"); then
    sleep 0.5
    # The button left of the two view buttons at the top right of the chooser.
    eval "$(xdotool getwindowgeometry --shell "$id")"
    xdotool mousemove --window "$id" $((WIDTH - 79)) 22 click 1
    sleep 0.3
    [ -n "$shots" ] && xwd -root -display "$DISPLAY" | convert xwd:- "$shots/new-folder.png"
    xdotool type --delay 20 "pressed"
    sleep 0.2
    # The accept button, clicked with the mouse, takes the new name too.
    xdotool mousemove --window "$id" $((WIDTH - 52)) $((HEIGHT - 53)) click 1
fi
finish "the chooser's new-folder button" "$root/docs/pressed"

# Below a file no folder can be made: the library's error box, then the chooser again.
start vkrChoosePath "Export to" "$root/docs"
type_into "Export to" "" "a.txt/x" Return
type_into "velkor6.vkrChoosePath" chooser-error "" Return
type_into "Export to" "" "" Escape
finish "a folder that cannot be made" ""
grep -qF "Runtime error '75':" "$err" || fail "no error box for the folder that cannot be made"

start vkrChoosePath "Export to" "$root/docs" 1
type_into "Export to" "" "never" Return
# Qt's own warning, titled as the chooser, then the chooser itself.
type_into "Export to" refused "" Escape Escape
finish "without the new-folder flags a missing folder is refused" ""
[ -e "$root/docs/never" ] && fail "a folder was made without the new-folder flags"

if [ "$failures" -gt 0 ]; then
    echo "$failures file dialog cases failed"
    exit 1
fi
echo "file dialogs: every case answered as expected"

#!/usr/bin/env bash
# The language chooser drawn by the Qt host on an Xvfb display of the test's own and answered by
# real key events: the installed languages are listed, Tab and Space choose one other than the
# current language, and the choice is stored in the application's settings.
#
#   tests/ui/language_chooser.sh PROGRAM [SCREENSHOT.png]   (exit 77: skipped)
set -uo pipefail
cli=$(realpath "$1")
shot=${2:-}
here=$(dirname "$0")
qtlib=$(dirname "$cli")/libvelkor6-qt.so
[ -f "$qtlib" ] || { echo "SKIP: the Qt dialog host was not built"; exit 77; }
command -v xdotool >/dev/null || { echo "SKIP: xdotool is not installed"; exit 77; }
. "$here/xvfb.sh"
xvfb_start || exit 77

app=$xvfb_dir/app
mkdir -p "$app"
for code in DE EN FR; do printf 'MZ' >"$app/Res$code.dll"; done
printf '[Application]\r\nLanguage=2\r\nResourceDLL=%s/Res%%L.dll\r\n' "$app" >"$app/Demo.ini"

failures=0
fail() {
    echo "FAIL: $*"
    failures=$((failures + 1))
}

"$cli" call --app=Demo --app-path="$app" chooseLanguage >"$xvfb_dir/out" 2>"$xvfb_dir/err" </dev/null &
pid=$!
id=
for _ in $(seq 200); do
    id=$(xdotool search --onlyvisible --pid "$pid" 2>/dev/null | head -n 1)
    [ -n "$id" ] && break
    sleep 0.05
done
if [ -z "$id" ]; then
    fail "no chooser appeared: $(tr '\n' ' ' <"$xvfb_dir/err")"
    kill -KILL "$pid" 2>/dev/null
else
    for _ in $(seq 40); do
        xdotool windowfocus "$id" 2>/dev/null
        [ "$(xdotool getwindowfocus 2>/dev/null)" = "$id" ] && break
        sleep 0.05
    done
    sleep 0.2
    [ "$(xdotool getwindowname "$id")" = "Language" ] || fail "title '$(xdotool getwindowname "$id")'"
    [ -n "$shot" ] && xwd -silent -id "$id" | convert xwd:- "$shot"
    # The focus starts on English, the current language and default button, first in the tab
    # order; the others follow it in their order: Deutsch, then Français.
    xdotool key Tab Tab space
    for _ in $(seq 200); do kill -0 "$pid" 2>/dev/null || break; sleep 0.05; done
    kill -0 "$pid" 2>/dev/null && { fail "the chooser did not close"; kill -KILL "$pid"; }
    wait "$pid" 2>/dev/null
    [ "$(cat "$xvfb_dir/out")" = 3 ] || fail "printed '$(cat "$xvfb_dir/out")', expected 3"
    grep -q '^Language=3' "$app/Demo.ini" || fail "Language not stored: $(tr '\r\n' '  ' <"$app/Demo.ini")"
fi
[ "$failures" -eq 0 ] && echo "language chooser: passed"
[ "$failures" -eq 0 ]

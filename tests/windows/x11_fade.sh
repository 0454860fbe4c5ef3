#!/usr/bin/env bash
# Fading a real X11 window: the opacity property on the window and on its frame, read back with
# xprop, without and with a window manager. Skips (77) without Xvfb.
set -u
bin=$(realpath "$1")
here=$(dirname "$(realpath "$0")")
# shellcheck source=../ui/xvfb.sh
. "$here/../ui/xvfb.sh"
xvfb_start || exit 77

failed=0
passed=0
check() { # name, expected, actual
    if [ "$2" == "$3" ]; then passed=$((passed + 1)); else
        failed=$((failed + 1))
        echo "FAIL [$mode] $1: got '$3', expected '$2'"
    fi
}
opacity() { # window: the property's value, or "none"
    local out
    out=$(xprop -id "$1" _NET_WM_WINDOW_OPACITY 2>&1)
    case $out in *"= "*) echo "${out##*= }" ;; *) echo none ;; esac
}
frame_of() { # the child of the root that holds the window
    local w=$1 parent
    while :; do
        parent=$(xwininfo -children -id "$w" | sed -n 's/^ *Parent window id: \(0x[0-9a-f]*\).*/\1/p')
        if [ -z "$parent" ] || xwininfo -children -id "$parent" | grep -q "(the root window)"; then
            echo "$w"
            return
        fi
        w=$parent
    done
}

for mode in plain jwm; do
    # The X server now and then refuses a connection made right after another one closed.
    if [ $mode = jwm ] && ! wm_start && ! { wm_stop; wm_start; }; then
        echo "SKIP [jwm]: jwm did not start: $(head -c 300 "$xvfb_dir/jwm.log")"
        continue
    fi
    xmessage -title "Fade $mode" "fading" >/dev/null 2>&1 &
    xm=$!
    id=$(window_wait "Fade $mode")
    hwnd=$((id))
    frame=$(frame_of "$id")

    check init True "$("$bin" call vkrGlobalVar FadeInit "$hwnd")"
    check init-value 0 "$(opacity "$id")"
    check init-frame 0 "$(opacity "$frame")"
    start=$(date +%s%N)
    check in True "$("$bin" call vkrGlobalVar FadeIn "Array($hwnd, 400)")"
    took=$((($(date +%s%N) - start) / 1000000))
    # The property goes at full opacity.
    check in-value none "$(opacity "$id")"
    [ "$took" -ge 400 ] && passed=$((passed + 1)) || { failed=$((failed + 1)); echo "FAIL [$mode] FadeIn took $took ms"; }
    check out True "$("$bin" call vkrGlobalVar FadeOut "Array($hwnd, 60)")"
    check out-value 0 "$(opacity "$id")"
    check out-frame 0 "$(opacity "$frame")"
    check no-window False "$("$bin" call vkrGlobalVar FadeOut 0)"
    kill "$xm" 2>/dev/null
    wait "$xm" 2>/dev/null
    [ $mode = jwm ] && wm_stop
done
echo "x11 fade: $passed passed, $failed failed"
[ "$failed" -eq 0 ]

#!/usr/bin/env bash
# The window members against a real X server: a private Xvfb, once without a window manager and
# once under jwm; and without any display. Skips (77) when Xvfb is not installed or will not start.
set -u
bin=$(realpath "$1")
work=$(mktemp -d)
failed=0
passed=0
pids=()

cleanup() {
    for pid in "${pids[@]}"; do kill -9 "$pid" 2>/dev/null && wait "$pid" 2>/dev/null; done
    rm -rf "$work"
}
trap cleanup EXIT

ok() { passed=$((passed + 1)); }
fail() { failed=$((failed + 1)); echo "FAIL [$mode] $*"; }
expect() { # name, expected, member, args...
    local name=$1 expected=$2
    shift 2
    local actual
    actual=$("$bin" call "$@" 2>&1)
    if [ "$actual" == "$expected" ]; then ok; else fail "$name: got '$actual', expected '$expected'"; fi
}
now() { date +%s.%N; }

# Without a display every member gives its neutral answer and the program succeeds.
mode=no-display
(
    unset DISPLAY
    for call in "vkrFindWindow -1 * *:0" "vkrGetScreenWidth:0" "vkrGetScreenHeight:0" \
        "vkrGetFrameSize 0:0" "vkrGetMenuHeight:0" "vkrIsKeyDown 27:False" \
        "vkrIsMouseButtonDown 1:False" "vkrWaitForClassFinished Xmessage * 1:True" \
        "vkrWaitForClassStarted Xmessage * 0:False" "vkrTopMost 5:" "vkrOpenTopMost 5 True:" \
        "vkrOpenApplicationTopMost 5 6 True:" "vkrApplicationTopMost 5:" "vkrRoundWindow 5 9 9:" \
        "vkrWindowShadow 5:" "vkrClipCursor 5:" "vkrClipCursor:" "vkrWait 10:"; do
        set -f
        # shellcheck disable=SC2086
        out=$("$bin" call ${call%:*} 2>&1)
        status=$?
        set +f
        [ "$status" -eq 0 ] && [ "$out" == "${call##*:}" ] ||
            echo "FAIL [no-display] ${call%:*}: status $status, output '$out'"
    done
) | tee "$work/nodisplay.log"
if [ -s "$work/nodisplay.log" ]; then failed=$((failed + $(wc -l <"$work/nodisplay.log"))); else ok; fi

if ! command -v Xvfb >/dev/null; then
    echo "SKIP: Xvfb is not installed; the X11 window tests did not run"
    exit 77
fi
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
pids+=($!)
for _ in $(seq 50); do [ -s "$work/display" ] && break; sleep 0.1; done
if [ ! -s "$work/display" ]; then
    echo "SKIP: Xvfb did not start; the X11 window tests did not run"
    exit 77
fi
export DISPLAY=:$(cat "$work/display")
export HOME=$work
printf '<?xml version="1.0"?>\n<JWM></JWM>\n' >"$work/.jwmrc"

expect screen-width 1024 vkrGetScreenWidth
expect screen-height 768 vkrGetScreenHeight

for mode in plain jwm; do
    wm=
    if [ $mode = jwm ]; then
        jwm -f "$work/.jwmrc" >/dev/null 2>&1 &
        wm=$!
        pids+=("$wm")
        sleep 1
    fi
    xmessage -title "Velkor test $mode" "a message" >/dev/null 2>&1 &
    xm=$!
    pids+=("$xm")
    expect started True vkrWaitForClassStarted Xmessage "Velkor test*" 10
    hwnd=$("$bin" call vkrFindWindow -1 Xmessage "*")
    [ "${hwnd:-0}" != 0 ] && ok || fail "no Xmessage window"
    expect by-caption "$hwnd" vkrFindWindow -1 Xmessage "Velkor test $mode"
    expect case-sensitive 0 vkrFindWindow -1 xmessage "*"
    expect not-this-caption 0 vkrFindWindow -1 Xmessage "velkor*"

    "$bin" call vkrOpenTopMost "$hwnd" True >/dev/null || fail "vkrOpenTopMost failed"
    sleep 0.5
    read -r l r t b < <(xprop -id "$hwnd" _NET_FRAME_EXTENTS 2>/dev/null |
        sed -n 's/.*= *//p' | tr -d ',' | grep . || echo 0 0 0 0)
    geometry=$(xwininfo -id "$hwnd")
    x=$(sed -n 's/.*Absolute upper-left X: *//p' <<<"$geometry")
    y=$(sed -n 's/.*Absolute upper-left Y: *//p' <<<"$geometry")
    w=$(sed -n 's/.*Width: *//p' <<<"$geometry")
    h=$(sed -n 's/.*Height: *//p' <<<"$geometry")
    bw=$(sed -n 's/.*Border width: *//p' <<<"$geometry")
    # xwininfo's position is the border's outer corner; the outer size has frame and border.
    ow=$((w + 2 * bw + l + r)) oh=$((h + 2 * bw + t + b))
    want_x=$(((1024 - ow) / 2 + l)) want_y=$(((768 - t - oh) / 2 + t))
    [ "$x,$y" == "$want_x,$want_y" ] && ok || fail "centred at $x,$y, expected $want_x,$want_y"

    # The position remembered and restored (outer rectangle in twips, 15 per pixel).
    "$bin" --app x11test --app-path "$work" call saveWindowPos "$hwnd" frmTest
    grep -q "^Left=$(((x - l) * 15))" "$work/x11test.ini" && ok || fail "saved: $(tr '\n' ' ' <"$work/x11test.ini")"
    xdotool windowmove "$hwnd" 30 20
    sleep 0.3
    "$bin" --app x11test --app-path "$work" call loadWindowPos "$hwnd" frmTest
    sleep 0.3
    back=$(xwininfo -id "$hwnd" | sed -n 's/.*Absolute upper-left X: *//p')
    [ "$back" == "$x" ] && ok || fail "restored at x $back, expected $x"
    rm -f "$work/x11test.ini"
    if [ $mode = jwm ]; then
        xprop -id "$hwnd" _NET_WM_STATE | grep -q _NET_WM_STATE_ABOVE && ok ||
            fail "not _NET_WM_STATE_ABOVE"
        [ "$t" -gt "$b" ] && ok || fail "no title in the frame extents ($l $r $t $b)"
        expect frame-size "$b" vkrGetFrameSize "$hwnd"
    else
        expect frame-size 0 vkrGetFrameSize "$hwnd"
    fi

    expect internal-size "$(printf "tSize.CX = %d&\ntSize.CY = %d&" $((w * 15)) $((h * 15)))" \
        vkrGetInternalFormSize "$hwnd" 0
    expect clip-cursor "" vkrClipCursor "$hwnd"
    "$bin" call vkrRoundWindow "$hwnd" 20 20 >/dev/null
    xwininfo -shape -id "$hwnd" | grep -q 'Window shape extents' && ok || fail "not shaped"

    xdotool keydown Escape
    expect key-down True vkrIsKeyDown 27
    xdotool keyup Escape
    expect key-up False vkrIsKeyDown 27
    xdotool mousedown 1
    expect left-button True vkrIsMouseButtonDown 1
    expect middle-is-key-3 False vkrIsMouseButtonDown 4
    xdotool mouseup 1

    # Closed a second into the wait: the wait sees it within a second.
    (
        sleep 1
        kill "$xm"
        now >"$work/closed"
    ) &
    result=$("$bin" call vkrWaitForClassFinished Xmessage "*" 10)
    ended=$(now)
    wait "$xm" 2>/dev/null
    [ "$result" == True ] && ok || fail "vkrWaitForClassFinished gave '$result'"
    late=$(awk -v a="$ended" -v b="$(cat "$work/closed")" 'BEGIN { printf "%.3f", a - b }')
    awk -v d="$late" 'BEGIN { exit !(d <= 1.0) }' && ok || fail "finished wait ended $late s after the close"
    echo "[$mode] vkrWaitForClassFinished returned $late s after the window closed"
    expect gone 0 vkrFindWindow -1 Xmessage "*"
    if [ -n "$wm" ]; then
        kill -9 "$wm"
        wait "$wm" 2>/dev/null
    fi
done

echo "x11 windows: $passed passed, $failed failed"
[ "$failed" -eq 0 ]

# Sourced by the scripts that need an X display of their own: starts Xvfb on a free display
# (Xvfb picks it and reports it through -displayfd), a window manager where asked, and stops
# both by their process ids when the script exits.
#
#   . tests/ui/xvfb.sh
#   xvfb_start || exit 77      # 77: no Xvfb here; the caller reports the skip
#   wm_start                   # jwm, with Alt+F4 closing a window through WM_DELETE_WINDOW
#   wm_stop
xvfb_pids=()
xvfb_dir=$(mktemp -d)
trap 'xvfb_stop_all' EXIT

xvfb_stop_all() {
    local pid
    for pid in "${xvfb_pids[@]}"; do
        kill -KILL "$pid" 2>/dev/null
        wait "$pid" 2>/dev/null
    done
    xvfb_pids=()
    rm -rf "$xvfb_dir"
}

xvfb_start() {
    if ! command -v Xvfb >/dev/null; then
        echo "SKIP: Xvfb is not installed (apt-get install xvfb)"
        return 1
    fi
    local geometry=${1:-1024x768x24}
    Xvfb -displayfd 3 -screen 0 "$geometry" -nolisten tcp -dpi 96 3>"$xvfb_dir/display" \
        >"$xvfb_dir/xvfb.log" 2>&1 &
    xvfb_pids+=($!)
    local i
    for i in $(seq 100); do
        [ -s "$xvfb_dir/display" ] && break
        sleep 0.05
    done
    if [ ! -s "$xvfb_dir/display" ]; then
        echo "SKIP: Xvfb did not start: $(head -c 300 "$xvfb_dir/xvfb.log")"
        return 1
    fi
    export DISPLAY=":$(head -n 1 "$xvfb_dir/display")"
    # Qt warns on every start without it.
    export XDG_RUNTIME_DIR="$xvfb_dir/runtime"
    mkdir -p -m 700 "$XDG_RUNTIME_DIR"
    unset WAYLAND_DISPLAY QT_QPA_PLATFORM
}

wm_pid=
wm_start() {
    command -v jwm >/dev/null || return 1
    # No tray, no clock, no menus: only frames, focus and the close key.
    cat >"$xvfb_dir/jwmrc" <<'JWM'
<?xml version="1.0"?>
<JWM>
  <FocusModel>click</FocusModel>
  <Key mask="A" key="F4">close</Key>
</JWM>
JWM
    jwm -f "$xvfb_dir/jwmrc" >"$xvfb_dir/jwm.log" 2>&1 &
    wm_pid=$!
    xvfb_pids+=("$wm_pid")
    # Ready once it owns the root window's SubstructureRedirect, shown by its check window.
    local i
    for i in $(seq 100); do
        xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id' && return 0
        sleep 0.05
    done
    return 1
}

wm_stop() {
    [ -n "$wm_pid" ] || return 0
    # jwm ignores SIGTERM.
    kill -KILL "$wm_pid" 2>/dev/null
    wait "$wm_pid" 2>/dev/null
    wm_pid=
}

# Waits until a window with that exact title is mapped and prints its id.
window_wait() {
    local title=$1 id i
    for i in $(seq 200); do
        id=$(xdotool search --onlyvisible --name "^${title}\$" 2>/dev/null | head -n 1)
        if [ -n "$id" ]; then
            echo "$id"
            return 0
        fi
        sleep 0.05
    done
    return 1
}

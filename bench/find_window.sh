#!/usr/bin/env bash
# Times `velkor6 call vkrFindWindow` for a caption no window has against
# `xdotool search --name` for the same caption, over 1,000 top-level windows on a private Xvfb,
# and prints both times (the best of the runs, whole program runs each).
#
#   bench/find_window.sh [build folder] [runs]
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$root/build/default}
runs=${2:-10}
cli=$build/tools/velkor6/velkor6
maker=$build/bench/velkor6_many_windows
for program in "$cli" "$maker"; do
    [[ -x $program ]] || { echo "$program not found; build velkor6_cli and velkor6_many_windows" >&2; exit 2; }
done
command -v Xvfb >/dev/null && command -v xdotool >/dev/null ||
    { echo "Xvfb and xdotool are needed" >&2; exit 2; }

work=$(mktemp -d)
pids=()
cleanup() {
    # The window maker first, then the server it talks to.
    for ((i = ${#pids[@]} - 1; i >= 0; i--)); do
        kill "${pids[i]}" 2>/dev/null && wait "${pids[i]}" 2>/dev/null
    done
    rm -rf "$work"
}
trap cleanup EXIT
Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$work/display" >/dev/null 2>&1 &
pids+=($!)
for _ in $(seq 50); do [[ -s $work/display ]] && break; sleep 0.1; done
export DISPLAY=:$(cat "$work/display")

mkfifo "$work/in"
"$maker" 1000 <"$work/in" >"$work/out" &
pids+=($!)
exec 4>"$work/in"
for _ in $(seq 100); do grep -q ready "$work/out" 2>/dev/null && break; sleep 0.1; done

best() { # command...: the shortest wall time of $runs runs, in milliseconds
    local best=999999 start end ms
    for _ in $(seq "$runs"); do
        start=$(date +%s%N)
        "$@" >/dev/null || true
        end=$(date +%s%N)
        ms=$(((end - start) / 1000000))
        ((ms < best)) && best=$ms
    done
    echo "$best"
}

windows=$(xdotool search --class BenchWindow | wc -l)
found=$("$cli" call vkrFindWindow -1 "*" "no such window")
velkor=$(best "$cli" call vkrFindWindow -1 "*" "no such window")
xdo=$(best xdotool search --name "no such window")
echo "windows: $windows top-level BenchWindow windows; vkrFindWindow found $found"
echo "velkor6 vkrFindWindow: ${velkor} ms"
echo "xdotool search --name: ${xdo} ms"
exec 4>&-

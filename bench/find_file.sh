#!/usr/bin/env bash
# Times `velkor6 call vkrFindFile` against `find -iname -print -quit` on a tree of 100,000 files
# and prints both times and their ratio.
#
#   bench/find_file.sh [path/to/velkor6] [runs]
#
# The tree holds 100 folders of 10 folders of 100 files each. The one file matching the pattern
# lies in the leaf folder that find visits last, so that both programs walk nearly the whole
# tree (both go depth first in the order the file system lists the folders).
set -euo pipefail

root=$(cd "$(dirname "$0")/.." && pwd)
cli=${1:-}
runs=${2:-10}
if [[ -z $cli ]]; then
    for candidate in "$root"/build/default/tools/velkor6/velkor6 "$root"/build/*/tools/velkor6/velkor6; do
        if [[ -x $candidate ]]; then
            cli=$candidate
            break
        fi
    done
fi
if [[ -z $cli || ! -x $cli ]]; then
    echo "velkor6 program not found; build it or pass its path" >&2
    exit 2
fi

tree=$(mktemp -d "${TMPDIR:-/tmp}/velkor6-find-XXXXXX")
trap 'rm -rf "$tree"' EXIT

echo "building 100,000 files in $tree ..." >&2
for a in $(seq -w 0 99); do
    for b in $(seq -w 0 9); do
        mkdir -p "$tree/d$a/e$b"
    done
done
for a in $(seq -w 0 99); do
    (cd "$tree/d$a" && for b in e?; do (cd "$b" && touch f{000..099}.txt); done)
done
last=$(find "$tree" -mindepth 2 -type d | tail -n 1)
rm "$last/f099.txt"
touch "$last/Needle-42.BIN"
pattern='needle-*.bin'

now() { date +%s%N; }

# Mean wall time in milliseconds of runs calls of a command, after one warm-up call.
time_it() {
    "$@" >/dev/null
    local start end
    start=$(now)
    for ((i = 0; i < runs; i++)); do
        "$@" >/dev/null
    done
    end=$(now)
    echo $(((end - start) / runs / 1000))
}

found=$("$cli" call vkrFindFile "$pattern" "$tree")
expected=$(find "$tree" -iname "$pattern" -print -quit)
if [[ $found != "$expected" ]]; then
    echo "vkrFindFile found '$found', find found '$expected'" >&2
    exit 1
fi

if command -v hyperfine >/dev/null; then
    hyperfine --warmup 1 --runs "$runs" \
        "'$cli' call vkrFindFile '$pattern' '$tree'" \
        "find '$tree' -iname '$pattern' -print -quit"
fi

ours=$(time_it "$cli" call vkrFindFile "$pattern" "$tree")
theirs=$(time_it find "$tree" -iname "$pattern" -print -quit)
echo "vkrFindFile: $((ours / 1000)).$(printf %03d $((ours % 1000))) ms (mean of $runs)"
echo "find:        $((theirs / 1000)).$(printf %03d $((theirs % 1000))) ms (mean of $runs)"
awk -v a="$ours" -v b="$theirs" 'BEGIN { printf "ratio vkrFindFile / find: %.2f\n", a / b }'

#!/usr/bin/env bash
# The time from a message box's call to its window being mapped, on an Xvfb display of its own
# without a window manager: the first box of a process (which loads Qt) and later ones, then
# whole programs from their start (velkor6 and zenity --question) for comparison. Medians of RUNS.
#
#   bench/dialog_map.sh [BUILD_DIR] [RUNS]     (default build/default, 10)
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1
build=${1:-build/default}
runs=${2:-10}
bin=$build/tools/velkor6
if [ ! -x "$bin/velkor6_dialog_map" ]; then
    echo "dialog_map: build $bin/velkor6_dialog_map first (preset default, target velkor6_dialog_map)" >&2
    exit 1
fi
. tests/ui/xvfb.sh
xvfb_start || exit 1

median() { sort -n | awk '{ v[NR] = $1 } END { if (NR) print v[int((NR + 1) / 2)]; else print "-" }'; }

first=() later=() cli=() zen=()
for _ in $(seq "$runs"); do
    lines=$("$bin/velkor6_dialog_map" calls 5) || exit 1
    first+=("$(awk '$1 == "first" { print $2 }' <<<"$lines")")
    later+=($(awk '$1 == "later" { print $2 }' <<<"$lines"))
    cli+=("$("$bin/velkor6_dialog_map" exec "$bin/velkor6" call vkrMsgBox "Save changes?" "x" 4 |
              awk '$1 == "exec" { print $2 }')")
    if command -v zenity >/dev/null; then
        zen+=("$("$bin/velkor6_dialog_map" exec zenity --question --text "Save changes?" 2>/dev/null |
                  awk '$1 == "exec" { print $2 }')")
    fi
done
printf 'first box of a process (loads Qt): %s ms\n' "$(printf '%s\n' "${first[@]}" | median)"
printf 'later box in the same process:     %s ms\n' "$(printf '%s\n' "${later[@]}" | median)"
printf 'velkor6 program, start to box:     %s ms\n' "$(printf '%s\n' "${cli[@]}" | median)"
printf 'zenity --question, start to box:   %s ms\n' "$(printf '%s\n' "${zen[@]}" | median)"

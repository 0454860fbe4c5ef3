#!/usr/bin/env bash
# Runs the libFuzzer harnesses of the fuzz preset, each for SECONDS on a copy of its seed corpus
# in a temporary folder, and fails when one finds a crash, a leak, a hang or a sanitizer report.
# The input that shows a finding is kept in build/fuzz/findings.
#
#   scripts/fuzz.sh SECONDS [HARNESS ...]      # all harnesses when none is named
#
# FUZZ_FLAGS adds libFuzzer options (for a long run: -fork=1 -ignore_crashes=1 keeps going after
# a finding), FUZZ_BIN names another folder of the programs (a copy that a rebuild leaves alone),
# FUZZ_VERBOSE=1 shows libFuzzer's whole output.
set -uo pipefail
cd "$(dirname "$0")/.." || exit 1

seconds=${1:?usage: scripts/fuzz.sh SECONDS [HARNESS ...]}
shift
harnesses=("$@")
if [ ${#harnesses[@]} -eq 0 ]; then
    for dir in fuzz/corpus/*/; do
        harnesses+=("$(basename "$dir")")
    done
fi

findings=build/fuzz/findings
mkdir -p "$findings"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

failed=()
for name in "${harnesses[@]}"; do
    program=${FUZZ_BIN:-build/fuzz/fuzz}/fuzz_$name
    if [ ! -x "$program" ]; then
        echo "fuzz: $program is missing: build the fuzz preset first" >&2
        failed+=("$name")
        continue
    fi
    mkdir -p "$work/$name/corpus" "$work/$name/artifacts"
    cp -r "fuzz/corpus/$name/." "$work/$name/corpus/"
    echo "== fuzz $name (${seconds}s)"
    # A hang is an input that takes more than 10 seconds; memory beyond 2 GB is a finding too.
    # shellcheck disable=SC2086
    "$program" "$work/$name/corpus" -max_total_time="$seconds" -timeout=10 -rss_limit_mb=2048 \
        -print_final_stats=1 -artifact_prefix="$work/$name/artifacts/" ${FUZZ_FLAGS:-} \
        >"$work/$name/log" 2>&1
    status=$?
    if [ "${FUZZ_VERBOSE:-0}" = 1 ]; then
        cat "$work/$name/log"
    else
        grep -E '^(stat::|#[0-9]+.*DONE|Done [0-9]+ runs)' "$work/$name/log" || true
    fi
    if [ "$status" -ne 0 ] || [ -n "$(ls -A "$work/$name/artifacts")" ]; then
        failed+=("$name")
        tail -n 60 "$work/$name/log"
        cp "$work/$name/artifacts/"* "$findings/" 2>/dev/null
        echo "fuzz: $name found a fault (status $status); inputs in $findings" >&2
    fi
done

if [ ${#failed[@]} -gt 0 ]; then
    echo "fuzz: findings in ${failed[*]}" >&2
    exit 1
fi

#!/usr/bin/env bash
# The cross-built unit tests, run under Wine, less those known_failures.txt lists. Wine exits
# with 0 even when the program crashed, so the run must also end with gtest's summary.
# usage: run_unit_tests.sh BUILD_DIR TEST_EXE [GTEST_ARGS...]
set -u
build=$1
exe=$2
shift 2
here=$(dirname "$0")
. "$here/wine_env.sh" "$build" "$exe"

excluded=$(sed -e 's/#.*//' -e 's/[[:space:]]//g' "$here/known_failures.txt" | grep -v '^$' |
           paste -sd: -)
log=$(mktemp)
trap 'rm -f "$log"' EXIT
wine "$exe" --gtest_brief=1 ${excluded:+--gtest_filter=-$excluded} "$@" >"$log" 2>&1
status=$?
tr -d '\r' <"$log"
if ! grep -q '^\[  PASSED  \]' "$log"; then
    echo "the unit tests did not run to their end"
    exit 1
fi
exit $status

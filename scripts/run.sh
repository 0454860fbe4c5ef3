#!/usr/bin/env bash
# Builds the library and its command-line program, then feeds it the example calls.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target velkor6_cli
# The tour's last call raises an error to show how one is reported, which makes the status 1;
# a line the program cannot read would make it 2.
status=0
build/default/tools/velkor6/velkor6 --typed < examples/tour.vb || status=$?
[ "$status" -le 1 ]

#!/usr/bin/env bash
# Builds the library and its command-line program, then feeds it the example calls.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh
cmake --preset default >/dev/null
cmake --build --preset default --target velkor6_cli
build/default/tools/velkor6/velkor6 --typed < examples/tour.vb

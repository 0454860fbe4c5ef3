#!/usr/bin/env bash
# Builds and runs every test: the default preset, then the sanitizer preset.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/deps.sh
for preset in default asan; do
    echo "== $preset"
    cmake --preset "$preset" >/dev/null
    cmake --build --preset "$preset"
    ctest --preset "$preset" -j2
done

#!/usr/bin/env bash
# The cross-built unit tests, run under Wine.
# usage: run_unit_tests.sh BUILD_DIR TEST_EXE [GTEST_ARGS...]
set -u
build=$1
exe=$2
shift 2
. "$(dirname "$0")/wine_env.sh" "$build"
wine "$exe" --gtest_brief=1 "$@"

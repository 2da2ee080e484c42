#!/usr/bin/env bash
# Builds the store-reading benchmark in release mode and runs it; it prints its table.
#   bench/store/run.sh [runs]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
scripts/deps.sh test
build=build/bench
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j 2 --target bench_store_read
"$build/bench/store/bench_store_read" "$@"

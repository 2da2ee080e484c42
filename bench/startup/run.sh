#!/usr/bin/env bash
# Builds the application and the start-up benchmark in release mode and runs it; it prints its
# table.   bench/startup/run.sh [runs]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
scripts/deps.sh test
build=build/bench
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j 2 --target bench_startup tarnic-pro
cd "$build/bench/startup"
exec ./bench_startup "$@"

#!/usr/bin/env bash
# Builds the start-up benchmark (the app as main builds it, and the bare Qt program it is measured
# against) in release mode and runs it under its own Xvfb; it prints its table.
#   bench/startup/run.sh [runs]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
scripts/deps.sh test
build=build/bench
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j 2 --target bench_startup
exec "$build/bench/startup/bench_startup" "$@"

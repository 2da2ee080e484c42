#!/usr/bin/env bash
# Builds the remapper benchmark in release mode and runs it; it prints its table.
#   bench/remapper/run.sh [rounds] [presses per round] [spacing ms]
#                         [long-run presses] [long-run spacing ms]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
scripts/deps.sh test
build=build/bench
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
cmake --build "$build" -j 2 --target bench_remapper_latency bench_remapper_floor \
    tarnic-pro tarnic_x11_keylog
"$build/bench/remapper/bench_remapper_latency" "$@"

#!/usr/bin/env bash
# Installs what is missing, builds the application and launches it on its embedded defaults.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
scripts/deps.sh run

build=build/run
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARNIC_BUILD_TESTS=OFF -DTARNIC_BUILD_BENCH=OFF >/dev/null
cmake --build "$build" -j "$(nproc)" --target tarnic-pro
exec "$build/src/app/tarnic-pro" "$@"

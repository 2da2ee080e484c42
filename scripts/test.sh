#!/usr/bin/env bash
# Installs what is missing, checks the formatting, builds with AddressSanitizer and
# UndefinedBehaviorSanitizer, runs every test, then the fuzz tier (scripts/fuzz.sh).
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
scripts/deps.sh test

build=build/test
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Debug -DTARNIC_SANITIZE=ON >/dev/null
# Formatting first: a quick check that names every file clang-format would change.
cmake --build "$build" --target format-check
cmake --build "$build" -j "$(nproc)"

export QT_QPA_PLATFORM=offscreen
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0
export LSAN_OPTIONS=suppressions=$top/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1
cd "$build"
ctest --output-on-failure --timeout 600 -j "$(nproc)"

# The fuzz tier: a clang tree of its own, each target for its share of 30 s (see the README).
"$top/scripts/fuzz.sh" 30

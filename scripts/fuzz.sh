#!/usr/bin/env bash
# Builds the libFuzzer targets with clang in a tree of their own (build/fuzz) and runs each one
# for its share of the given time, seeded, starting from a copy of its corpus in tests/fuzz/corpus.
#   scripts/fuzz.sh            30 s in all (what scripts/test.sh runs)
#   scripts/fuzz.sh 600        a longer run: 600 s in all
#   scripts/fuzz.sh 600 fuzz_store    one target only, for all of the time
# A crash, a sanitizer report, a leak, a timeout or a broken promise of a target fails the run;
# the input that caused it is kept in build/fuzz/findings/<target>/ and named in the output.
# The seed files are never written: the corpus grows in a temporary copy, removed at the end.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"

total=${1:-30}
shift || true
targets=("$@")
[ ${#targets[@]} -gt 0 ] || targets=(fuzz_import fuzz_store fuzz_version_reply fuzz_options)
each=$((total / ${#targets[@]}))
[ "$each" -ge 1 ] || each=1

build=build/fuzz
# -O1 keeps the runs fast enough while the asserts stay in.
CC=clang CXX=clang++ cmake -S . -B "$build" -DTARNIC_BUILD_FUZZ=ON -DTARNIC_BUILD_TESTS=OFF \
    -DTARNIC_BUILD_BENCH=OFF -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS_DEBUG="-O1 -g" >/dev/null
cmake --build "$build" -j "$(nproc)" --target "${targets[@]}"

# In memory where there is /dev/shm: the options target syncs a file for every input, and a sync to
# a disk costs more than the rest of the run.
work=$(mktemp -d -p /dev/shm 2>/dev/null || mktemp -d)
trap 'rm -rf "$work"' EXIT
export TMPDIR=$work
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=0:allocator_may_return_null=1
export LSAN_OPTIONS=suppressions=$top/tests/lsan.supp:print_suppressions=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

# The words of each input's format (tests/fuzz/dict): the libraries that parse them are not
# instrumented, so coverage alone would not lead the fuzzer to them.
dictionary() {
    case $1 in
    fuzz_import) echo customkeys ;;
    fuzz_options) echo ini ;;
    *) echo plist ;;
    esac
}

failed=()
for target in "${targets[@]}"; do
    corpus=$work/$target
    findings=$top/$build/findings/$target
    mkdir -p "$findings"
    cp -r "tests/fuzz/corpus/$target" "$corpus"
    echo "== $target: ${each} s from $(ls "$corpus" | wc -l) seed files"
    # -seed fixes the sequence of inputs, so two runs try the same ones in the same order (a
    # run of a given time covers a prefix of that sequence, longer on a faster machine).
    if ! "$build/tests/fuzz/$target" -seed=1 -max_total_time="$each" -timeout=10 \
        -rss_limit_mb=2048 -print_final_stats=1 -artifact_prefix="$findings/" \
        -dict="tests/fuzz/dict/$(dictionary "$target").dict" \
        "$corpus" >"$work/$target.log" 2>&1; then
        failed+=("$target")
        cat "$work/$target.log"
        echo "== $target FOUND A FAULT; input kept in $findings/" >&2
    else
        grep -E '^stat::number_of_executed_units|^Done' "$work/$target.log" || true
        echo "== $target: corpus now $(ls "$corpus" | wc -l) files, no finding"
    fi
done

if [ ${#failed[@]} -gt 0 ]; then
    echo "Fuzzing found faults in: ${failed[*]}" >&2
    exit 1
fi

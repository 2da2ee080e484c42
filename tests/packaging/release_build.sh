#!/usr/bin/env bash
# Configures and builds a Release tree of the program from the same sources and site settings as
# the test build, so that the package is made from what players get: optimised, without
# sanitizers, tests or benchmarks. Incremental when the tree exists already.
#   release_build.sh SOURCE_DIR RELEASE_DIR SITE_URL SUPPORT_EMAIL
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
source=$1 release=$2 site_url=$3 email=$4

cmake -S "$source" -B "$release" -DCMAKE_BUILD_TYPE=Release -DTARNIC_SANITIZE=OFF \
    -DTARNIC_BUILD_TESTS=OFF -DTARNIC_BUILD_BENCH=OFF \
    -DTARNIC_SITE_URL="$site_url" -DTARNIC_SUPPORT_EMAIL="$email" >/dev/null ||
    fail "cmake cannot configure the Release tree in $release"
cmake --build "$release" -j "$(nproc)" >/dev/null || fail "the Release tree in $release does not build"
grep -qx 'CMAKE_BUILD_TYPE:STRING=Release' "$release/CMakeCache.txt" || fail "$release is not a Release tree"
echo "Release tree built in $release"

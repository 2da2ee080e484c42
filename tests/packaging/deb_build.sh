#!/usr/bin/env bash
# Builds the Debian package from the build tree with cpack, into a fresh output folder.
#   deb_build.sh BUILD_DIR OUT_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
build=$1 out=$2

rm -rf "$out"
cpack --config "$build/CPackConfig.cmake" -G DEB -B "$out" || fail "cpack could not build the package"
shopt -s nullglob
debs=("$out"/tarnic-pro_*.deb)
[ ${#debs[@]} -eq 1 ] || fail "expected one tarnic-pro_*.deb in $out, found ${#debs[@]}"
echo "built ${debs[0]}"

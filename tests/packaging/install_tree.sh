#!/usr/bin/env bash
# Installs the build into a fresh prefix with `cmake --install` and checks the installed tree.
#   install_tree.sh BUILD_DIR PREFIX APP_ID "ICON_SIZES"
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
build=$1 prefix=$2 id=$3 sizes=$4

rm -rf "$prefix"
cmake --install "$build" --prefix "$prefix" || fail "cmake --install into $prefix failed"
check_desktop_tree "$prefix" "$id" "$sizes"
module=$(check_site_module "$prefix")
echo "site module: $module"
echo "installed tree in $prefix is complete"

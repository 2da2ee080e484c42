#!/usr/bin/env bash
# Runs lintian on the package made by deb_build.sh and fails on any error or warning. Overrides
# the package ships (each with its reason) are honoured; informational tags are shown, not fatal.
#   deb_lintian.sh DEB_DIR
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
out=$1

command -v lintian >/dev/null || fail "lintian is not installed (scripts/deps.sh test installs it)"
shopt -s nullglob
debs=("$out"/tarnic-pro_*.deb)
[ ${#debs[@]} -eq 1 ] || fail "expected one tarnic-pro_*.deb in $out, found ${#debs[@]}"

# lintian's own exit code depends on its --fail-on setting; read its tags instead, whole.
report=$(lintian --info --fail-on none "${debs[0]}" 2>&1) || fail "lintian could not check ${debs[0]}"
echo "$report"
bad=$(grep -E '^[EW]: ' <<<"$report" || true)
[ -z "$bad" ] || fail "lintian reports errors or warnings:
$bad"
echo "lintian: no errors, no warnings"

#!/usr/bin/env bash
# Installs the Debian packages that the given purpose needs and that are not installed yet.
# Safe to run again: it installs nothing when nothing is missing.
#   scripts/deps.sh run    build and run the application
#   scripts/deps.sh test   also build and run every test
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)

lists=("$here/packages/run.txt")
[ "${1:-run}" = test ] && lists+=("$here/packages/test.txt")

missing=()
while read -r pkg; do
    [ -z "$pkg" ] && continue
    status=$(dpkg-query -W -f='${db:Status-Status}' "$pkg" 2>/dev/null || true)
    [ "$status" = installed ] || missing+=("$pkg")
done < <(sed -e 's/#.*//' -e 's/[[:space:]]//g' "${lists[@]}")

[ ${#missing[@]} -eq 0 ] && exit 0

if [ "$(id -u)" -eq 0 ]; then
    as_root=()
elif command -v sudo >/dev/null 2>&1; then
    as_root=(sudo)
else
    echo "These packages are missing and neither root nor sudo is available: ${missing[*]}" >&2
    exit 1
fi
echo "Installing: ${missing[*]}"
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get update -qq
"${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y -qq --no-install-recommends "${missing[@]}"

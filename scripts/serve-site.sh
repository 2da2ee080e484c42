#!/usr/bin/env bash
# Serves the maker's site (site/: the home page and the version-support file) on loopback.
#   scripts/serve-site.sh [PORT]    default 8765; stop it with Ctrl+C
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
port=${1:-8765}
exec python3 -u "$top/tests/support/site_server.py" "$port" "$top/site"

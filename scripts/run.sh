#!/usr/bin/env bash
# Installs what is missing, builds the application against a copy of the maker's site served on
# loopback, launches it, and stops the site again when the application ends.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
scripts/deps.sh run

# The first free port from 8765 upwards.
port=$(python3 - <<'PY'
import socket
for port in range(8765, 8865):
    with socket.socket() as probe:
        try:
            probe.bind(("127.0.0.1", port))
        except OSError:
            continue
        print(port)
        break
PY
)
if [ -z "$port" ]; then
    echo "No free port between 8765 and 8864 for the site" >&2
    exit 1
fi

build=build/run
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARNIC_BUILD_TESTS=OFF -DTARNIC_BUILD_BENCH=OFF \
    -DTARNIC_SITE_URL="http://127.0.0.1:$port" >/dev/null
cmake --build "$build" -j "$(nproc)" --target tarnic-pro

scripts/serve-site.sh "$port" >"$build/site.log" 2>&1 &
site=$!
trap 'kill "$site" 2>/dev/null || true; wait "$site" 2>/dev/null || true' EXIT
# The version check at start needs the site up: wait (bounded) until it accepts connections.
for _ in $(seq 100); do
    if (exec 3<>"/dev/tcp/127.0.0.1/$port") 2>/dev/null; then
        break
    fi
    kill -0 "$site" 2>/dev/null || { echo "The site did not start:" >&2; cat "$build/site.log" >&2; exit 1; }
    sleep 0.05
done

status=0
"$build/src/app/tarnic-pro" "$@" || status=$?
exit "$status"

#!/usr/bin/env bash
# Builds the mapping benchmark in release mode and runs it in sway nested on a private Xvfb; it
# prints its tables.
#   bench/mapping/run.sh [presses (20)] [samples (60)]
set -euo pipefail
top=$(cd "$(dirname "$0")/../.." && pwd)
cd "$top"
scripts/deps.sh test
# TARNIC_BENCH_BUILD names an existing build tree to use as it is configured (the Wine figures
# do not depend on the build type); without it, a release tree of its own.
if [ -n "${TARNIC_BENCH_BUILD:-}" ]; then
    build=$TARNIC_BENCH_BUILD
else
    build=build/bench
    cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=Release >/dev/null
fi
cmake --build "$build" -j 2 --target bench_mapping_notify tarnic_x11_harness \
    tarnic_wayland_keysym_log tarnic_wine_vkeylog

set +e
# shellcheck source=../../tests/support/xvfb-session.sh
. tests/support/xvfb-session.sh
# shellcheck source=../../tests/support/sway-session.sh
. tests/support/sway-session.sh
trap 'sway_stop; session_stop' EXIT
xvfb_start 1280x800x24 || exit 1
sway_start || { echo "the Wayland session did not start: $SWAY_ERROR" >&2; exit 1; }
sway_is_xwayland "$SWAY_XDISPLAY" || { echo "$SWAY_XDISPLAY is not XWayland" >&2; exit 1; }
echo "sway on $DISPLAY, XWayland $SWAY_XDISPLAY"
outer=$DISPLAY
TARNIC_OUTER_DISPLAY=$outer DISPLAY=$SWAY_XDISPLAY SWAYSOCK=$SWAYSOCK \
    "$build/bench/mapping/bench_mapping_notify" "$@"

#!/usr/bin/env bash
# Refreshes the README's pictures, docs/screenshots/editor.png, docs/screenshots/inventory.png and
# docs/screenshots/inventory-azerty.png (the same panel with a French AZERTY layout active).
# Builds the application, starts it on a private Xvfb (with a window manager, for the window frame)
# against a loopback copy of the maker's site, on a fresh settings folder, drives the real window
# with xdotool as a player would, and crops screen shots taken with `import -window root`.
set -euo pipefail
top=$(cd "$(dirname "$0")/.." && pwd)
cd "$top"
scripts/deps.sh test
# shellcheck source=../tests/support/xvfb-session.sh
. tests/support/xvfb-session.sh

fail() {
    echo "screenshots: $*" >&2
    exit 1
}

# The first free loopback port from 18765 upwards, away from the run command's.
port=$(python3 - <<'PY'
import socket
for port in range(18765, 18865):
    with socket.socket() as probe:
        try:
            probe.bind(("127.0.0.1", port))
        except OSError:
            continue
        print(port)
        break
PY
)
[ -n "$port" ] || fail "no free port between 18765 and 18864 for the site"

build=build/screenshots
cmake -S . -B "$build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DTARNIC_BUILD_TESTS=OFF \
    -DTARNIC_BUILD_BENCH=OFF -DTARNIC_SITE_URL="http://127.0.0.1:$port" >/dev/null
cmake --build "$build" -j 2 --target tarnic-pro

scratch=$(mktemp -d)
pids=()
cleanup() {
    local pid
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null || true; done
    for pid in "${pids[@]}"; do wait "$pid" 2>/dev/null || true; done
    session_stop
    rm -rf "$scratch"
}
trap cleanup EXIT

"$top/scripts/serve-site.sh" "$port" >"$scratch/http.log" 2>&1 &
pids+=($!)
timeout 20 grep -q -m1 '^serving ' <(tail -n +1 -F --pid=$! "$scratch/http.log" 2>/dev/null) ||
    fail "the site did not start: $(cat "$scratch/http.log")"

xvfb_start 1280x900x24 || fail "Xvfb did not start"

export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home/.config XDG_RUNTIME_DIR=$scratch/run
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb

wm_start || fail "openbox did not start"

"$build/src/app/tarnic-pro" >"$scratch/app.log" 2>&1 &
pids+=($!)
window=$(timeout 60 xdotool search --sync --onlyvisible --name '^Tarnic Pro$' | awk 'NR == 1') ||
    fail "no Tarnic Pro window: $(cat "$scratch/app.log")"
xdotool windowactivate --sync "$window" windowmove --sync "$window" 40 40

# The window with its frame, on the screen: the client area grown by the frame extents that the
# window manager announces on it.
frame_geometry() {
    local X Y WIDTH HEIGHT x y w h left right top bottom
    read -r X Y WIDTH HEIGHT < <(xwininfo -id "$window" | awk '/Absolute upper-left X:/ { x = $4 }
        /Absolute upper-left Y:/ { y = $4 } /Width:/ { w = $2 } /Height:/ { h = $2 }
        END { print x, y, w, h }')
    read -r left right top bottom < <(xprop -id "$window" _NET_FRAME_EXTENTS |
        sed -n 's/.*= *//p' | tr -d ',')
    x=$((X - ${left:-0})) y=$((Y - ${top:-0}))
    w=$((WIDTH + ${left:-0} + ${right:-0})) h=$((HEIGHT + ${top:-0} + ${bottom:-0}))
    echo "${w}x${h}+${x}+${y}"
}

shot() { # shot OUTPUT CROP
    import -window root "$scratch/root.png"
    convert "$scratch/root.png" -crop "$2" +repage -strip "$1"
    echo "wrote $1 ($(identify -format '%wx%h' "$1"))"
}

# Window-relative click.
click() {
    xdotool mousemove --window "$window" --sync "$1" "$2" click 1
}

# The client area's place on the screen, for crops inside the window.
read -r cx cy < <(xwininfo -id "$window" | awk '/Absolute upper-left X:/ { x = $4 }
    /Absolute upper-left Y:/ { y = $4 } END { print x, y }')

# Qt paints after the event that changed a control; give it a moment before each shot.
settle() { sleep 0.7; }

# Points and areas below are window coordinates of the default 940x720 layout.
inventory_height=360
mkdir -p docs/screenshots

# The editor: every unit and hero ability laid out on Q W E R, a hero ability selected.
click 708 220        # Grid layout
click 100 64         # the table, first row
xdotool type --delay 80 "Holy L"
settle
shot docs/screenshots/editor.png "$(frame_geometry)"

# The inventory panel: slot 1 bound to Shift+Z.
click 707 364        # Slot 1
settle
click 782 478        # Shift
click 702 478        # the key pop-up opens
settle
xdotool type --delay 80 "Z"
xdotool key Return
settle
shot docs/screenshots/inventory.png "316x${inventory_height}+$((cx + 620))+$((cy + 280))"

# The same panel under a French AZERTY layout: the keys are named as it prints them, and the bound
# key, pressed in another program, shows its tap under the slots. xdotool types by keysym, so
# "shift+w" presses the key that prints W on AZERTY: the one the binding holds.
setxkbmap fr
xmessage -geometry +1000+760 -name tarnic-shot-peer "Another program" >/dev/null 2>&1 &
pids+=($!)
peer=$(timeout 20 xdotool search --sync --onlyvisible --classname tarnic-shot-peer | awk 'NR == 1') ||
    fail "no window to type into"
xdotool windowactivate --sync "$peer"
settle
xdotool key shift+w
settle
shot docs/screenshots/inventory-azerty.png "316x${inventory_height}+$((cx + 620))+$((cy + 280))"


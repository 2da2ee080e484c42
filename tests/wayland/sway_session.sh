#!/usr/bin/env bash
# The inventory keys in a Wayland session: sway nested on a private Xvfb, with its XWayland. The
# built application runs in it as an X client (through XWayland) and as a native Wayland client,
# one after the other. Slot 1 is bound to Z in its store. Keys are typed with XTest on the outer
# Xvfb, which is sway's keyboard: they reach the focused client through sway as a player's keys
# do. For each client kind:
#   - Z typed into the target gives keypad 7 there; an unbound key gives nothing;
#   - right after each switch of sway's layout (de, fr, us) the first Z still gives keypad 7;
#   - once the application is closed, its record on the root window is gone and no keycode holds
#     a keypad digit alone.
#   sway_session.sh APP SITE_DIR PORT KEYPAD_PROBE keylog KEYSYM_LOG
#       the target is an X client that logs keysyms
#   sway_session.sh APP SITE_DIR PORT KEYPAD_PROBE wine WINE VKEYLOG_EXE
#       the target is a Windows program run by Wine, which logs virtual keys
# Anything that keeps the session from running fails the test with the reason.
set -u
app=$1 site=$2 port=$3 keypad_probe=$4 target=$5
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"
# shellcheck source=../support/sway-session.sh
. "$here/../support/sway-session.sh"

work=$(mktemp -d)
cleanup() {
    [ -n "${TARGET_PID:-}" ] && kill "$TARGET_PID" 2>/dev/null
    [ -n "${APP_PID:-}" ] && kill "$APP_PID" 2>/dev/null
    [ -n "${SITE_PID:-}" ] && kill "$SITE_PID" 2>/dev/null
    [ -n "${WINESERVER:-}" ] && WINEPREFIX=$work/prefix timeout 20 "$WINESERVER" -k 2>/dev/null
    sway_stop
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "FAIL: $*" >&2
    for log in "$work"/*.out "$work"/*.err; do
        [ -s "$log" ] && { echo "--- $(basename "$log"):" >&2; tail -n 40 "$log" >&2; }
    done
    [ -n "${SWAY_RUNTIME:-}" ] && [ -s "$SWAY_RUNTIME.log" ] &&
        { echo "--- sway:" >&2; tail -n 20 "$SWAY_RUNTIME.log" >&2; }
    exit 1
}

# wait_until SECONDS WHAT COMMAND...: runs COMMAND until it succeeds, at most SECONDS.
wait_until() {
    local deadline=$((SECONDS + $1)) what=$2
    shift 2
    until "$@"; do
        [ $SECONDS -lt $deadline ] || fail "$what"
        sleep 0.05
    done
}

xvfb_start 1280x800x24 || fail "Xvfb did not start"
OUTER_DISPLAY=$DISPLAY
sway_start || fail "the Wayland session did not start: $SWAY_ERROR"
# The session under test really is XWayland inside sway, not the Xvfb it is drawn on.
sway_is_xwayland "$SWAY_XDISPLAY" || fail "$SWAY_XDISPLAY is not an XWayland display"
[ "$SWAY_XDISPLAY" != "$OUTER_DISPLAY" ] || fail "XWayland's display is the outer Xvfb's"
echo "sway on $OUTER_DISPLAY: Wayland $SWAY_WAYLAND, XWayland $SWAY_XDISPLAY"

python3 -u "$here/../support/site_server.py" "$port" "$site" >/dev/null 2>"$work/site.err" &
SITE_PID=$!
site_up() {
    kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
    python3 -c "import urllib.request; urllib.request.urlopen('http://127.0.0.1:$port/tn11.plist', timeout=1)" 2>/dev/null
}
wait_until 20 "the loopback site did not come up on port $port" site_up

# The application's store: slot 1 on Z (virtual key 6), no modifier.
mkdir -p "$work/config/Tarnic"
cat >"$work/config/Tarnic/Tarnic Pro.plist" <<'EOF'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>inventoryModel1</key>
	<array>
		<integer>1</integer>
		<integer>0</integer>
		<integer>6</integer>
	</array>
</dict>
</plist>
EOF
# The application's own runtime folder (sway's belongs to sway's user).
mkdir -m 0700 "$work/runtime"

# On XWayland, as its clients see it.
probe() { DISPLAY=$SWAY_XDISPLAY timeout 10 "$keypad_probe"; }
type_keys() { DISPLAY=$OUTER_DISPLAY xdotool key "$@" || fail "xdotool could not type $*"; }

# sway's view of a window: its shell ("xwayland" or "xdg_shell") by title.
window_shell() {
    sway_msg -t get_tree | python3 -c '
import json, sys
def walk(node):
    if node.get("name") == sys.argv[1] and node.get("shell"):
        return node["shell"]
    for child in node.get("nodes", []) + node.get("floating_nodes", []):
        found = walk(child)
        if found:
            return found
    return None
print(walk(json.load(sys.stdin)) or "")' "$1"
}

digits_held() { probe | grep -c '^digit '; }

keycodes_claimed() {
    local out
    out=$(probe) || return 1
    [ "$(grep -c '^digit ' <<<"$out")" -eq 6 ] && grep -q '^record ' <<<"$out"
}

start_app() { # CLIENT: x11 or wayland
    local client=$1
    local -a environment=(DISPLAY="$SWAY_XDISPLAY" XDG_CONFIG_HOME="$work/config"
        XDG_RUNTIME_DIR="$work/runtime")
    if [ "$client" = wayland ]; then
        environment+=(QT_QPA_PLATFORM=wayland WAYLAND_DISPLAY="$SWAY_WAYLAND")
        # A sanitized build: unwind allocations slowly, so that a leak inside Mesa's unloaded
        # driver still shows the Qt frame tests/lsan.supp names.
        [ -n "${ASAN_OPTIONS:-}" ] &&
            environment+=(ASAN_OPTIONS="$ASAN_OPTIONS:fast_unwind_on_malloc=0")
    else
        environment+=(QT_QPA_PLATFORM=xcb)
    fi
    env -u WAYLAND_DISPLAY "${environment[@]}" "$app" >"$work/app-$client.out" \
        2>"$work/app-$client.err" &
    APP_PID=$!
    app_shell() { [ -n "$(window_shell "Tarnic Pro")" ]; }
    wait_until 60 "no main window of the application ($client client) in sway" app_shell
    local shell
    shell=$(window_shell "Tarnic Pro")
    if [ "$client" = wayland ]; then
        [ "$shell" = xdg_shell ] || fail "the application is a $shell client, not a native Wayland one"
    else
        [ "$shell" = xwayland ] || fail "the application is a $shell client, not an X client"
    fi
    wait_until 30 "the application did not claim six keypad keycodes on XWayland" keycodes_claimed
    grep -q '^AXIsProcessTrusted true$' "$work/app-$client.out" ||
        fail "the application cannot observe keys on XWayland"
    kill -0 "$APP_PID" 2>/dev/null || fail "the application ended"
}

close_app() {
    sway_msg '[title="^Tarnic Pro$"] kill' >/dev/null || fail "sway could not close the application"
    local deadline=$((SECONDS + 20))
    while kill -0 "$APP_PID" 2>/dev/null; do
        [ $SECONDS -lt $deadline ] || fail "closing its window did not end the application"
        sleep 0.1
    done
    wait "$APP_PID"
    local status=$?
    APP_PID=
    [ "$status" -eq 0 ] || fail "the application ended with status $status"
    local out
    out=$(probe) || fail "the keypad probe failed"
    [ -z "$out" ] || fail "keypad keycodes left behind after the end: $out"
}

focus_target() { # CRITERIA NAME
    local name=$2
    sway_focus "$1" || fail "sway could not focus $name"
    focused() { [ "$(sway_focused_name)" = "$name" ]; }
    wait_until 10 "$name did not get the focus" focused
}

# --- X key logger ---------------------------------------------------------------------------
keylog_line_count() { wc -l <"$work/target.out"; }

# expect_keylog_tap FROM: after line FROM, Z arrives and then keypad 7, pressed and released,
# within 5 s.
expect_keylog_tap() {
    local from=$1
    tap_seen() {
        tail -n +"$((from + 1))" "$work/target.out" | awk '
            $1 == "press" && $2 == 52 { z = 1 }
            z && $1 == "press" && $3 == "KP_7" { p = 1 }
            p && $1 == "release" && $3 == "KP_7" { r = 1 }
            END { exit !(z && p && r) }'
    }
    wait_until 5 "Z did not give keypad 7 in the X client" tap_seen
}

# The layout sway's keyboard has now, by name ("German", "French", "English (US)").
active_layout() {
    sway_msg -t get_inputs | python3 -c '
import json, sys
print(next((i.get("xkb_active_layout_name") or "" for i in json.load(sys.stdin)
            if i.get("type") == "keyboard"), ""))'
}

run_keylog_target() {
    DISPLAY=$SWAY_XDISPLAY "$KEYSYM_LOG" --title "keysym log" >"$work/target.out" \
        2>"$work/target.err" &
    TARGET_PID=$!
    ready() { grep -q '^ready ' "$work/target.out"; }
    wait_until 20 "the key logger did not show its window" ready
    focus_target 'title="^keysym log$"' "keysym log"

    local from
    for _ in 1 2 3; do
        from=$(keylog_line_count)
        type_keys z
        expect_keylog_tap "$from"
    done
    # An unbound key gives no keypad key: X arrives and nothing else after it but its release.
    from=$(keylog_line_count)
    type_keys x z
    expect_keylog_tap "$from"
    tail -n +"$((from + 1))" "$work/target.out" | awk '
        $1 == "press" && $2 == 53 { x = 1; next }
        x && $1 == "press" && $2 == 52 { exit 0 }
        x && $1 == "press" { exit 1 }' || fail "an unbound key gave a keypad key"
    [ "$(tail -n +"$((from + 1))" "$work/target.out" | grep -c '^press [0-9]* KP_7$')" -eq 1 ] ||
        fail "one Z gave other than one keypad 7"

    # The layout is switched as a player does it; XWayland takes sway's new keymap and wipes the
    # keycodes. The first Z after the switch already counts.
    local layout name
    for layout in de fr us; do
        case $layout in de) name=German ;; fr) name=French ;; us) name="English (US)" ;; esac
        from=$(keylog_line_count)
        sway_set_layout "$layout" || fail "sway could not switch to layout $layout"
        type_keys z
        expect_keylog_tap "$from"
        [ "$(active_layout)" = "$name" ] ||
            fail "after switching to $layout sway's layout is $(active_layout), not $name"
        tail -n +"$((from + 1))" "$work/target.out" | awk '
            $1 == "mapping" { m = 1 } $1 == "press" && $3 == "KP_7" { exit !m }' ||
            fail "switching to $layout sent no keymap change to the X client before the tap"
    done
    # Every slot keycode is held again after the last switch.
    wait_until 10 "the keycodes were not claimed again after the layout switches" keycodes_claimed

    kill "$TARGET_PID" 2>/dev/null
    wait "$TARGET_PID" 2>/dev/null
    TARGET_PID=
}

# --- Windows program under Wine ---------------------------------------------------------------
wine_environment() {
    env -u WAYLAND_DISPLAY DISPLAY="$SWAY_XDISPLAY" WINEPREFIX="$work/prefix" WINEDEBUG=-all \
        WINEDLLOVERRIDES="mscoree=;mshtml=" "$@"
}

# A fresh prefix, made once for both client kinds. wineboot may fail on the very first run on a
# machine: it gets a second try, and its output goes into the failure message.
make_wine_prefix() {
    [ -d "$work/prefix" ] && return 0
    WINESERVER=$(dirname "$WINE")/wineserver
    local attempt
    for attempt in 1 2; do
        if wine_environment timeout 300 "$WINE" wineboot -i >"$work/wineboot.log" 2>&1; then
            return 0
        fi
        echo "wineboot attempt $attempt failed" >&2
        wine_environment timeout 20 "$WINESERVER" -k 2>/dev/null
    done
    fail "wineboot -i failed twice: $(tail -n 20 "$work/wineboot.log")"
}

# expect_wine_tap FROM: after line FROM, a key arrives and then VK_NUMPAD7 (103) with the keypad's
# scan code (71), not extended, pressed and released, within SECONDS (5 unless given).
expect_wine_tap() {
    local from=$1 seconds=${2:-5}
    wine_tap_seen() {
        # The Windows program ends its lines with CR LF.
        tail -n +"$((from + 1))" "$work/target.out" | tr -d '\r' | awk '
            $1 == "down" && $2 != 103 { k = 1 }
            k && $1 == "down" && $2 == 103 && $3 == 71 && $4 == 0 { p = 1 }
            p && $1 == "up" && $2 == 103 { r = 1 }
            END { exit !(k && p && r) }'
    }
    local deadline=$((SECONDS + seconds))
    until wine_tap_seen; do
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.05
    done
}

run_wine_target() {
    make_wine_prefix
    wine_environment "$WINE" "$VKEYLOG" >"$work/target.out" 2>"$work/target.err" &
    TARGET_PID=$!
    ready() { grep -q $'^ready\r\\?$' "$work/target.out"; }
    wait_until 120 "the Windows program did not start" ready
    vkeylog_mapped() { sway_msg -t get_tree | grep -q '"class": "vkeylog.exe"'; }
    wait_until 30 "no window of the Windows program in sway" vkeylog_mapped
    focus_target 'class="^vkeylog.exe$"' "virtual key log"

    # Wine takes in the claimed keycodes some time after it started: Z until its tap arrives as
    # VK_NUMPAD7, a bounded number of times.
    local from attempt arrived=
    for attempt in $(seq 40); do
        from=$(wc -l <"$work/target.out")
        type_keys z
        if expect_wine_tap "$from" 1; then
            arrived=yes
            break
        fi
    done
    [ -n "$arrived" ] || fail "the keypad tap never reached the Windows program as VK_NUMPAD7"
    echo "Wine knew the keycodes after $attempt Z"
    for _ in 1 2 3; do
        from=$(wc -l <"$work/target.out")
        type_keys z
        expect_wine_tap "$from" || fail "Z did not give VK_NUMPAD7 in the Windows program"
    done
    from=$(wc -l <"$work/target.out")
    type_keys x z
    expect_wine_tap "$from" || fail "Z after X did not give VK_NUMPAD7 in the Windows program"
    [ "$(tail -n +"$((from + 1))" "$work/target.out" | grep -c '^down 103 ')" -eq 1 ] ||
        fail "X and Z gave other than one VK_NUMPAD7"

    local layout
    for layout in de fr us; do
        from=$(wc -l <"$work/target.out")
        sway_set_layout "$layout" || fail "sway could not switch to layout $layout"
        type_keys z
        expect_wine_tap "$from" ||
            fail "the first Z after switching to $layout did not give VK_NUMPAD7 in the Windows program"
    done
    wait_until 10 "the keycodes were not claimed again after the layout switches" keycodes_claimed

    kill "$TARGET_PID" 2>/dev/null
    wait "$TARGET_PID" 2>/dev/null
    TARGET_PID=
}

case $target in
keylog) KEYSYM_LOG=$6 ;;
wine) WINE=$6 VKEYLOG=$7 ;;
*) fail "unknown target $target" ;;
esac

for client in x11 wayland; do
    [ "$(digits_held)" -eq 0 ] || fail "keypad keycodes held before the application started"
    start_app "$client"
    case $target in
    keylog) run_keylog_target ;;
    wine) run_wine_target ;;
    esac
    close_app
    echo "PASS: $client client: taps reached the $target target, also right after each layout" \
        "switch, and the keycodes were given back"
done

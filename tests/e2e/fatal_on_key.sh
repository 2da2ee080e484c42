#!/usr/bin/env bash
# The built application on a real X server with a real window manager, with a slot binding cut
# short in its store (two numbers where three belong). The window comes up as usual; the first
# key pressed in another program reaches that binding on the key thread, which must end the
# program: the reason goes to standard error, then shows in a message box over the window, and
# the application ends (SIGABRT) once the box is closed.
#   fatal_on_key.sh APP SITE_DIR PORT
set -u
app=$1 site=$2 port=$3
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"

work=$(mktemp -d)
cleanup() {
    for pid in "${APP_PID:-}" "${SITE_PID:-}" "${OTHER_PID:-}"; do
        [ -n "$pid" ] && kill -9 "$pid" 2>/dev/null
    done
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; echo "--- application output:" >&2; cat "$work/out" "$work/err" >&2; exit 1; }

xvfb_start || fail "Xvfb did not start"
wm_start || fail "openbox did not start"

python3 -u "$here/../support/site_server.py" "$port" "$site" 20 >/dev/null 2>"$work/site.log" &
SITE_PID=$!
deadline=$((SECONDS + 30))
until grep -q '^serving' "$work/site.log"; do
    [ $SECONDS -lt $deadline ] || fail "the loopback site did not come up on port $port"
    kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
    sleep 0.1
done

store="$work/config/Tarnic/Tarnic Pro.plist"
mkdir -p "$(dirname "$store")" "$work/runtime"
chmod 700 "$work/runtime"
cat >"$store" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict><key>inventoryModel1</key><array><integer>1</integer><integer>0</integer></array></dict>
</plist>
PLIST
line="Fatal error: Index out of range: inventory binding has 2 elements, element 2 was read"

XDG_CONFIG_HOME="$work/config" XDG_RUNTIME_DIR="$work/runtime" QT_QPA_PLATFORM=xcb \
    "$app" >"$work/out" 2>"$work/err" &
APP_PID=$!
main_window=$(wait_for_window "Tarnic Pro" 60) || fail "no main window appeared"
sleep 1
grep -q '^Fatal error:' "$work/err" && fail "the application ended before any key"

# Another program's window in front: keys typed into our own window are not the remapper's.
xmessage -title "another program" "keys go here" >/dev/null 2>&1 &
OTHER_PID=$!
other=$(wait_for_window "another program" 30) || fail "the other program's window did not appear"
xdotool windowactivate --sync "$other" >/dev/null 2>&1 || fail "could not activate the other window"
xdotool key a || fail "could not type"

deadline=$((SECONDS + 30))
box=
until [ -n "$box" ]; do
    [ $SECONDS -lt $deadline ] || fail "no box appeared after the key"
    kill -0 "$APP_PID" 2>/dev/null || fail "the application ended without showing a box"
    box=$(xdotool search --onlyvisible --pid "$APP_PID" 2>/dev/null | grep -vx "$main_window" | head -n 1)
    [ -n "$box" ] || sleep 0.1
done
grep -qxF "$line" "$work/err" || fail "standard error lacks the line: $line"
[ "$(grep -c '^Fatal error:' "$work/err")" -eq 1 ] || fail "not exactly one fatal line"
xprop -id "$box" _NET_WM_WINDOW_TYPE | grep -q _NET_WM_WINDOW_TYPE_DIALOG ||
    fail "the window is not a dialog: $(xprop -id "$box" _NET_WM_WINDOW_TYPE)"
sleep 1
kill -0 "$APP_PID" 2>/dev/null || fail "the application ended while the box was up"

xdotool windowactivate --sync "$box" >/dev/null 2>&1 || true
# OK closes the box on the key's press; the release may find the window gone.
xdotool key --window "$box" Return 2>/dev/null || true
deadline=$((SECONDS + 20))
while kill -0 "$APP_PID" 2>/dev/null; do
    [ $SECONDS -lt $deadline ] || fail "the application did not end after OK"
    sleep 0.1
done
wait "$APP_PID"
rc=$?
APP_PID=
[ "$rc" -eq 134 ] || fail "the application ended with status $rc, not by SIGABRT (134)"
grep -qxF "$line" "$work/err" || fail "standard error lacks the line in the end"
echo "PASS: a binding cut short ended the program from the key thread, with the line in a box"

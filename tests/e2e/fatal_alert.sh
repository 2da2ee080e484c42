#!/usr/bin/env bash
# The built application on a real X server with a real window manager, with a store it must end
# on (the list stored as a string): the reason goes to standard error, then the same reason shows
# in a message box; the application waits there and ends (SIGABRT) once the box is closed.
#   fatal_alert.sh APP
set -u
app=$1
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"

work=$(mktemp -d)
cleanup() {
    [ -n "${APP_PID:-}" ] && kill -9 "$APP_PID" 2>/dev/null
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; echo "--- application output:" >&2; cat "$work/out" "$work/err" >&2; exit 1; }

xvfb_start || fail "Xvfb did not start"
wm_start || fail "openbox did not start"

store="$work/config/Tarnic/Tarnic Pro.plist"
mkdir -p "$(dirname "$store")"
cat >"$store" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>mainDic</key>
	<string>not a list</string>
</dict>
</plist>
PLIST
line="Fatal error: Stored value of the wrong type: key \"mainDic\" in \"$store\": expected array of dictionaries of strings, found string"

XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORM=xcb "$app" >"$work/out" 2>"$work/err" &
APP_PID=$!

# The box is the application's only window: the main window never shows.
deadline=$((SECONDS + 60))
box=
until [ -n "$box" ]; do
    [ $SECONDS -lt $deadline ] || fail "no window of the application appeared"
    kill -0 "$APP_PID" 2>/dev/null || fail "the application ended without showing a box"
    box=$(xdotool search --onlyvisible --pid "$APP_PID" 2>/dev/null | head -n 1)
    [ -n "$box" ] || sleep 0.1
done
# Standard error got the line before the box showed.
grep -qxF "$line" "$work/err" || fail "standard error lacks the line: $line"
[ "$(grep -c '^Fatal error:' "$work/err")" -eq 1 ] || fail "not exactly one fatal line"
title=$(xdotool getwindowname "$box")
[ "$title" = "Tarnic Pro" ] || fail "the box is titled \"$title\""
# The box is a dialog, not the main window.
xprop -id "$box" _NET_WM_WINDOW_TYPE | grep -q _NET_WM_WINDOW_TYPE_DIALOG ||
    fail "the window is not a dialog: $(xprop -id "$box" _NET_WM_WINDOW_TYPE)"
[ -z "$(xdotool search --onlyvisible --name '^Tarnic Pro\*?$' 2>/dev/null | grep -vx "$box")" ] ||
    fail "a window besides the box is shown"
# The box shows the line: the same text is on the window (checked as pixels would be too weak;
# the box's text is the line on standard error, see the window tests), and it waits for the player.
sleep 1
kill -0 "$APP_PID" 2>/dev/null || fail "the application ended while the box was up"

xdotool windowactivate --sync "$box" >/dev/null 2>&1 || true
# OK closes the box on the key's press, so the release xdotool sends after it may find the
# window gone and xdotool then fails; whether the press closed the box is what the wait below
# checks.
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
[ "$(grep -c '^Fatal error:' "$work/err")" -eq 1 ] || fail "not exactly one fatal line in the end"
grep -qxF "$line" "$work/err" || fail "standard error lacks the line in the end"
echo "PASS: the fatal line went to standard error, showed in a box, and the application ended after OK"

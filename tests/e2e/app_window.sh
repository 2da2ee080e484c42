#!/usr/bin/env bash
# The built application against a loopback copy of the maker's site, on a real X server with a
# real window manager.
#   app_window.sh APP SITE_DIR PORT up     site reachable: the main window shows; closing it ends
#                                          the application
#   app_window.sh APP SITE_DIR PORT quit   site reachable: the main window shows; Ctrl+Q ends the
#                                          application
#   app_window.sh APP SITE_DIR PORT down   nothing listens: the alert shows over the window and
#                                          the application ends once "Ok" is pressed
#   app_window.sh APP SITE_DIR PORT silent the site takes the connection and never answers: after
#                                          the start-up check's minute the alert shows and the
#                                          application ends once "Ok" is pressed
# With KEYPAD_PROBE (tarnic_x11_keypad_probe) as a fifth argument, also: the application holds
# six keycodes for its keypad taps while it runs and gives them all back when it ends.
set -u
app=$1 site=$2 port=$3 mode=$4 keypad_probe=${5:-}
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"

work=$(mktemp -d)
cleanup() {
    [ -n "${APP_PID:-}" ] && kill "$APP_PID" 2>/dev/null
    [ -n "${SITE_PID:-}" ] && kill "$SITE_PID" 2>/dev/null
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "FAIL: $*" >&2; echo "--- application output:" >&2; cat "$work/out" "$work/err" >&2; exit 1; }

xvfb_start || fail "Xvfb did not start"
wm_start || fail "openbox did not start"

if [ "$mode" = up ] || [ "$mode" = quit ]; then
    python3 -u "$here/../support/site_server.py" "$port" "$site" >/dev/null 2>"$work/site.log" &
    SITE_PID=$!
    deadline=$((SECONDS + 20))
    until python3 -c "import urllib.request,sys; urllib.request.urlopen('http://127.0.0.1:$port/tn11.plist', timeout=1)" 2>/dev/null; do
        [ $SECONDS -lt $deadline ] || fail "the loopback site did not come up on port $port"
        kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
        sleep 0.1
    done
elif [ "$mode" = silent ]; then
    # Takes every connection and holds it open without a word.
    python3 -u "$here/../support/site_server.py" "$port" "$site" --silent >"$work/site.log" 2>&1 &
    SITE_PID=$!
    deadline=$((SECONDS + 20))
    until grep -q '^serving ' "$work/site.log"; do
        [ $SECONDS -lt $deadline ] || fail "the silent site did not come up on port $port"
        kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
        sleep 0.1
    done
fi

XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORM=xcb "$app" >"$work/out" 2>"$work/err" &
APP_PID=$!

wait_for_exit() { # seconds
    local deadline=$((SECONDS + $1))
    while kill -0 "$APP_PID" 2>/dev/null; do
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.1
    done
    wait "$APP_PID"
    APP_RC=$?
    APP_PID=
}

main_window=$(wait_for_window "Tarnic Pro" 60) || fail "no main window appeared"

# The keycodes are claimed when the platform starts, before the window shows.
keypad_claimed() {
    [ -z "$keypad_probe" ] && return 0
    local out
    out=$("$keypad_probe") || fail "the keypad probe failed"
    [ "$(grep -c '^digit ' <<<"$out")" -eq 6 ] && grep -q '^record ' <<<"$out" ||
        fail "the application does not hold six keypad keycodes: $out"
}
keypad_given_back() {
    [ -z "$keypad_probe" ] && return 0
    local out
    out=$("$keypad_probe") || fail "the keypad probe failed"
    [ -z "$out" ] || fail "keypad keycodes left behind after the end: $out"
    echo "PASS: the keypad keycodes were held while running and given back at the end"
}
keypad_claimed

if [ "$mode" = up ] || [ "$mode" = quit ]; then
    # The gate has passed once the site has served the version file to the application (the
    # server names the process behind each request; the readiness probe above fetched the same
    # file) and the application is still there.
    deadline=$((SECONDS + 30))
    until grep -q "GET /tn11.plist HTTP/1.1\" 200 .* pid=$APP_PID\$" "$work/site.log"; do
        [ $SECONDS -lt $deadline ] || fail "the application did not fetch the version file"
        sleep 0.1
    done
    grep -q '^AXIsProcessTrusted \(true\|false\)$' "$work/out" || fail "no diagnostic line"
    kill -0 "$APP_PID" 2>/dev/null || fail "the application ended although the site is up"
    [ "$(grep -c AXIsProcessTrusted "$work/out")" -eq 1 ] || fail "the diagnostic line is not printed exactly once"
    if [ "$mode" = quit ]; then
        # Ctrl+Q, typed (XTest) into the focused main window, ends the application.
        xdotool windowactivate --sync "$main_window" || fail "could not activate the main window"
        xdotool key ctrl+q || fail "could not type Ctrl+Q"
        wait_for_exit 20 || fail "Ctrl+Q did not end the application"
        [ "$APP_RC" -eq 0 ] || fail "the application ended with status $APP_RC"
        echo "PASS: main window shown, Ctrl+Q ended the application"
    else
        # Closing the main window through the window manager ends the application.
        wmctrl -i -c "$main_window" || fail "could not ask the window manager to close the window"
        wait_for_exit 20 || fail "closing the main window did not end the application"
        [ "$APP_RC" -eq 0 ] || fail "the application ended with status $APP_RC"
        echo "PASS: main window shown, closing it ended the application"
    fi
    keypad_given_back
else
    alert_wait=60
    if [ "$mode" = silent ]; then
        deadline=$((SECONDS + 20))
        until grep -q '^accepted$' "$work/site.log"; do
            [ $SECONDS -lt $deadline ] || fail "the application did not connect to the site"
            sleep 0.1
        done
        # The check gives the site a minute; the alert follows.
        alert_wait=100
    fi
    # The alert is a second window of the application, modal over the main one, and active.
    deadline=$((SECONDS + alert_wait))
    until active=$(xdotool getactivewindow 2>/dev/null) && [ "$active" != "$main_window" ] &&
        [ "$(xdotool getwindowpid "$active" 2>/dev/null)" = "$APP_PID" ]; do
        [ $SECONDS -lt $deadline ] || { xwininfo -root -tree >&2; fail "no alert appeared with the site down"; }
        kill -0 "$APP_PID" 2>/dev/null || fail "the application ended before the alert was answered"
        sleep 0.1
    done
    sleep 0.5
    kill -0 "$APP_PID" 2>/dev/null || fail "the application ended before the alert was answered"
    alert=$(xdotool getactivewindow)
    [ "$alert" != "$main_window" ] || fail "the alert is not the active window"
    # The alert has the focus, so a key typed on the keyboard (XTest) reaches it.
    xdotool key Return || fail "could not press Ok"
    wait_for_exit 20 || fail "the application did not end after Ok"
    [ "$APP_RC" -eq 0 ] || fail "the application ended with status $APP_RC"
    echo "PASS: alert shown with the site $mode, the application ended after Ok"
    keypad_given_back
fi

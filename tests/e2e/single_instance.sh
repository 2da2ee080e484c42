#!/usr/bin/env bash
# One copy of the built application per user and display, on a real X server with a real window
# manager, against a loopback copy of the maker's site.
#   single_instance.sh APP SITE_DIR PORT handover KEYPAD_PROBE KEYLOG
#       slot 1 on Z; a second start ends with status 0 and one line on standard error, and the
#       first copy's window is active after it; the keymap holds one set of six keycodes; one
#       press of Z gives exactly one keypad 7 tap
#   single_instance.sh APP SITE_DIR PORT together KEYPAD_PROBE KEYLOG
#       two starts at the same instant, without XDG_RUNTIME_DIR: exactly one copy stays, the
#       other hands over
#   single_instance.sh APP SITE_DIR PORT killed KEYPAD_PROBE KEYLOG
#       the first copy is killed (SIGKILL); the next start runs as the first copy, and the start
#       after that hands over to it
set -u
app=$1 site=$2 port=$3 mode=$4 keypad_probe=$5 keylog=$6
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"

work=$(mktemp -d)
pids=()
cleanup() {
    for pid in "${pids[@]}"; do kill "$pid" 2>/dev/null; done
    [ -n "${SITE_PID:-}" ] && kill "$SITE_PID" 2>/dev/null
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "FAIL: $*" >&2
    for f in "$work"/*.out "$work"/*.err; do
        [ -s "$f" ] && { echo "--- $(basename "$f"):" >&2; cat "$f" >&2; }
    done
    exit 1
}

xvfb_start || fail "Xvfb did not start"
wm_start || fail "openbox did not start"

python3 -u "$here/../support/site_server.py" "$port" "$site" 60 >/dev/null 2>"$work/site.log" &
SITE_PID=$!
deadline=$((SECONDS + 80))
until grep -q '^serving ' "$work/site.log"; do
    [ $SECONDS -lt $deadline ] || fail "the loopback site did not come up on port $port"
    kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
    sleep 0.1
done

# The store (with slot 1 on Z) and the runtime folder, where the copies keep their lock, are the
# test's own.
mkdir -p "$work/config/Tarnic" "$work/runtime" && chmod 700 "$work/runtime"
cat >"$work/config/Tarnic/Tarnic Pro.plist" <<'PLIST'
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
PLIST

# start_copy NAME: starts a copy; its id goes to the variable NAME_PID, its output to NAME.out and
# NAME.err.
# With RUNTIME=unset the copy runs without XDG_RUNTIME_DIR (Qt's own per-user folder then).
start_copy() {
    local runtime=(XDG_RUNTIME_DIR="$work/runtime")
    [ "${RUNTIME:-}" = unset ] && runtime=(-u XDG_RUNTIME_DIR)
    env "${runtime[@]}" XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORM=xcb \
        "$app" >"$work/$1.out" 2>"$work/$1.err" &
    local pid=$!
    pids+=("$pid")
    printf -v "$1_PID" '%s' "$pid"
}

# ends PID SECONDS: waits for the process to end; its status goes to ENDED_RC.
ends() {
    local deadline=$((SECONDS + $2))
    while kill -0 "$1" 2>/dev/null; do
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.1
    done
    wait "$1"
    ENDED_RC=$?
}

# handed_over NAME: the copy NAME ended by itself with status 0 and exactly one line on
# standard error, saying that the program is already running.
handed_over() {
    local pid_var="$1_PID"
    ends "${!pid_var}" 60 || fail "the start $1 is still running"
    [ "$ENDED_RC" -eq 0 ] || fail "the start $1 ended with status $ENDED_RC"
    # Without XDG_RUNTIME_DIR, Qt itself says once, while the application is made, which folder
    # it uses instead; that line is Qt's, not the program's.
    [ "$(grep -c '^QStandardPaths: XDG_RUNTIME_DIR not set' "$work/$1.err")" -le 1 ] ||
        fail "the start $1 repeated Qt's notice about the runtime folder"
    [ "$(grep -vc '^QStandardPaths: XDG_RUNTIME_DIR not set' "$work/$1.err")" -eq 1 ] ||
        fail "the start $1 did not write exactly one line of its own on standard error"
    grep -q 'already running' "$work/$1.err" || fail "the start $1 did not say that the program is already running"
    [ -s "$work/$1.out" ] && fail "the start $1 wrote on standard output (it went on starting)"
    return 0
}

# window_of PID SECONDS: prints the main window of that process once it is mapped.
window_of() {
    local deadline=$((SECONDS + $2)) id
    while [ $SECONDS -lt $deadline ]; do
        for id in $(xdotool search --onlyvisible --name '^Tarnic Pro\*?$' 2>/dev/null); do
            [ "$(xdotool getwindowpid "$id" 2>/dev/null)" = "$1" ] && { echo "$id"; return 0; }
        done
        sleep 0.1
    done
    return 1
}

# The version gate of that process has passed: the site served it the version file.
gate_passed() {
    local deadline=$((SECONDS + 60))
    until grep -q "GET /tn11.plist HTTP/1.1\" 200 .* pid=$1\$" "$work/site.log"; do
        [ $SECONDS -lt $deadline ] || fail "process $1 did not fetch the version file"
        sleep 0.1
    done
}

main_windows() { xdotool search --onlyvisible --name '^Tarnic Pro\*?$' 2>/dev/null | wc -l; }

# One set of six keypad keycodes: one keycode for each slot's digit, and the record naming them.
one_keypad_set() {
    local out
    out=$("$keypad_probe") || fail "the keypad probe failed"
    [ "$(grep -c '^digit ' <<<"$out")" -eq 6 ] || fail "not exactly six keypad keycodes: $out"
    for slot in 1 2 3 4 5 6; do
        [ "$(grep -c "^digit $slot " <<<"$out")" -eq 1 ] || fail "slot $slot has not exactly one keycode: $out"
    done
    [ "$(grep -c '^record ' <<<"$out")" -eq 1 ] || fail "no record of the keycodes: $out"
    KEYPAD=$out
}

active_window() { xprop -root _NET_ACTIVE_WINDOW | sed -n 's/.*# \(0x[0-9a-f]*\).*/\1/p'; }

# is_active WINDOW SECONDS: the window manager names that window active within the time.
is_active() {
    local want deadline=$((SECONDS + $2))
    want=$(printf '0x%x' "$1")
    while [ $SECONDS -lt $deadline ]; do
        [ "$(active_window)" = "$want" ] && return 0
        sleep 0.1
    done
    return 1
}

kp7_count() { xmodmap -pke | grep -cw 'KP_7'; }

case "$mode" in
handover)
    start_copy first
    first_window=$(window_of "$first_PID" 60) || fail "the first copy showed no window"
    gate_passed "$first_PID"
    one_keypad_set
    keypad_before=$KEYPAD
    record_before=$(xprop -root _TARNIC_PRO_KEYPAD_KEYCODES)
    kp7_before=$(kp7_count)

    # Another program has the focus when the second start comes.
    "$keylog" --class keylog --title "key log" >"$work/keylog.out" 2>"$work/keylog.err" &
    pids+=("$!")
    deadline=$((SECONDS + 20))
    until log_window=$(sed -n 's/^ready //p' "$work/keylog.out") && [ -n "$log_window" ]; do
        [ $SECONDS -lt $deadline ] || fail "the key log did not map its window"
        sleep 0.1
    done
    xdotool windowactivate --sync "$log_window" || fail "could not activate the key log"
    is_active "$log_window" 10 || fail "the key log did not become active"
    # As a program that takes the player's keys does (Wine, GTK, Qt), it names the time of the
    # last key typed into it: a window manager then refuses the focus to a program that asks for
    # it with an older time on its own behalf.
    w=$(xmodmap -pke | sed -n 's/^keycode *\([0-9]*\) = w W.*/\1/p' | head -n 1)
    xdotool key w || fail "could not type W"
    deadline=$((SECONDS + 10))
    until user_time=$(sed -n "s/^press $w [0-9]* \([0-9]*\) .*/\1/p" "$work/keylog.out") &&
        [ -n "$user_time" ]; do
        [ $SECONDS -lt $deadline ] || fail "W did not arrive"
        sleep 0.05
    done
    xprop -id "$log_window" -f _NET_WM_USER_TIME 32c -set _NET_WM_USER_TIME "$user_time" ||
        fail "could not set the key log's user time"

    start_copy second
    handed_over second
    kill -0 "$first_PID" 2>/dev/null || fail "the first copy ended"
    is_active "$first_window" 5 || fail "the first copy's window is not active after the second start (active: $(active_window))"
    [ "$(main_windows)" -eq 1 ] || fail "more than one main window"
    one_keypad_set
    [ "$KEYPAD" = "$keypad_before" ] || fail "the keypad keycodes changed: $keypad_before / $KEYPAD"
    [ "$(xprop -root _TARNIC_PRO_KEYPAD_KEYCODES)" = "$record_before" ] || fail "the record of the keycodes changed"
    [ "$(kp7_count)" -eq "$kp7_before" ] || fail "keycodes with keypad 7: $kp7_before before, $(kp7_count) after"
    echo "PASS: the second start handed over and ended; the first copy's window is active"

    # One press of Z in another program gives one keypad 7 tap.
    kp7=$(sed -n 's/^digit 1 //p' <<<"$KEYPAD")
    xdotool windowactivate --sync "$log_window" || fail "could not activate the key log"
    is_active "$log_window" 10 || fail "the key log did not become active"
    z=$(xmodmap -pke | sed -n 's/^keycode *\([0-9]*\) = z Z.*/\1/p' | head -n 1)
    q=$(xmodmap -pke | sed -n 's/^keycode *\([0-9]*\) = q Q.*/\1/p' | head -n 1)
    xdotool key z || fail "could not type Z"
    deadline=$((SECONDS + 10))
    until grep -q "^press $kp7 " "$work/keylog.out"; do
        [ $SECONDS -lt $deadline ] || fail "no keypad 7 tap after Z"
        sleep 0.05
    done
    # An unbound key after it: once it has arrived, any tap for Z has been posted long before.
    xdotool key q || fail "could not type Q"
    deadline=$((SECONDS + 10))
    until grep -q "^press $q " "$work/keylog.out"; do
        [ $SECONDS -lt $deadline ] || fail "Q did not arrive"
        sleep 0.05
    done
    sleep 0.5
    [ "$(grep -c "^press $z " "$work/keylog.out")" -eq 1 ] || fail "Z did not arrive exactly once"
    taps=$(grep -c "^press $kp7 " "$work/keylog.out")
    [ "$taps" -eq 1 ] || fail "one press of Z gave $taps keypad 7 taps"
    echo "PASS: one press of Z gave exactly one keypad 7 tap"
    ;;
together)
    # Without XDG_RUNTIME_DIR as well: the lock then lies in Qt's private folder for this user.
    RUNTIME="unset"
    start_copy one
    start_copy two
    deadline=$((SECONDS + 60))
    while kill -0 "$one_PID" 2>/dev/null && kill -0 "$two_PID" 2>/dev/null; do
        [ $SECONDS -lt $deadline ] || fail "both starts are still running"
        sleep 0.1
    done
    if kill -0 "$one_PID" 2>/dev/null; then stays=one; left=two; else stays=two; left=one; fi
    handed_over "$left"
    stays_var="${stays}_PID"
    window_of "${!stays_var}" 60 >/dev/null || fail "the copy that stayed showed no window"
    gate_passed "${!stays_var}"
    kill -0 "${!stays_var}" 2>/dev/null || fail "the copy that stayed ended"
    [ "$(main_windows)" -eq 1 ] || fail "more than one main window"
    one_keypad_set
    echo "PASS: of two starts at the same instant, exactly one copy stayed"
    ;;
killed)
    start_copy first
    window_of "$first_PID" 60 >/dev/null || fail "the first copy showed no window"
    one_keypad_set
    kill -KILL "$first_PID"
    ends "$first_PID" 10 || fail "the first copy did not die"
    ls "$work/runtime"/*.lock >/dev/null 2>&1 || fail "the killed copy left no lock file (nothing to recover from)"
    ls "$work/runtime"/*.socket >/dev/null 2>&1 || fail "the killed copy left no socket (nothing to recover from)"

    start_copy next
    next_window=$(window_of "$next_PID" 60) || fail "the start after the killed copy showed no window"
    gate_passed "$next_PID"
    kill -0 "$next_PID" 2>/dev/null || fail "the start after the killed copy ended"
    [ -s "$work/next.err" ] && fail "the start after the killed copy complained"
    one_keypad_set
    start_copy later
    handed_over later
    is_active "$next_window" 5 || fail "the new first copy's window is not active"
    # It ends as a first copy does: closing the window gives the keycodes back.
    wmctrl -i -c "$next_window" || fail "could not close the window"
    ends "$next_PID" 20 || fail "closing the window did not end the copy"
    [ "$ENDED_RC" -eq 0 ] || fail "the copy ended with status $ENDED_RC"
    [ -z "$("$keypad_probe")" ] || fail "keypad keycodes left behind"
    echo "PASS: a killed first copy did not block the next start"
    ;;
*)
    fail "unknown mode $mode"
    ;;
esac

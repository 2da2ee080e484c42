# Sourced by the end-to-end tests: starts an Xvfb of their own on a free display (Xvfb picks it
# and reports it through -displayfd), optionally a window manager, and stops both on exit.
# -noreset keeps the server (and its NumLock state) alive when the last client leaves.

xvfb_start() {
    local fifo
    fifo=$(mktemp -u) && mkfifo "$fifo"
    Xvfb -displayfd 3 -noreset -screen 0 1280x800x24 -nolisten tcp 3>"$fifo" 2>/dev/null &
    XVFB_PID=$!
    local display
    read -r -t 20 display <"$fifo" || { echo "Xvfb did not start" >&2; rm -f "$fifo"; return 1; }
    rm -f "$fifo"
    export DISPLAY=":$display"
}

wm_start() {
    openbox --sm-disable >/dev/null 2>&1 &
    WM_PID=$!
    # openbox announces itself before it manages windows, and a window mapped in between stays
    # unmanaged: it is ready once a probe window shows up in its client list.
    xmessage -name tarnic-wm-probe probe >/dev/null 2>&1 &
    local probe=$! deadline=$((SECONDS + 30))
    # The probe is the only client, so any entry in the list is the probe.
    until xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q '0x'; do
        [ $SECONDS -lt $deadline ] || { echo "openbox did not start" >&2; kill "$probe"; return 1; }
        sleep 0.1
    done
    kill "$probe" 2>/dev/null
    wait "$probe" 2>/dev/null
    deadline=$((SECONDS + 10))
    while xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q '0x'; do
        [ $SECONDS -lt $deadline ] || break
        sleep 0.1
    done
    return 0
}

session_stop() {
    [ -n "${WM_PID:-}" ] && kill "$WM_PID" 2>/dev/null
    [ -n "${XVFB_PID:-}" ] && kill "$XVFB_PID" 2>/dev/null
    wait 2>/dev/null
    return 0
}

# wait_for_window NAME SECONDS: prints the id of the first mapped window whose title is NAME.
wait_for_window() {
    local name=$1 deadline=$((SECONDS + $2)) id
    while [ $SECONDS -lt $deadline ]; do
        id=$(xdotool search --onlyvisible --name "^$name\$" 2>/dev/null | head -n 1)
        [ -n "$id" ] && { echo "$id"; return 0; }
        sleep 0.1
    done
    return 1
}

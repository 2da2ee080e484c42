# Sourced by the scripts that need a real X server (the end-to-end and package tests, the
# screenshots): starts an Xvfb of their own on a free display (Xvfb picks it and reports it
# through -displayfd), optionally a window manager, and stops both with session_stop.
# -noreset keeps the server (and its NumLock state) alive when the last client leaves.

# xvfb_start [SCREEN]: SCREEN is WIDTHxHEIGHTxDEPTH, 1280x800x24 unless given.
xvfb_start() {
    local fifo
    fifo=$(mktemp -u) && mkfifo "$fifo"
    Xvfb -displayfd 3 -noreset -screen 0 "${1:-1280x800x24}" -nolisten tcp 3>"$fifo" 2>/dev/null &
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
    # unmanaged: it is ready once a probe window shows up in its client list. A probe that came
    # too early is never managed, so each try gets a fresh one.
    local deadline=$((SECONDS + 30)) probe managed=
    while [ -z "$managed" ] && [ $SECONDS -lt $deadline ]; do
        xmessage -name tarnic-wm-probe probe >/dev/null 2>&1 &
        probe=$!
        for _ in $(seq 30); do
            # The probe is the only client, so any entry in the list is the probe.
            if xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q '0x'; then
                managed=yes
                break
            fi
            sleep 0.1
        done
        kill "$probe" 2>/dev/null
        wait "$probe" 2>/dev/null
    done
    [ -n "$managed" ] || { echo "openbox did not start" >&2; return 1; }
    local settle=$((SECONDS + 10))
    while xprop -root _NET_CLIENT_LIST 2>/dev/null | grep -q '0x' && [ $SECONDS -lt $settle ]; do
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

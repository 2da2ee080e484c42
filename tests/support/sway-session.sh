# Sourced by the scripts that need a Wayland session (the Wayland tier, the mapping benchmark),
# after xvfb-session.sh: sway nested on the Xvfb of $DISPLAY, through wlroots' X11 backend with
# the software renderer, and its XWayland. The keyboard of that backend is sway's keyboard, so a
# key typed with XTest on the outer Xvfb while sway's window has the pointer reaches the focused
# Wayland or XWayland client the way a key of the player's keyboard does.
#
# sway refuses to run as root: then it runs as "nobody", with a runtime folder of that user, and
# lets the caller's user onto its XWayland display (xhost, run inside the session).
#
# sway_start sets:
#   SWAYSOCK          sway's IPC socket (for swaymsg)
#   SWAY_WAYLAND      sway's Wayland socket, as an absolute path (a valid WAYLAND_DISPLAY)
#   SWAY_XDISPLAY     XWayland's display (":N")
#   SWAY_ERROR        why it failed, when it returns 1
# sway_stop ends it; session_stop (xvfb-session.sh) does not.

# sway_msg ARGS...: swaymsg, bounded.
sway_msg() {
    SWAYSOCK=$SWAYSOCK timeout 10 swaymsg "$@"
}

# sway_exec_output COMMAND: runs COMMAND inside the session (sway's user and environment) and
# prints what it wrote, waiting up to 20 s for it to finish.
sway_exec_output() {
    # sway splits its commands at ';' and ',': the command goes in a script of its own.
    local out="$SWAY_RUNTIME/exec.$RANDOM" deadline=$((SECONDS + 20))
    printf '(%s) >%s.part 2>&1\nmv %s.part %s\n' "$1" "$out" "$out" "$out" >"$out.sh"
    [ "$(id -u)" -ne 0 ] || chown nobody:nogroup "$out.sh"
    sway_msg exec "sh $out.sh" >/dev/null || return 1
    until [ -f "$out" ]; do
        [ $SECONDS -lt $deadline ] || return 1
        sleep 0.05
    done
    cat "$out"
    rm -f "$out" "$out.sh"
}

sway_start() {
    SWAY_ERROR=
    local run_as=()
    SWAY_RUNTIME=$(mktemp -d /tmp/tarnic-sway.XXXXXX) || { SWAY_ERROR="no runtime folder"; return 1; }
    chmod 0700 "$SWAY_RUNTIME"
    echo 'xwayland enable' >"$SWAY_RUNTIME/config"
    if [ "$(id -u)" -eq 0 ]; then
        chown -R nobody:nogroup "$SWAY_RUNTIME"
        run_as=(setpriv --reuid=nobody --regid=nogroup --clear-groups --pdeathsig TERM)
    fi
    "${run_as[@]}" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin HOME="$SWAY_RUNTIME" \
        DISPLAY="$DISPLAY" XDG_RUNTIME_DIR="$SWAY_RUNTIME" WLR_BACKENDS=x11 \
        WLR_RENDERER=pixman WLR_LIBINPUT_NO_DEVICES=1 \
        sway --config "$SWAY_RUNTIME/config" >"$SWAY_RUNTIME.log" 2>&1 &
    SWAY_PID=$!
    local deadline=$((SECONDS + 30))
    SWAYSOCK=
    while [ -z "$SWAYSOCK" ]; do
        if ! kill -0 "$SWAY_PID" 2>/dev/null; then
            SWAY_ERROR="sway ended at start: $(tail -n 20 "$SWAY_RUNTIME.log")"
            return 1
        fi
        [ $SECONDS -lt $deadline ] || { SWAY_ERROR="sway opened no IPC socket in 30 s"; return 1; }
        SWAYSOCK=$(find "$SWAY_RUNTIME" -maxdepth 1 -name 'sway-ipc.*.sock' 2>/dev/null | head -n 1)
        [ -n "$SWAYSOCK" ] || sleep 0.05
    done
    until sway_msg -t get_version >/dev/null 2>&1; do
        [ $SECONDS -lt $deadline ] || { SWAY_ERROR="sway does not answer on $SWAYSOCK"; return 1; }
        sleep 0.05
    done
    local names
    names=$(sway_exec_output 'echo "$WAYLAND_DISPLAY $DISPLAY"') ||
        { SWAY_ERROR="sway ran no command"; return 1; }
    SWAY_WAYLAND="$SWAY_RUNTIME/${names%% *}"
    SWAY_XDISPLAY=${names##* }
    case "$SWAY_XDISPLAY" in
    :[0-9]*) ;;
    *) SWAY_ERROR="sway announced no XWayland display (\"$names\")"; return 1 ;;
    esac
    [ -S "$SWAY_WAYLAND" ] || { SWAY_ERROR="no Wayland socket at $SWAY_WAYLAND"; return 1; }
    # Connecting starts XWayland; the caller's user may then connect too.
    local granted
    granted=$(sway_exec_output "xhost +si:localuser:$(id -un)") ||
        { SWAY_ERROR="xhost did not run inside the session"; return 1; }
    DISPLAY=$SWAY_XDISPLAY timeout 10 xdpyinfo >/dev/null 2>&1 ||
        { SWAY_ERROR="cannot open XWayland's display $SWAY_XDISPLAY: $granted"; return 1; }
    return 0
}

# sway_is_xwayland DISPLAY: true if DISPLAY is XWayland (its RandR outputs are XWAYLAND<n>).
sway_is_xwayland() {
    DISPLAY=$1 timeout 10 xrandr 2>/dev/null | grep -q '^XWAYLAND[0-9]* connected'
}

# sway_set_layout LAYOUT: the keyboard layout of every input, as a player switches it.
sway_set_layout() {
    sway_msg input '*' xkb_layout "$1" >/dev/null
}

# sway_focus CRITERIA: focuses the window sway matches (for example 'class="keylog"').
sway_focus() {
    sway_msg "[$1] focus" >/dev/null
}

# sway_focused_name: the name (title) of the window sway has focused.
sway_focused_name() {
    sway_msg -t get_tree | python3 -c '
import json, sys
def walk(node):
    if node.get("focused"):
        return node.get("name") or ""
    for child in node.get("nodes", []) + node.get("floating_nodes", []):
        found = walk(child)
        if found is not None:
            return found
    return None
print(walk(json.load(sys.stdin)) or "")'
}

sway_stop() {
    if [ -n "${SWAY_PID:-}" ]; then
        kill "$SWAY_PID" 2>/dev/null
        local deadline=$((SECONDS + 10))
        while kill -0 "$SWAY_PID" 2>/dev/null && [ $SECONDS -lt $deadline ]; do sleep 0.1; done
        kill -9 "$SWAY_PID" 2>/dev/null
        SWAY_PID=
    fi
    [ -n "${SWAY_RUNTIME:-}" ] && rm -rf "$SWAY_RUNTIME" "$SWAY_RUNTIME.log"
    return 0
}

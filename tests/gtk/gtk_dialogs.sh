#!/usr/bin/env bash
# Keys typed into the application's own windows never tap, on a desktop where Qt draws its file
# dialogs with GTK (Debian's qt6-gtk-platformtheme, QT_QPA_PLATFORMTHEME=gtk3): the Export and
# Import dialogs are then GTK windows made by GTK inside our process, which Qt knows nothing of.
# Slot 1 is bound to Z. On a real X server with openbox and a loopback copy of the site:
#   - Ctrl+S, "zz.txt", Return saves exactly zz.txt, with the untouched list's export;
#   - Ctrl+O, "zz.txt", Return imports that very file (a later export shows its keys), and the
#     message box that reports the import takes keys without a tap;
#   - the contact panel, opened from the keyboard, takes keys without a tap;
#   - no keypad tap happened in all that, while Z typed into another program's window taps.
#   gtk_dialogs.sh APP SITE_DIR PORT RECORD_LOG KEYPAD_PROBE KEYLOG DATA_DIR
set -u
app=$1 site=$2 port=$3 record_log=$4 keypad_probe=$5 keylog=$6 data=$7
here=$(cd "$(dirname "$0")" && pwd)
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"

work=$(mktemp -d)
cleanup() {
    for pid in "${APP_PID:-}" "${SITE_PID:-}" "${RECORD_PID:-}" "${KEYLOG_PID:-}"; do
        [ -n "$pid" ] && kill "$pid" 2>/dev/null
    done
    session_stop
    rm -rf "$work"
}
trap cleanup EXIT
fail() {
    echo "FAIL: $*" >&2
    echo "--- application output:" >&2
    cat "$work/out" "$work/err" >&2 2>/dev/null
    echo "--- key presses recorded:" >&2
    tr '\n' ' ' <"$work/record" >&2 2>/dev/null
    echo >&2
    exit 1
}

xvfb_start "1280x800x24" || fail "Xvfb did not start"
wm_start || fail "openbox did not start"

python3 -u "$here/../support/site_server.py" "$port" "$site" >/dev/null 2>"$work/site.log" &
SITE_PID=$!
deadline=$((SECONDS + 20))
until python3 -c "import urllib.request; urllib.request.urlopen('http://127.0.0.1:$port/tn11.plist', timeout=1)" 2>/dev/null; do
    [ $SECONDS -lt $deadline ] || fail "the loopback site did not come up on port $port"
    kill -0 "$SITE_PID" 2>/dev/null || fail "port $port is taken"
    sleep 0.1
done

# Every key press the server receives, whoever sent it.
"$record_log" >"$work/record" 2>"$work/record.err" &
RECORD_PID=$!
deadline=$((SECONDS + 10))
until grep -q '^ready$' "$work/record"; do
    [ $SECONDS -lt $deadline ] || fail "the key recording did not start"
    sleep 0.1
done

# A store with slot 1 bound to Z (key code 6, no modifier), and a home with a Documents folder,
# where the file dialogs start.
mkdir -p "$work/config/Tarnic" "$work/home/Documents"
docs=$work/home/Documents
cat >"$work/config/Tarnic/Tarnic Pro.plist" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict><key>inventoryModel1</key><array><integer>1</integer><integer>0</integer><integer>6</integer></array></dict>
</plist>
PLIST

# QT_QPA_PLATFORMTHEME=gtk3 loads the GTK theme on any X display (on a GNOME-style desktop Qt
# picks it by itself). NO_AT_BRIDGE=1: without a session bus, GTK's accessibility bridge would
# hold up the first dialog while it looks for one; GSETTINGS_BACKEND=memory: nor is there a
# settings daemon for the file chooser to keep its settings in.
HOME="$work/home" XDG_CONFIG_HOME="$work/config" QT_QPA_PLATFORM=xcb QT_QPA_PLATFORMTHEME=gtk3 \
    NO_AT_BRIDGE=1 GSETTINGS_BACKEND=memory \
    "$app" >"$work/out" 2>"$work/err" &
APP_PID=$!

main_window=$(wait_for_window "Tarnic Pro" 60) || fail "no main window appeared"

# The keycodes slot 1's taps go out on (the keycodes that hold keypad 7 and nothing else).
slot1=$("$keypad_probe" | awk '$1 == "digit" && $2 == 1 { print $3 }')
[ -n "$slot1" ] || fail "the application holds no keycode for slot 1's keypad key"
taps() { # the number of slot 1 taps recorded so far
    local count=0 keycode
    for keycode in $slot1; do
        count=$((count + $(grep -c "^press $keycode\$" "$work/record")))
    done
    echo "$count"
}
no_taps() { # what was just typed
    # A tap would follow the typed key within milliseconds: wait until a key pressed after them
    # has been recorded, and a second more. A tap later than that is still counted by every later
    # check, and by the last one, which wants exactly the one tap it causes itself.
    local before deadline=$((SECONDS + 5))
    before=$(grep -c '^press ' "$work/record")
    xdotool key shift || fail "could not type"
    until [ "$(grep -c '^press ' "$work/record")" -gt "$before" ]; do
        [ $SECONDS -lt $deadline ] || fail "the key recording stopped"
        sleep 0.05
    done
    sleep 1
    [ "$(taps)" -eq 0 ] || fail "keys typed into $1 tapped keypad 7"
}

type_name() { # KEY NAME: KEY selects the name field (GTK: Ctrl+A in the save dialog's field,
    # Ctrl+L for the open dialog's location field), then NAME and Return are typed.
    xdotool key "$1" || fail "could not type $1"
    xdotool type --delay 50 "$2" || fail "could not type $2"
    xdotool key Return || fail "could not type Return"
}
active_window() { xdotool getactivewindow 2>/dev/null; }
# wait_for_own_window SECONDS: prints the id of the application's active window that is not the
# main window, once there is one.
wait_for_own_window() {
    local deadline=$((SECONDS + $1)) active
    while [ $SECONDS -lt $deadline ]; do
        active=$(active_window)
        if [ -n "$active" ] && [ "$active" != "$main_window" ] &&
            [ "$(xdotool getwindowpid "$active" 2>/dev/null)" = "$APP_PID" ]; then
            echo "$active"
            return 0
        fi
        sleep 0.1
    done
    return 1
}
wait_for_main_active() {
    local deadline=$((SECONDS + 20))
    until [ "$(active_window)" = "$main_window" ]; do
        [ $SECONDS -lt $deadline ] || fail "the main window did not come back to the front"
        sleep 0.1
    done
}
# The file dialog must be GTK's, or this test would pass with Qt's own dialog: GTK gives its file
# chooser the role "GtkFileChooserDialog". Qt's own dialog would carry Qt's class for the
# application, "Tarnic Pro".
assert_gtk_window() { # window what
    local props
    props=$(xprop -id "$1") || fail "cannot read the $2's properties"
    grep -q '^WM_WINDOW_ROLE(STRING) = "GtkFileChooserDialog"$' <<<"$props" ||
        fail "the $2 is not GTK's file chooser (is the GTK platform theme loaded?): $props"
    grep -q '^WM_CLASS(STRING) = .*"Tarnic Pro"$' <<<"$props" && fail "the $2 is Qt's own: $props"
    return 0
}

xdotool windowactivate --sync "$main_window" || fail "could not activate the main window"
wait_for_main_active

# Export: the name typed into the GTK dialog is the file's name.
xdotool key ctrl+s || fail "could not type Ctrl+S"
dialog=$(wait_for_own_window 30) || fail "no Export dialog appeared"
assert_gtk_window "$dialog" "Export dialog"
sleep 0.5
type_name ctrl+a zz.txt
deadline=$((SECONDS + 20))
until [ -f "$docs/zz.txt" ]; do
    [ $SECONDS -lt $deadline ] || fail "no zz.txt was saved; Documents holds: $(ls "$docs")"
    sleep 0.1
done
no_taps "the Export dialog"
[ "$(ls "$docs")" = zz.txt ] || fail "Documents holds other files: $(ls "$docs")"
cmp -s "$docs/zz.txt" "$data/export-untouched.txt" || fail "zz.txt is not the untouched list's export"
echo "PASS: typed into the GTK Export dialog, the file is exactly zz.txt, with the export"

# Import: the dialog gets exactly what was typed, so the file read is zz.txt.
wait_for_main_active
cp "$data/export-hand-set.txt" "$docs/zz.txt"
xdotool key ctrl+o || fail "could not type Ctrl+O"
dialog=$(wait_for_own_window 30) || fail "no Import dialog appeared"
assert_gtk_window "$dialog" "Import dialog"
sleep 0.5
type_name ctrl+l zz.txt
# The import's report is a message box of ours.
deadline=$((SECONDS + 20))
until box=$(wait_for_own_window 1) && [ "$box" != "$dialog" ]; do
    [ $SECONDS -lt $deadline ] || fail "no import report appeared"
done
no_taps "the Import dialog"
sleep 0.5
xdotool type --delay 50 zzz || fail "could not type"
no_taps "the import's message box"
xdotool key Return || fail "could not close the message box"
wait_for_main_active
echo "PASS: typed into the GTK Import dialog and the message box, no tap"

# The list now holds zz.txt's keys: a second export shows them.
xdotool key ctrl+s || fail "could not type Ctrl+S"
dialog=$(wait_for_own_window 30) || fail "no second Export dialog appeared"
sleep 0.5
type_name ctrl+a zz2.txt
deadline=$((SECONDS + 20))
until [ -f "$docs/zz2.txt" ]; do
    [ $SECONDS -lt $deadline ] || fail "no zz2.txt was saved; Documents holds: $(ls "$docs")"
    sleep 0.1
done
cmp -s "$docs/zz2.txt" "$data/export-hand-set.txt" || fail "the import did not read zz.txt"
no_taps "the second Export dialog"
echo "PASS: the import read exactly zz.txt"

# The contact panel, from the Help menu by keyboard.
wait_for_main_active
xdotool key alt+h || fail "could not open the Help menu"
sleep 0.5
xdotool key c || fail "could not choose Contact"
panel=$(wait_for_own_window 30) || fail "the contact panel did not open"
[ "$(xdotool getwindowname "$panel")" = Contact ] ||
    fail "the window in front is not the contact panel: $(xdotool getwindowname "$panel")"
sleep 0.5
xdotool type --delay 50 zzz || fail "could not type"
no_taps "the contact panel"
xdotool key Escape
wait_for_main_active
echo "PASS: typed into the contact panel, no tap"

# The binding works: Z typed into another program's window taps keypad 7 there.
"$keylog" >"$work/keylog" 2>&1 &
KEYLOG_PID=$!
deadline=$((SECONDS + 10))
until other=$(awk '$1 == "ready" { print $2; exit }' "$work/keylog") && [ -n "$other" ]; do
    [ $SECONDS -lt $deadline ] || fail "the key log did not start"
    sleep 0.1
done
xdotool windowactivate --sync "$other" || fail "could not activate the key log"
deadline=$((SECONDS + 10))
until [ "$(active_window)" = "$((other))" ]; do
    [ $SECONDS -lt $deadline ] || fail "the key log did not come to the front"
    sleep 0.1
done
xdotool key z || fail "could not type"
deadline=$((SECONDS + 10))
until [ "$(taps)" -ge 1 ]; do
    [ $SECONDS -lt $deadline ] || fail "Z typed into another program did not tap keypad 7"
    sleep 0.1
done
sleep 1
[ "$(taps)" -eq 1 ] || fail "$(taps) taps where one Z was typed into another program"
awk -v codes="$slot1" 'BEGIN { split(codes, c, " ") }
    $1 == "press" { for (i in c) if ($2 == c[i]) found = 1 } END { exit !found }' "$work/keylog" ||
    fail "the key log did not get keypad 7: $(cat "$work/keylog")"
echo "PASS: Z typed into another program taps keypad 7"

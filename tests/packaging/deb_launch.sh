#!/usr/bin/env bash
# Starts the program from the unpacked package on a real X server (Xvfb) against a loopback copy
# of the maker's site, and waits for its main window.
#   deb_launch.sh DEB_DIR SITE_URL
# The program was built to fetch SITE_URL/tn11.plist at launch; this test serves that address
# itself, so SITE_URL must be a loopback http:// URL (any other is skipped, exit 77).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
# shellcheck source=../support/xvfb-session.sh
. "$here/../support/xvfb-session.sh"
out=$1 site_url=$2
window_timeout=60
fetch_timeout=60
port_timeout=30

shopt -s nullglob
debs=("$out"/tarnic-pro_*.deb)
[ ${#debs[@]} -eq 1 ] || fail "expected one tarnic-pro_*.deb in $out, found ${#debs[@]}"

read -r scheme host port path < <(python3 - "$site_url" <<'PY'
import sys, urllib.parse
u = urllib.parse.urlsplit(sys.argv[1])
print(u.scheme, u.hostname or "-", u.port or 80, u.path.strip("/") or ".")
PY
)
if [ "$scheme" != http ] || { [ "$host" != 127.0.0.1 ] && [ "$host" != localhost ]; }; then
    echo "SKIP: the program was built for $site_url, which this test cannot serve on loopback"
    exit 77
fi

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

dpkg -x "${debs[0]}" "$scratch/root" || fail "dpkg -x cannot unpack ${debs[0]}"
exe=$scratch/root/usr/bin/tarnic-pro
[ -x "$exe" ] || fail "the package has no usr/bin/tarnic-pro"

# The site: one version-support file, an XML property-list dictionary.
mkdir -p "$scratch/site/$path"
cat >"$scratch/site/$path/tn11.plist" <<'PLIST'
<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>supported</key>
	<true/>
</dict>
</plist>
PLIST

# The port is fixed by the build. Another test serving the same site may hold it for a while:
# the server waits a bounded time for it, then says plainly what is in the way.
python3 -u "$here/../support/site_server.py" "$port" "$scratch/site" "$port_timeout" >"$scratch/http.log" 2>&1 &
pids+=($!)
server=$!
timeout $((port_timeout + 10)) grep -q -m1 '^serving ' <(tail -n +1 -F --pid=$server "$scratch/http.log" 2>/dev/null) ||
    fail "port $port on 127.0.0.1 is taken: the program is built to fetch $site_url, so this test must serve it there (free the port, or configure TARNIC_SITE_URL with another loopback port). $(cat "$scratch/http.log")"
python3 - "$site_url/" <<'PY' || fail "the loopback site does not answer: $(cat "$scratch/http.log")"
import sys, urllib.request
urllib.request.urlopen(sys.argv[1], timeout=10).read()
PY

xvfb_start || fail "Xvfb did not start"

# The player's environment: a home and config folder of its own, the X11 platform.
export HOME=$scratch/home XDG_CONFIG_HOME=$scratch/home/.config XDG_RUNTIME_DIR=$scratch/run
mkdir -p "$XDG_CONFIG_HOME" && mkdir -m 700 "$XDG_RUNTIME_DIR"
export QT_QPA_PLATFORM=xcb

"$exe" >"$scratch/app.out" 2>"$scratch/app.err" &
pids+=($!)
app=$!

report() {
    echo "--- program stdout"; cat "$scratch/app.out"
    echo "--- program stderr"; tail -n 80 "$scratch/app.err"
    echo "--- site log"; cat "$scratch/http.log"
}

# Wait for whichever comes first: the main window, or the program ending without one.
timeout "$window_timeout" xdotool search --sync --onlyvisible --name '^Tarnic Pro$' \
    >"$scratch/windows" 2>/dev/null &
searcher=$!
pids+=($searcher)
wait -n -p first "$app" "$searcher" || true
if [ "$first" = "$app" ]; then
    report
    fail "the program ended before showing its window"
fi
window=$(head -n1 "$scratch/windows")
if [ -z "$window" ]; then
    report
    fail "no window named 'Tarnic Pro' appeared within ${window_timeout}s"
fi

# The version gate fetched the site's file and found a dictionary there. The server names the
# process behind each request: other programs on this machine may fetch from the same address.
if ! timeout "$fetch_timeout" grep -q -m1 "GET /.*tn11\\.plist HTTP/1\\.[01]\" 200 .* pid=$app\$" \
    <(tail -n +1 -F --pid=$$ "$scratch/http.log" 2>/dev/null); then
    report
    fail "the program did not fetch tn11.plist from $site_url"
fi

kill -0 "$app" 2>/dev/null || { report; fail "the program ended after showing its window"; }
# Xvfb offers RECORD, so the program reports that it can watch keys (printed before the fetch).
grep -qx "AXIsProcessTrusted true" "$scratch/app.out" ||
    { report; fail "the program did not report 'AXIsProcessTrusted true' on Xvfb"; }
# The main window, not a message box: those are far smaller than the editor's table and panels.
read -r width height < <(xwininfo -id "$window" | awk '/Width:/ { w = $2 } /Height:/ { h = $2 } END { print w, h }')
if [ "${width:-0}" -lt 600 ] || [ "${height:-0}" -lt 400 ]; then
    report
    fail "the window named 'Tarnic Pro' is ${width}x${height}: a message box, not the main window"
fi
# Docks tie the window to its launcher by the class the launcher names.
wm_class=$(sed -n 's/^StartupWMClass=//p' "$scratch"/root/usr/share/applications/*.desktop)
[ -n "$wm_class" ] || fail "the packaged launcher names no StartupWMClass"
window_class=$(xprop -id "$window" WM_CLASS)
[[ $window_class == *"\"$wm_class\""* ]] ||
    fail "the window's $window_class does not hold the launcher's class '$wm_class'"
echo "main window $window (${width}x${height}) on display $DISPLAY"
echo "site log: $(grep -m1 "pid=$app\$" "$scratch/http.log")"

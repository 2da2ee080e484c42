# Shared checks for the packaging tests. Sourced, not run, after `set -euo pipefail`.

# A command that fails outside an explicit check still says where, rather than ending silently.
trap 'echo "FAIL: unexpected failure of \"$BASH_COMMAND\" (line $LINENO of $(basename "$0"))" >&2' ERR

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# check_desktop_tree ROOT APP_ID "SIZES"
# ROOT is an installed prefix (or /usr inside an unpacked package). Checks that the program, the
# launcher, the metainfo and every icon are where desktops look for them, that one application id
# ties them together, and that each PNG has the size its folder promises.
check_desktop_tree() {
    local root=$1 id=$2 sizes=$3
    local desktop=$root/share/applications/$id.desktop
    local metainfo=$root/share/metainfo/$id.metainfo.xml

    [ -x "$root/bin/tarnic-pro" ] || fail "no executable $root/bin/tarnic-pro"
    [ -f "$desktop" ] || fail "no launcher $desktop"
    [ -f "$metainfo" ] || fail "no AppStream metainfo $metainfo"

    grep -qx "Exec=tarnic-pro" "$desktop" || fail "launcher does not start tarnic-pro"
    grep -qx "Icon=$id" "$desktop" || fail "launcher icon is not $id"
    grep -q "<id>$id</id>" "$metainfo" || fail "metainfo id is not $id"
    grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "$metainfo" ||
        fail "metainfo does not launch $id.desktop"
    grep -q "<binary>tarnic-pro</binary>" "$metainfo" || fail "metainfo does not provide tarnic-pro"

    local size png got
    for size in $sizes; do
        png=$root/share/icons/hicolor/${size}x${size}/apps/$id.png
        [ -f "$png" ] || fail "no ${size}x${size} icon $png"
        got=$(identify -format '%m %wx%h' "$png") || fail "unreadable icon $png"
        [ "$got" = "PNG ${size}x${size}" ] || fail "$png is '$got', expected 'PNG ${size}x${size}'"
    done
    local svg=$root/share/icons/hicolor/scalable/apps/$id.svg
    [ -f "$svg" ] || fail "no scalable icon $svg"
    grep -q '<svg' "$svg" || fail "$svg is not an SVG drawing"
    rsvg-convert --width 16 --height 16 "$svg" >/dev/null || fail "$svg does not render"
}

# check_site_module ROOT: the site module, which the program loads with the version check, is in
# the program's folder under ROOT's library folder (lib/tarnic-pro/modules, or the same under
# lib/<multiarch> for a /usr prefix), exactly once, and holds the one function the program calls.
# Prints its path.
check_site_module() {
    local root=$1 found
    found=$(find "$root/lib" -path '*/tarnic-pro/modules/tarnic-pro-site.so' -type f 2>/dev/null)
    [ -n "$found" ] || fail "no site module tarnic-pro-site.so under $root/lib/.../tarnic-pro/modules"
    [ "$(wc -l <<<"$found")" -eq 1 ] || fail "more than one site module under $root/lib: $found"
    nm -D --defined-only "$found" | grep -qw tarnic_site_get_v1 ||
        fail "$found does not export tarnic_site_get_v1"
    echo "$found"
}

# validate_desktop_files ROOT APP_ID: the freedesktop validators on the installed files, without
# network (the metainfo's URLs are not fetched).
validate_desktop_files() {
    local root=$1 id=$2
    desktop-file-validate "$root/share/applications/$id.desktop" ||
        fail "desktop-file-validate rejects the launcher"
    appstreamcli validate --no-net --explain "$root/share/metainfo/$id.metainfo.xml" ||
        fail "appstreamcli rejects the metainfo"
}

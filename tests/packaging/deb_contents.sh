#!/usr/bin/env bash
# Unpacks the package made by deb_build.sh into a scratch root and checks its fields, its files
# and that its Depends line covers every shared library the program links.
#   deb_contents.sh DEB_DIR APP_ID "ICON_SIZES" VERSION
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
out=$1 id=$2 sizes=$3 version=$4

shopt -s nullglob
debs=("$out"/tarnic-pro_*.deb)
[ ${#debs[@]} -eq 1 ] || fail "expected one tarnic-pro_*.deb in $out, found ${#debs[@]}"
deb=${debs[0]}

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
dpkg -x "$deb" "$scratch/root" || fail "dpkg -x cannot unpack $deb"

field() { dpkg-deb -f "$deb" "$1"; }
[ "$(field Package)" = tarnic-pro ] || fail "Package is '$(field Package)'"
[ "$(field Version)" = "$version" ] || fail "Version is '$(field Version)', expected '$version'"
arch=$(dpkg --print-architecture)
[ "$(field Architecture)" = "$arch" ] || fail "Architecture is '$(field Architecture)', expected '$arch'"
[ "$(basename "$deb")" = "tarnic-pro_${version}_${arch}.deb" ] || fail "unexpected file name $(basename "$deb")"

check_desktop_tree "$scratch/root/usr" "$id" "$sizes"
# The site module, which the program loads from its own folder under the library folder.
module=$(check_site_module "$scratch/root/usr")
# Nothing else rides along: no headers, static libraries or test programs of the build.
stray=$(cd "$scratch/root" && find . -type f ! -path ./usr/bin/tarnic-pro \
    ! -path "./usr/${module#"$scratch/root/usr/"}" \
    ! -path "./usr/share/applications/$id.desktop" ! -path "./usr/share/metainfo/$id.metainfo.xml" \
    ! -path "./usr/share/icons/hicolor/*/apps/$id.*" ! -path "./usr/share/doc/tarnic-pro/*" \
    ! -path ./usr/share/man/man1/tarnic-pro.1.gz)
[ -z "$stray" ] || fail "the package holds files it should not: $stray"
validate_desktop_files "$scratch/root/usr" "$id"

# What Debian asks of every package: the licence, a changelog and a manual page that man can read.
doc=$scratch/root/usr/share/doc/tarnic-pro
grep -q '^License: Expat' "$doc/copyright" || fail "no Expat licence in $doc/copyright"
grep -q 'Permission is hereby granted' "$doc/copyright" || fail "$doc/copyright lacks the licence text"
zcat "$doc/changelog.gz" | head -n 1 | grep -q "^tarnic-pro ($version) " ||
    fail "changelog.gz does not start with version $version"
page=$(MANWIDTH=80 man -l "$scratch/root/usr/share/man/man1/tarnic-pro.1.gz" 2>&1) ||
    fail "man cannot format tarnic-pro(1): $page"
grep -Eq 'tarnic-pro +- hotkey editor' <<<"$page" || fail "tarnic-pro(1) has no NAME line"
# The program and its module carry nothing for tests or benchmarks: no switch to the recording fakes, no exit for
# the start-up benchmark.
# (XTestFakeKeyEvent is the X server's call for typing a key, not a fake of ours, and
# _TARNIC_PRO_KEYPAD_KEYCODES names the root-window note on the keycodes the program claims.)
switches=$(strings "$scratch/root/usr/bin/tarnic-pro" "$module" | grep -E '(^|[^_])TARNIC_[A-Z_]+|BENCH|[Ff]ake' |
    grep -v -e '^XTestFakeKeyEvent$' -e '^_TARNIC_PRO_KEYPAD_KEYCODES$' || true)
[ -z "$switches" ] || fail "the program holds test or benchmark switches: $switches"
# A home page is only named for a real site, never for the loopback copy of it.
homepage=$(field Homepage)
case "$homepage" in
*://127.* | *://localhost* | *://\[::1\]*) fail "Homepage names the loopback site $homepage" ;;
esac

# Depends: every library the program or its module needs must come from a package the Depends line
# names. The C library always comes with the minimum version its symbols ask for: dpkg-shlibdeps
# wrote the line.
depends=$(field Depends)
[ -n "$depends" ] || fail "the package has no Depends line"
echo "Depends: $depends"
declare -A wanted=()
# The package that owns a library file; Debian lists some under /lib, some under /usr/lib.
owner_of() {
    local path candidates=("$1" "$(readlink -f "$1")")
    for path in "${candidates[@]}"; do
        candidates+=("${path#/usr}" "/usr${path#/usr}")
    done
    for path in "${candidates[@]}"; do
        if dpkg -S "$path" >/dev/null 2>&1; then
            dpkg -S "$path" | awk -F: 'NR == 1 { print $1 }'
            return
        fi
    done
}
for elf in "$scratch/root/usr/bin/tarnic-pro" "$module"; do
    # Read whole, never cut short: a reader that stops early would kill the writer with SIGPIPE.
    resolved=$(ldd "$elf") || fail "ldd cannot resolve the libraries of $elf"
    while read -r soname; do
        # ldd writes "soname => path (address)", but the dynamic loader (named once the program uses
        # thread-local storage) as "path (address)".
        lib=$(awk -v s="$soname" '!found && (($1 == s && $2 == "=>" && $3 ~ /^\//) ||
            ($1 ~ ("/" s "$") && $2 ~ /^\(/)) { print ($2 == "=>" ? $3 : $1); found = 1 }' <<<"$resolved")
        [ -n "$lib" ] && [ -e "$lib" ] || fail "$elf needs $soname, which this system does not have"
        owner=$(owner_of "$lib")
        [ -n "$owner" ] || fail "no Debian package owns $lib (needed as $soname)"
        wanted[$owner]=$soname
    done < <(readelf -d "$elf" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
done
[ ${#wanted[@]} -gt 0 ] || fail "readelf found no shared library the program needs"

IFS=',' read -ra entries <<<"$depends"
for pkg in "${!wanted[@]}"; do
    found=
    for entry in "${entries[@]}"; do
        entry=${entry# }
        if [ "$entry" = "$pkg" ] || [[ $entry == "$pkg ("*")" ]]; then
            found=$entry
        fi
    done
    [ -n "$found" ] || fail "Depends lacks $pkg, which provides ${wanted[$pkg]}"
    echo "  ${wanted[$pkg]} <- $found"
done
[[ ", $depends," == *", libc6 (>= "*")"* ]] || fail "Depends has no versioned libc6: not computed by dpkg-shlibdeps"
echo "package $(basename "$deb") is complete"

#!/usr/bin/env bash
# Runs one freedesktop validator on a prefix made by install_tree.sh.
#   validate_installed.sh desktop|appstream PREFIX APP_ID
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/common.sh"
what=$1 prefix=$2 id=$3

case $what in
desktop)
    desktop-file-validate "$prefix/share/applications/$id.desktop" ||
        fail "desktop-file-validate rejects the installed launcher"
    ;;
appstream)
    appstreamcli validate --no-net --explain "$prefix/share/metainfo/$id.metainfo.xml" ||
        fail "appstreamcli rejects the installed metainfo"
    # The whole tree too: this also checks that the metainfo's launchable names a launcher that
    # is really installed beside it.
    appstreamcli validate-tree --no-net "$prefix" || fail "appstreamcli rejects the installed tree"
    ;;
*) fail "unknown validator '$what'" ;;
esac

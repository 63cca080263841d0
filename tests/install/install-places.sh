#!/usr/bin/env bash
# Installs the build into a temporary DESTDIR and checks that every file lands
# where a Linux desktop looks for it, and that the desktop entry and the
# AppStream metadata validate and name each other and the icon.
set -euo pipefail
. "$(dirname "$0")/common.sh"
build=$1
app_id=$2
need_tools desktop-file-validate appstreamcli
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
install_into "$build" "$work"
usr=$work/usr

for file in \
    bin/slicewright \
    share/slicewright/help/MainHelp.htm \
    "share/applications/$app_id.desktop" \
    "share/metainfo/$app_id.metainfo.xml" \
    "share/icons/hicolor/scalable/apps/$app_id.svg" \
    "share/icons/hicolor/48x48/apps/$app_id.png" \
    "share/icons/hicolor/256x256/apps/$app_id.png" \
    share/man/man1/slicewright.1.gz \
    share/doc/slicewright/copyright \
    share/doc/slicewright/changelog.Debian.gz; do
    [ -f "$usr/$file" ] || fail "not installed: /usr/$file"
done
[ -x "$usr/bin/slicewright" ] || fail "/usr/bin/slicewright is not executable"
# Nothing of the build's own layout leaks into the installation: under lib/
# there is only the module of Qt's image readers, and the installed programs
# load that one, not the build's.
module=$(cd "$usr" && find lib -type f)
[ "$module" = lib/slicewright/readers/libslicewright-qtreader.so ] ||
    fail "lib/ holds $module, not only lib/slicewright/readers/libslicewright-qtreader.so"
data=$(cd "$(dirname "$0")/../data" && pwd)
LD_DEBUG=files "$usr/bin/slicewright-cut" "$data/small.gif" --grid 2x2 -o "$work/pieces" --quiet \
    2>"$work/loaded" || fail "the installed slicewright-cut could not cut a GIF: $(grep -v '^ *[0-9]*:' "$work/loaded")"
grep -q "file=$usr/lib/slicewright/readers/libslicewright-qtreader.so .*dynamically loaded" "$work/loaded" ||
    fail "the installed slicewright-cut did not load the installed reader module"
[ "$(ls "$work/pieces" | wc -l)" = 4 ] || fail "the GIF was not cut into 4 pieces"
[ ! -e "$usr/bin/Help" ] || fail "the help page went beside the program in /usr/bin"

# The installed page's links and images all resolve where it was installed.
"$(dirname "$0")/../../scripts/check-help" "$usr/share/slicewright/help" ||
    fail "the installed help page has broken links or images"

for size in 48 256; do
    geometry=$(/usr/bin/identify -format '%wx%h' "$usr/share/icons/hicolor/${size}x${size}/apps/$app_id.png")
    [ "$geometry" = "${size}x${size}" ] || fail "the ${size} px icon is $geometry"
done

desktop=$usr/share/applications/$app_id.desktop
desktop-file-validate "$desktop" || fail "desktop-file-validate rejects $app_id.desktop"
appstreamcli validate --no-net "$usr/share/metainfo/$app_id.metainfo.xml" ||
    fail "appstreamcli rejects $app_id.metainfo.xml"
grep -qx 'Exec=slicewright %f' "$desktop" || fail "the desktop entry does not start slicewright %f"
grep -qx "Icon=$app_id" "$desktop" || fail "the desktop entry does not name the icon $app_id"
grep -qx 'MimeType=image/bmp;image/jpeg;image/gif;' "$desktop" || fail "the desktop entry's MimeType"
grep -q "<launchable type=\"desktop-id\">$app_id.desktop</launchable>" \
    "$usr/share/metainfo/$app_id.metainfo.xml" || fail "the metadata does not launch $app_id.desktop"
echo "installed places and metadata: OK"

#!/usr/bin/env bash
# The Debian package, as CI (root on a fresh Debian 12) checks it: cpack builds
# it with dependencies from the linked libraries, lintian finds no errors, dpkg
# installs it, the installed program, started through its desktop entry as a
# file manager starts it, opens the picture handed to it under Xvfb and opens
# the installed help page, and the package goes again.
set -euo pipefail
. "$(dirname "$0")/common.sh"
build=$(cd "$1" && pwd)
repository=$(cd "$(dirname "$0")/../.." && pwd)
need_tools cpack lintian dpkg dpkg-shlibdeps xvfb-run gio
sudo_cmd=()
[ "$(id -u)" -eq 0 ] || sudo_cmd=(sudo)
dpkg-query -W -f='${Status}' slicewright 2>/dev/null | grep -q "install ok installed" &&
    fail "a slicewright package is installed already; remove it first (dpkg -r slicewright)"

rm -f "$build"/slicewright_*.deb
(cd "$build" && cpack -G DEB >/dev/null) || fail "cpack -G DEB failed"
package=$(ls "$build"/slicewright_*.deb)
echo "built $(basename "$package") ($(stat -c %s "$package") bytes)"

depends=$(dpkg-deb -f "$package" Depends)
for library in libqt6widgets6 libqt6gui6 libqt6core6 libturbojpeg0 libc6; do
    [[ "$depends" == *"$library "* ]] || fail "Depends does not name $library: $depends"
done

lintian --fail-on error "$package" >"$build/lintian.txt" || fail "lintian reports errors: $(cat "$build/lintian.txt")"
# The one warning a package outside Debian cannot help; any other is a fault of ours.
warnings=$(grep -v 'initial-upload-closes-no-bugs' "$build/lintian.txt" | grep '^W:' || true)
[ -z "$warnings" ] || fail "lintian warns: $warnings"

"${sudo_cmd[@]}" dpkg -i "$package" >/dev/null || fail "dpkg -i failed"
trap '"${sudo_cmd[@]}" dpkg -r slicewright >/dev/null 2>&1 || true' EXIT
status=0
QT_QPA_PLATFORM=xcb xvfb-run -a -s "-screen 0 1280x1024x24" \
    "$repository/tests/qt/with-window-manager.sh" \
    "$repository/tests/install/installed-program.sh" / "$repository/tests/data" \
    "$(dpkg -L slicewright | grep '^/usr/share/applications/.*\.desktop$')" || status=$?
"${sudo_cmd[@]}" dpkg -r slicewright >/dev/null || fail "dpkg -r failed"
trap - EXIT
[ "$status" -eq 0 ] || fail "the installed package's program failed its checks"
[ ! -e /usr/bin/slicewright ] || fail "/usr/bin/slicewright is left after the package was removed"
echo "package: OK"

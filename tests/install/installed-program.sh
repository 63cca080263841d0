#!/usr/bin/env bash
# The installed program on a real X display under a window manager: a picture
# named on its command line (here by a relative path) opens as if chosen in the
# Open dialog, Help opens the installed page, and a picture that cannot be
# opened brings the opening's message while the program stays up with none.
# Run it under xvfb-run and tests/qt/with-window-manager.sh, with a build
# folder (installed here into a temporary DESTDIR) or "/" for the program that
# the package installed. With a desktop entry as third argument, the picture
# is handed over through that entry, as a file manager does (gio launch).
set -euo pipefail
. "$(dirname "$0")/common.sh"
installation=$1
data=$(cd "$2" && pwd)
desktop_entry=${3:-}
need_tools xdotool
[ -n "${DISPLAY:-}" ] || fail "no X display: run this under xvfb-run"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
root=
if [ "$installation" != / ]; then
    root=$work
    install_into "$installation" "$root"
fi
program=$root/usr/bin/slicewright
[ -x "$program" ] || fail "$program is not installed"

# The desktop's opener records what it is asked to open instead of opening it.
mkdir -p "$work/opener"
cat >"$work/opener/xdg-open" <<OPENER
#!/bin/sh
echo "\$@" >>"$work/opened"
OPENER
chmod +x "$work/opener/xdg-open"
export PATH="$work/opener:$PATH"
# The pointer away from the window, whose title follows it over a picture.
xdotool mousemove 0 0

echo "== a picture on the command line, then Help"
fresh_home "$work/good"
if [ -n "$desktop_entry" ]; then
    need_tools gio
    (cd "$data" && gio launch "$desktop_entry" small.bmp) || fail "gio launch $desktop_entry failed"
    window=$(wait_window Slicewright)
    pid=$(xdotool getwindowpid "$window")
    [ "$(readlink "/proc/$pid/exe")" = "$(readlink -f "$program")" ] ||
        fail "the desktop entry started $(readlink "/proc/$pid/exe"), not $program"
else
    (cd "$data" && exec "$program" small.bmp) &
    pid=$!
    window=$(wait_window Slicewright)
fi
sleep 1
# The last item of the menu bar is Help.
press "$window" alt Left Return
sleep 1
opened=$(cat "$work/opened" 2>/dev/null || true)
[ "$opened" = "file://$root/usr/share/slicewright/help/MainHelp.htm" ] ||
    fail "Help opened \"$opened\", not the installed page"
close_program "$window" "$pid"
[ "$(stored_setting LastPicture)" = "$data/small.bmp" ] ||
    fail "the picture on the command line was not opened: LastPicture=$(stored_setting LastPicture)"
[ "$(stored_setting LastOpenDir)" = "$data" ] || fail "LastOpenDir is not the picture's folder"

echo "== a picture that cannot be opened"
fresh_home "$work/bad"
"$program" "$data/notapicture.jpg" &
pid=$!
box=$(wait_window "Cannot Open Picture")
press "$box" Return
kill -0 "$pid" 2>/dev/null || fail "the program ended after the message"
window=$(wait_window Slicewright)
close_program "$window" "$pid"
[ -z "$(stored_setting LastPicture | tr -d ' "')" ] ||
    fail "a picture that failed became LastPicture: $(stored_setting LastPicture)"
[ "$(stored_setting LastOpenDir)" = "$HOME/Pictures" ] ||
    fail "the failed picture moved LastOpenDir: $(stored_setting LastOpenDir)"
echo "installed program: OK"

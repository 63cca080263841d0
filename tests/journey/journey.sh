#!/bin/bash
# One user's journey through the real program, driven by real X events
# (xdotool) on the current X display, under a window manager: open a JPG
# through the file dialog, draw a black horizontal and a red vertical line
# with clicks, scroll with the wheel, export JPG sections with an HTML table
# to a file, then check every section pixel for pixel against ImageMagick's
# crop of the same picture, encoded the same way. Every step and dialog is
# saved as a screenshot in OUT. Any failing step fails the whole journey.
#
#   journey.sh PROGRAM OUT
set -euo pipefail

program=$1
out=$2
convert=/usr/bin/convert
compare=/usr/bin/compare
identify=/usr/bin/identify
import=/usr/bin/import

fail() {
    echo "FAIL: $*" >&2
    "$import" -window root "$out/shots/failure.png" 2>/dev/null || true
    [[ -n ${app:-} ]] && kill "$app" 2>/dev/null
    exit 1
}

for tool in "$convert" "$compare" "$identify" "$import" "$(command -v xdotool || true)" \
    "$(command -v xwininfo || true)"; do
    [[ -n $tool && -x $tool ]] || fail "a tool is missing: ${tool:-xdotool or xwininfo} (packages imagemagick, xdotool, x11-utils)"
done

rm -rf "$out"
mkdir -p "$out/shots" "$out/sections" "$out/config"
picture=$out/plasma.jpg
"$convert" -size 640x480 plasma:fractal -seed 7 -quality 95 "$picture" ||
    fail "could not make the picture"

shot_number=0
shot() {
    shot_number=$((shot_number + 1))
    sleep 0.4
    "$import" -window root "$out/shots/$(printf %02d "$shot_number")-$1.png" || fail "screenshot $1"
}

# wait_window NAME: the id of the visible window whose title is NAME.
# (A search may meet a window that goes meanwhile; it is asked again.)
wait_window() {
    local found
    for _ in $(seq 600); do
        found=$(xdotool search --onlyvisible --name "^$1\$" 2>/dev/null | head -1 || true)
        [[ -n $found ]] && { echo "$found"; return; }
        sleep 0.1
    done
    fail "no window \"$1\" showed"
}

# press_in TITLE KEY...: the keys in the window of that title, made active
# first, as a user's click on it would.
press_in() {
    local window
    window=$(wait_window "$1")
    shift
    xdotool windowactivate --sync "$window" 2>/dev/null || xdotool windowfocus --sync "$window"
    sleep 0.3
    xdotool key "$@"
}

# type_name NAME: a file name of letters and dots, key by key.
type_name() {
    local keys=() char
    for ((i = 0; i < ${#1}; i++)); do
        char=${1:i:1}
        [[ $char == . ]] && keys+=(period) || keys+=("$char")
    done
    xdotool key --delay 60 "${keys[@]}"
}

title() {
    xdotool getwindowname "$main"
}

# The program's picture position under the screen point X Y, from the title.
# The pointer comes from one pixel below, and the title is read once it has
# changed to show the point itself, so that a busy program is never read late.
position_at() {
    xdotool mousemove "$1" "$(($2 + 1))"
    local below="" shown=""
    for _ in $(seq 50); do
        below=$(title)
        [[ $below == *Position:* ]] && break
        sleep 0.1
    done
    xdotool mousemove "$1" "$2"
    for _ in $(seq 50); do
        shown=$(title)
        [[ $shown != "$below" && $shown == *Position:* ]] && break
        sleep 0.1
    done
    [[ $shown =~ Current\ Position:\ ([0-9]+),([0-9]+) ]] ||
        fail "the title shows no position at $1,$2: \"$shown\""
    echo "${BASH_REMATCH[1]} ${BASH_REMATCH[2]}"
}

# The stored choice of the finish dialog: the table goes to a file.
# The dialogs open in the journey's folders, so that short names are typed.
printf '[Slicewright]\nHTMLOut=F\nJPGComp=90\nLastOpenDir=%s\nLastSaveDir=%s\n' "$out" \
    "$out/sections" >"$out/config/Corvane-Studio.ini"
export XDG_CONFIG_HOME=$out/config

"$program" &
app=$!
main=$(wait_window Slicewright)
xdotool windowactivate --sync "$main" 2>/dev/null || true
shot start

# File, Open with its key; the dialog's name field has the focus.
xdotool key --window "$main" ctrl+o
sleep 1.5
shot open-dialog
type_name plasma.jpg
xdotool key Return
sleep 1.5
shot picture-open
kill -0 "$app" || fail "the program ended while opening the picture"

# Where the picture stands on the screen: its pixel 100,100 is found from
# the title, which shows the position under the pointer.
read -r wx wy < <(xwininfo -id "$main" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4} END {print x, y}')
guess_x=$((wx + 8 + 100))
guess_y=$((wy + 60 + 100))
read -r px py < <(position_at "$guess_x" "$guess_y")
origin_x=$((guess_x - px))
origin_y=$((guess_y - py))
at() { echo "$((origin_x + $1)) $((origin_y + $2))"; }

# A black horizontal line at row 200 (the draw mode and colour at start).
read -r sx sy < <(at 320 200)
read -r cx cy < <(position_at "$sx" "$sy")
[[ "$cx,$cy" == 320,200 ]] || fail "the pointer stands at $cx,$cy, not 320,200"
xdotool click 1
sleep 0.5
# Red from the Line Color menu (Alt+L, then the second entry), then the
# vertical draw mode from the Edit menu's Draw Mode submenu.
xdotool key alt+l
sleep 0.5
shot line-color-menu
xdotool key Down Return
sleep 0.3
xdotool key alt+e
sleep 0.5
xdotool key Right
sleep 0.3
shot draw-mode-menu
xdotool key Down Return
sleep 0.3
read -r sx sy < <(at 300 100)
read -r cx cy < <(position_at "$sx" "$sy")
[[ "$cx,$cy" == 300,100 ]] || fail "the pointer stands at $cx,$cy, not 300,100"
xdotool click 1
sleep 0.5
shot lines-in-two-colours

# The drawn lines are on the screen: black along row 200, red along column 300.
"$import" -window root "$out/screen.png"
read -r bx by < <(at 100 200)
read -r rx ry < <(at 300 300)
black=$("$convert" "$out/screen.png" -format "%[pixel:p{$bx,$by}]" info:)
red=$("$convert" "$out/screen.png" -format "%[pixel:p{$rx,$ry}]" info:)
[[ $black == "srgb(0,0,0)" || $black == black ]] || fail "no black line on the screen: $black"
[[ $red == "srgb(255,0,0)" || $red == red ]] || fail "no red line on the screen: $red"

# The wheel: in a window smaller than the picture, turning it down twice
# moves the picture up under the pointer.
xdotool windowsize --sync "$main" 400 300 || fail "the window could not be resized"
sleep 1
read -r wx wy < <(xwininfo -id "$main" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4} END {print x, y}')
read -r before_x before_y < <(position_at "$((wx + 150))" "$((wy + 150))")
xdotool click 5 click 5
sleep 0.5
read -r after_x after_y < <(position_at "$((wx + 150))" "$((wy + 150))")
((after_y > before_y)) || fail "the wheel did not scroll: $before_y then $after_y"
[[ $after_x == "$before_x" ]] || fail "the wheel moved the picture across"
shot scrolled-with-the-wheel

# File, Create Sections with its key: JPG sections named cut.
press_in "Slicewright( - .*)?" ctrl+e
wait_window "Choose folder to save sections in" >/dev/null
shot save-sections-dialog
type_name cut.jpg
xdotool key Return
wait_window "Picture Dissection" >/dev/null
shot finish-dialog
# Continue, the button at the bottom centre of the dialog.
finish=$(wait_window "Picture Dissection")
read -r fx fy fw fh < <(xwininfo -id "$finish" | awk '/Absolute upper-left X/ {x=$4} /Absolute upper-left Y/ {y=$4} /Width:/ {w=$2} /Height:/ {h=$2} END {print x, y, w, h}')
xdotool mousemove "$((fx + fw / 2))" "$((fy + fh - 22))" click 1
# The table goes to the file beside the sections with no further question.
wait_window "Clear Verification" >/dev/null
shot clear-lines-question
# Keep the lines.
press_in "Clear Verification" Escape
sleep 1
shot after-export

# The files: four sections and the table.
html=$out/sections/cut.html
[[ -s $html ]] || fail "no HTML table at $html"
for n in 1 2 3 4; do
    [[ -s $out/sections/cut$n.jpg ]] || fail "section cut$n.jpg is missing"
done
grep -q "cut4.jpg" "$html" || fail "the table does not name cut4.jpg"

# Each section against ImageMagick's crop of the same picture, encoded at
# the same quality with the same chroma subsampling: every pixel the same.
check_section() {
    local n=$1 x=$2 y=$3 w=$4 h=$5
    local file=$out/sections/cut$n.jpg
    local size
    size=$("$identify" -format '%wx%h' "$file") || fail "cut$n.jpg does not decode"
    [[ $size == "${w}x${h}" ]] || fail "cut$n.jpg is $size, not ${w}x${h}"
    "$convert" "$picture" -crop "${w}x${h}+${x}+${y}" +repage -quality 90 \
        -sampling-factor 2x2 "$out/expected$n.jpg"
    local differing
    differing=$("$compare" -metric AE "$file" "$out/expected$n.jpg" null: 2>&1) || true
    [[ $differing == 0 ]] || fail "cut$n.jpg differs from its crop in $differing pixels"
}
check_section 1 0 0 300 200
check_section 2 300 0 340 200
check_section 3 0 200 300 280
check_section 4 300 200 340 280

# Exit with its key, in the main window made active again: its title has
# changed since the start, and a key sent to a window id that X no longer
# focuses is refused by the server.
press_in "Slicewright( - .*)?" ctrl+q
for _ in $(seq 50); do
    kill -0 "$app" 2>/dev/null || break
    sleep 0.1
done
kill -0 "$app" 2>/dev/null && fail "the program did not end after Ctrl+Q"
wait "$app" || fail "the program ended with an error"
echo "journey passed; screenshots in $out/shots"

#!/bin/bash
# Checks an export from outside the program: the scenario runner cuts a real
# picture along an uneven grid (drawing the lines in red on the working copy),
# then ImageMagick decodes every section and compares it with its rectangle
# of the clean picture, and headless Chromium renders the HTML table beside
# the BMP sections, which must give the picture back pixel for pixel; so
# must a table whose grid has sections without area, kept as empty cells.
#
#   check-export-output.sh files|browser RUNNER PICTURE WORKDIR
set -euo pipefail

tests=$(cd "$(dirname "$0")/.." && pwd)
# shellcheck source=SCRIPTDIR/../lib/checks.sh
. "$tests/lib/checks.sh"
# shellcheck source=SCRIPTDIR/../lib/window-script.sh
. "$tests/lib/window-script.sh"
render_page=$tests/render-in-chromium.sh
mode=$1
runner=$2
picture=$3
work=$4

need_tools "$convert" "$compare" "$identify"

# The grid, uneven on purpose: columns of 13, 87, 122 and 78 pixels, rows of 37, 83 and 80.
hlines=(37 120)
vlines=(13 100 222)
read -r width height < <("$identify" -format '%w %h\n' "$picture")

rm -rf "$work"
mkdir -p "$work/bmp" "$work/jpg" "$work/degenerate"
cd "$work"

# The window's export with the red pen, so that a section drawn on would show.
opening() {
    open_picture "$picture"
    echo event mnuRed_Click
}

{
    opening
    draw_lines Horizontal "${hlines[@]}"
    draw_lines Vertical "${vlines[@]}"
    export_to bmp/Tile.bmp
    export_to jpg/Tile.jpg
} > export.scn
"$runner" export.scn > transcript.txt || fail "the scenario runner stopped: $(tail -3 transcript.txt)"

# Two lines on one place, a line at 0 and one past the right edge: sections
# without area, whose empty cells must take no room in the table.
{
    opening
    draw_lines Horizontal 80 80 0
    draw_lines Vertical 100 $((width + 20))
    export_to degenerate/Tile.bmp Yes
} > degenerate.scn
"$runner" degenerate.scn > degenerate.txt || fail "the scenario runner stopped: $(tail -3 degenerate.txt)"

# Edges of the grid, computed here independently of the program.
xs=(0 "${vlines[@]}" "$width")
ys=(0 "${hlines[@]}" "$height")

# PSNR of one picture against another in hundredths of a dB (99999 when equal).
psnr() {
    local db
    db=$(psnr_db "$1" "$2")
    [[ $db == inf ]] && { echo 99999; return; }
    awk -v db="$db" 'BEGIN { printf "%d\n", db * 100 }'
}

# A start one pixel off, still inside the picture.
nudged() {
    local start=$1 size=$2 limit=$3
    if ((start + size < limit)); then echo $((start + 1)); else echo $((start - 1)); fi
}

# A JPG section is close to its rectangle, and closer to it than to the
# rectangle one pixel to the side or below: so it is neither drawn on nor misplaced.
check_jpg() {
    local file=$1 clean=$2 x=$3 y=$4 w=$5 h=$6
    local own
    own=$(psnr "$file" "$clean")
    ((own >= 2800)) || fail "$file: PSNR $((own / 100)) dB is below 28"
    "$convert" "$picture" -crop "${w}x${h}+$(nudged "$x" "$w" "$width")+${y}" +repage beside.png
    "$convert" "$picture" -crop "${w}x${h}+${x}+$(nudged "$y" "$h" "$height")" +repage below.png
    ((own > $(psnr "$file" beside.png))) || fail "$file matches the rectangle beside it better"
    ((own > $(psnr "$file" below.png))) || fail "$file matches the rectangle below it better"
    # A red line along the top row or left column would show there first.
    "$convert" "$file" -crop "${w}x1+0+0" +repage top.png
    "$convert" "$clean" -crop "${w}x1+0+0" +repage cleantop.png
    (($(psnr top.png cleantop.png) >= 2400)) || fail "$file: its top row looks drawn on"
    "$convert" "$file" -crop "1x${h}+0+0" +repage left.png
    "$convert" "$clean" -crop "1x${h}+0+0" +repage cleanleft.png
    (($(psnr left.png cleanleft.png) >= 2400)) || fail "$file: its left column looks drawn on"
}

check_sections() {
    local number=0
    for ((r = 0; r < ${#ys[@]} - 1; r++)); do
        for ((c = 0; c < ${#xs[@]} - 1; c++)); do
            number=$((number + 1))
            local x=${xs[c]} y=${ys[r]}
            local w=$((xs[c + 1] - x)) h=$((ys[r + 1] - y))
            "$convert" "$picture" -crop "${w}x${h}+${x}+${y}" +repage "clean$number.png"
            local size
            size=$("$identify" -format '%wx%h' "bmp/Tile$number.bmp") || fail "bmp/Tile$number.bmp does not decode"
            [[ $size == "${w}x${h}" ]] || fail "Tile$number.bmp is $size, not ${w}x${h}"
            same_pixels "bmp/Tile$number.bmp" "clean$number.png"
            size=$("$identify" -format '%wx%h' "jpg/Tile$number.jpg") || fail "jpg/Tile$number.jpg does not decode"
            [[ $size == "${w}x${h}" ]] || fail "Tile$number.jpg is $size, not ${w}x${h}"
            check_jpg "jpg/Tile$number.jpg" "clean$number.png" "$x" "$y" "$w" "$h"
        done
    done
    echo "checked $number BMP and $number JPG sections"
}

# render_table HTML SHOWN: the table as the browser shows it, cut to the picture's
# size; the page's body keeps its default margin of 8 pixels, where the table starts.
render_table() {
    "$render_page" "$work/$1" "$2" "$width" "$height" 8 ||
        fail "no rendering of $1"
}

check_browser() {
    for html in bmp/Tile.html degenerate/Tile.html; do
        render_table "$html" "${html%.html}-shown.png"
        same_pixels "${html%.html}-shown.png" "$picture"
        echo "$html renders the picture pixel for pixel"
    done
}

case $mode in
files) check_sections ;;
browser) check_browser ;;
*) fail "unknown mode $mode" ;;
esac

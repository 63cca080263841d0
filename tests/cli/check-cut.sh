#!/bin/bash
# Drives slicewright-cut as a user does, from outside, and checks what it
# leaves on disk with tools of its own: ImageMagick crops every rectangle
# independently, jq reads the manifest, headless Chromium renders the pages,
# and the scenario runner writes the window's HTML table for comparison.
#
#   check-cut.sh GROUP CUT RUNNER DATA WORKDIR
set -euo pipefail

tests=$(cd "$(dirname "$0")/.." && pwd)
# shellcheck source=SCRIPTDIR/../lib/checks.sh
. "$tests/lib/checks.sh"
# shellcheck source=SCRIPTDIR/../lib/window-script.sh
. "$tests/lib/window-script.sh"
render_page=$tests/render-in-chromium.sh
group=$1
cut=$2
runner=$3
data=$4
work=$5

need_tools "$convert" "$compare" "$identify" "$jq"

rm -rf "$work"
mkdir -p "$work"
cd "$work"
# The plasma picture (300 x 200) as BMP and as a JPG "photo".
cp "$data/export-plasma.bmp" plasma.bmp
"$convert" plasma.bmp -quality 92 photo.jpg

# expect STATUS COMMAND...: runs the command, keeps its output in out.txt and
# err.txt, and fails unless it ends with STATUS.
expect() {
    local want=$1
    shift
    local got=0
    "$@" > out.txt 2> err.txt || got=$?
    [[ $got == "$want" ]] || fail "exit $got, not $want: $*
--- stdout:
$(cat out.txt)
--- stderr:
$(cat err.txt)"
}

count_files() { find "$1" -type f -name "$2" | wc -l; }

# The rectangle of a manifest's section as ImageMagick's geometry WxH+X+Y.
geometry_of() {
    "$jq" -r ".sections[] | select(.number == $2) | \"\(.width)x\(.height)+\(.left)+\(.top)\"" "$1"
}

# Every written section of a manifest equals the independent crop of its
# rectangle pixel for pixel (lossless formats), and the rectangles tile the picture.
check_manifest() {
    local manifest=$1 picture=$2
    local width height area=0
    read -r width height < <("$identify" -format '%w %h\n' "$picture")
    [[ $("$jq" .width "$manifest") == "$width" && $("$jq" .height "$manifest") == "$height" ]] ||
        fail "$manifest: wrong picture size"
    while read -r number file; do
        local geometry
        geometry=$(geometry_of "$manifest" "$number")
        "$convert" "$picture" -crop "$geometry" +repage "crop-$geometry.png"
        same_pixels "$file" "crop-$geometry.png"
        area=$((area + $("$identify" -format '%w*%h' "$file")))
    done < <("$jq" -r '.sections[] | select(.file != null) | "\(.number) \(.file)"' "$manifest")
    ((area == width * height)) || fail "$manifest: the pieces cover $area pixels, not $((width * height))"
}

# The window's export of the same lines, through the scenario runner: its HTML table.
window_table() {
    local picture=$1 save=$2 hlines=$3 vlines=$4 empty_answer=${5:-}
    {
        open_picture "$picture"
        # shellcheck disable=SC2086
        draw_lines Horizontal $hlines
        # shellcheck disable=SC2086
        draw_lines Vertical $vlines
        export_to "$save" "$empty_answer"
    } > window.scn
    "$runner" window.scn > window.txt || fail "the scenario runner stopped: $(tail -3 window.txt)"
}

# render PAGE SHOT WIDTH HEIGHT MARGIN: the page as Chromium shows it, cut to the picture.
render() {
    "$render_page" "$@" || fail "no rendering of $1"
}

group_options() {
    # --grid: the window's equal division, 200 / 3 gives lines at 67 and 133.
    expect 0 "$cut" plasma.bmp --grid 3x2 -o grid --manifest grid/m.json
    [[ $(count_files grid 'plasma*.bmp') == 6 ]] || fail "--grid 3x2 did not give 6 BMP pieces"
    [[ $(geometry_of grid/m.json 3) == 150x66+0+67 ]] || fail "--grid rows: $(geometry_of grid/m.json 3)"
    [[ $(geometry_of grid/m.json 6) == 150x67+150+133 ]] || fail "--grid last: $(geometry_of grid/m.json 6)"
    # A count of 1 leaves a direction undivided.
    expect 0 "$cut" plasma.bmp --grid 1x4 -o strips --manifest strips/m.json
    [[ $("$jq" '.rows, .columns' strips/m.json | xargs) == "1 4" ]] || fail "--grid 1x4 is no row of four"
    # --tile: the last row and column take what is left.
    expect 0 "$cut" plasma.bmp --tile 128x64 -o tile --manifest tile/m.json -f png
    [[ $(geometry_of tile/m.json 3) == 44x64+256+0 ]] || fail "--tile last column: $(geometry_of tile/m.json 3)"
    [[ $(geometry_of tile/m.json 12) == 44x8+256+192 ]] || fail "--tile last piece: $(geometry_of tile/m.json 12)"
    check_manifest tile/m.json plasma.bmp
    # --lines: a line file, unsorted and in lower case, as the window loads it.
    printf '"V120"\r\n"h150"\r\nH40\r\n' > set.ple
    expect 0 "$cut" plasma.bmp --lines set.ple -o lines --manifest lines/m.json -f png
    [[ $(geometry_of lines/m.json 3) == 120x110+0+40 ]] || fail "--lines: $(geometry_of lines/m.json 3)"
    check_manifest lines/m.json plasma.bmp
    # --h/--v, with a duplicate and a line past the edge: sections without area,
    # named on standard error, not written, kept in the manifest without a file.
    expect 0 "$cut" plasma.bmp --h 50,50 --v 100,400 -o explicit --manifest explicit/m.json -f png
    grep -q "section(s) 3, 4, 5, 6, 9 have no area" err.txt || fail "no word of the empty sections: $(cat err.txt)"
    [[ $("$jq" '[.sections[] | select(.file == null)] | length' explicit/m.json) == 5 ]] ||
        fail "the manifest does not keep the five empty sections"
    check_manifest explicit/m.json plasma.bmp
    # Names: the pattern with padding, and the window's names by default.
    expect 0 "$cut" plasma.bmp --grid 2x2 -o names --name '{base}-r{row:02}c{col:02}-{n:03}' -f png
    [[ -f names/plasma-r02c01-003.png ]] || fail "padded names: $(ls names)"
    # The default format follows the picture: JPG for a JPG, BMP for anything else.
    expect 0 "$cut" photo.jpg --grid 2x2 -o default
    [[ $(count_files default 'photo?.jpg') == 4 ]] || fail "a JPG picture did not give JPG pieces"
    for format in bmp jpg png webp; do
        expect 0 "$cut" plasma.bmp --grid 3x3 -o "fmt-$format" -f "$format" -q 80 --verify
        [[ $(count_files "fmt-$format" "plasma*.$format") == 9 ]] || fail "-f $format did not give 9 pieces"
        grep -q verified out.txt || fail "-f $format: no verification in $(cat out.txt)"
        [[ $("$identify" -format '%m' "fmt-$format/plasma5.$format") == "$(tr a-z A-Z <<< "${format/jpg/jpeg}")"* ]] ||
            fail "fmt-$format/plasma5.$format is no $format file"
    done
    # The quality reaches the encoder.
    expect 0 "$cut" plasma.bmp --grid 1x1 -o q10 -f jpg -q 10
    expect 0 "$cut" plasma.bmp --grid 1x1 -o q95 -f jpg -q 95
    (($(stat -c %s q10/plasma1.jpg) * 2 < $(stat -c %s q95/plasma1.jpg))) || fail "-q 10 is not smaller than -q 95"
    # Every core and one core write the same bytes.
    expect 0 "$cut" plasma.bmp --grid 4x4 -o j1 -f jpg -j 1
    expect 0 "$cut" plasma.bmp --grid 4x4 -o j2 -f jpg -j 2
    diff -r j1 j2 > /dev/null || fail "-j 1 and -j 2 wrote different pieces"
    # --dry-run writes nothing and prints every section.
    expect 0 "$cut" plasma.bmp --grid 2x3 -o dry --html dry/t.html --dry-run
    [[ ! -e dry ]] || fail "--dry-run made the folder"
    grep -q "6  row 2 column 3  200,100 100x100  dry/plasma6.bmp" out.txt || fail "--dry-run plan: $(cat out.txt)"
    # --quiet prints nothing on success; --progress draws nothing into a pipe.
    expect 0 "$cut" plasma.bmp --grid 2x2 -o quiet --quiet --verify
    [[ ! -s out.txt && ! -s err.txt ]] || fail "--quiet printed: $(cat out.txt err.txt)"
    expect 0 "$cut" plasma.bmp --grid 2x2 -o progress --progress
    [[ ! -s err.txt ]] || fail "--progress drew into a pipe: $(cat err.txt)"
    # On a terminal (script gives the program one) the bar is drawn and wiped.
    script -qec "'$cut' plasma.bmp --grid 2x2 -o terminal --progress" /dev/null > terminal.txt ||
        fail "--progress on a terminal: $(cat terminal.txt)"
    grep -q '\[#*\] 4/4 plasma.bmp' terminal.txt || fail "no bar on a terminal: $(cat -v terminal.txt)"
    # Without --force an earlier run's files are listed and nothing is written.
    touch -d '2001-01-01' grid/plasma2.bmp
    expect 1 "$cut" plasma.bmp --grid 3x2 -o grid --html grid/t.html
    grep -q "grid/plasma6.bmp" err.txt || fail "the files in the way are not listed: $(cat err.txt)"
    [[ ! -e grid/t.html && $(stat -c %Y grid/plasma2.bmp) == $(date -d 2001-01-01 +%s) ]] ||
        fail "a refused run wrote something"
    expect 0 "$cut" plasma.bmp --grid 3x2 -o grid --html grid/t.html --force
    [[ -s grid/t.html && $(stat -c %Y grid/plasma2.bmp) != $(date -d 2001-01-01 +%s) ]] ||
        fail "--force did not replace the files"
    echo "options checked"
}

group_html() {
    # The same lines on the same picture: the window's table and the command's, byte for byte.
    mkdir -p window command
    window_table "$work/plasma.bmp" window/plasma.bmp "120 50" "100 13"
    [[ -f window/plasma.html ]] || fail "the window wrote no table: $(tail -5 window.txt)"
    expect 0 "$cut" plasma.bmp --h 120,50 --v 100,13 -o command --html command/plasma.html
    cmp window/plasma.html command/plasma.html || fail "the tables differ"
    # With sections without area, both keep the same empty cells.
    rm -rf window command && mkdir -p window command
    window_table "$work/plasma.bmp" window/plasma.bmp "80 80" "100 320" Yes
    expect 0 "$cut" plasma.bmp --h 80,80 --v 100,320 -o command --html command/plasma.html
    cmp window/plasma.html command/plasma.html || fail "the tables with empty cells differ"
    echo "HTML tables equal the window's"
}

group_browser() {
    # The CSS page in a folder of its own, so that it finds the pieces by a path;
    # the HTML table beside them, as it must lie.
    expect 0 "$cut" plasma.bmp --h 37,120,120 --v 13,100,222,400 -o pieces -f png \
        --css "$work/page/index.html" --html pieces/table.html
    render "$work/page/index.html" css.png 300 200 0
    same_pixels css.png plasma.bmp
    render "$work/pieces/table.html" table.png 300 200 8
    same_pixels table.png plasma.bmp
    expect 0 "$cut" plasma.bmp --grid 3x4 -o bmp --css bmp/index.html
    render "$work/bmp/index.html" bmp.png 300 200 0
    same_pixels bmp.png plasma.bmp
    echo "CSS page and HTML table render the picture"
}

group_batch() {
    "$convert" plasma.bmp -resize 160x90! second.bmp
    cp "$data/notapicture.jpg" broken.jpg
    # Several pictures: a sub-folder each, the side files in each; a picture
    # that cannot be read is named, the others are cut, and the exit is 1.
    expect 1 "$cut" plasma.bmp broken.jpg second.bmp --grid 2x2 -o batch -f png \
        --manifest m.json --css index.html --verify
    grep -q "broken.jpg: cannot be read" err.txt || fail "the broken picture is not named: $(cat err.txt)"
    for file in batch/plasma/plasma4.png batch/plasma/index.html batch/second/m.json; do
        grep -q "^  $file\$" err.txt || fail "$file is not listed as written: $(cat err.txt)"
    done
    check_manifest batch/plasma/m.json plasma.bmp
    check_manifest batch/second/m.json second.bmp
    [[ -f batch/second/index.html && ! -e batch/broken ]] || fail "sub-folders: $(find batch)"
    [[ $(grep -c verified out.txt) == 2 ]] || fail "two pictures not verified: $(cat out.txt)"
    echo "batch checked"
}

group_failures() {
    # A refused division: the window's words, exit 1, nothing written.
    expect 1 "$cut" plasma.bmp --grid 2x301 -o refused
    grep -q "Number of Sections exceed the actual width of the picture!" err.txt ||
        fail "refusal: $(cat err.txt)"
    grep -q "no file was written" err.txt || fail "refusal: $(cat err.txt)"
    [[ ! -e refused ]] || fail "a refused division wrote something"
    # A page or manifest named like a piece, or like each other, would write
    # over it, and one named like the picture would lose it even with --force:
    # refused before anything is written.
    local over="would be written over the picture or over another file of the run"
    expect 1 "$cut" plasma.bmp --grid 2x2 -o clash --html clash/plasma3.bmp
    grep -q "clash/plasma3.bmp $over" err.txt || fail "page over a piece: $(cat err.txt)"
    expect 1 "$cut" plasma.bmp --grid 2x2 -o clash --css clash/t.html --manifest ./clash/t.html
    grep -q "clash/t.html $over" err.txt || fail "page over a manifest: $(cat err.txt)"
    [[ ! -e clash ]] || fail "a run with a file named twice wrote something"
    cp plasma.bmp keep.bmp
    expect 1 "$cut" plasma.bmp --grid 2x2 --manifest ./plasma.bmp --force
    grep -q "./plasma.bmp $over" err.txt || fail "manifest over the picture: $(cat err.txt)"
    cmp -s plasma.bmp keep.bmp || fail "the picture was written over"
    # A corrupt line file: the window's words.
    printf '"H5"\r\ngarbage\r\n' > bad.ple
    expect 1 "$cut" plasma.bmp --lines bad.ple -o corrupt
    grep -q "That Slicewright file appears to be corrupt!" err.txt || fail "corrupt: $(cat err.txt)"
    # A folder that cannot be made (a file stands in its way).
    echo keep > blocker
    expect 1 "$cut" plasma.bmp --grid 2x2 -o blocker/sub
    grep -q "blocker/sub/: the folder cannot be made" err.txt || fail "folder: $(cat err.txt)"
    [[ $(cat blocker) == keep ]] || fail "the file in the way was touched"
    # A piece that cannot be written (a folder has its name): the cause, the
    # pieces written before it, and the earlier file left whole.
    mkdir -p stuck/plasma3.png
    echo old > stuck/plasma1.png
    expect 1 "$cut" plasma.bmp --grid 2x2 -o stuck -f png --force
    grep -q "stuck/plasma3.png: cannot be written" err.txt || fail "write failure: $(cat err.txt)"
    grep -q "2 file(s) were written:" err.txt || fail "written list: $(cat err.txt)"
    grep -q "^  stuck/plasma2.png" err.txt || fail "written list: $(cat err.txt)"
    [[ -d stuck/plasma3.png && ! -e stuck/plasma4.png ]] || fail "the run went on after the failure"
    ls stuck | grep -qv '^plasma[123].png$' && fail "a temporary file stayed: $(ls stuck)"
    # A check that fails: noise at quality 1 decodes some 10 dB from the
    # picture, far below the floor of 20 dB; every piece is named, exit 1.
    "$convert" -seed 3 -size 120x80 xc: +noise Random noise.bmp
    expect 1 "$cut" noise.bmp --grid 2x2 -o lossy -f jpg -q 1 --verify
    [[ $(grep -c "noise.bmp: verify: lossy/noise[1-4].jpg: PSNR [0-9]* dB, below the floor of 20 dB" err.txt) == 4 ]] ||
        fail "a failed check: $(cat err.txt)"
    grep -q "^  lossy/noise4.jpg" err.txt || fail "a failed check does not list the pieces: $(cat err.txt)"
    echo "failures checked"
}

group_usage() {
    local cases=(
        ""
        "plasma.bmp"
        "--grid 2x2"
        "plasma.bmp --grid 2x2 --tile 5x5"
        "plasma.bmp --grid 3"
        "plasma.bmp --grid abcx2"
        "plasma.bmp --grid 0x2"
        "plasma.bmp --grid 40000x2"
        "plasma.bmp --tile 0x5"
        "plasma.bmp --h 5,x"
        "plasma.bmp --h 5 --grid 2x2"
        "plasma.bmp --grid 2x2 -q 0"
        "plasma.bmp --grid 2x2 -q 101"
        "plasma.bmp --grid 2x2 -f gif"
        "plasma.bmp --grid 2x2 --name {x}"
        "plasma.bmp --grid 2x2 --name fixed"
        "plasma.bmp --grid 2x2 --name {row}"
        "plasma.bmp --grid 2x2 -j 0"
        "plasma.bmp --grid 2x2 --quiet --progress"
        "plasma.bmp --grid 2x2 --bogus"
        "plasma.bmp dir/plasma.bmp --grid 2x2"
    )
    for arguments in "${cases[@]}"; do
        # shellcheck disable=SC2086
        expect 2 "$cut" $arguments
        grep -q "^Usage: slicewright-cut" err.txt || fail "no usage for '$arguments': $(cat err.txt)"
        [[ ! -s out.txt ]] || fail "'$arguments' printed on standard output"
    done
    grep -q "Number of sections must be greater than 1" <("$cut" plasma.bmp --grid 0x2 2>&1) ||
        fail "--grid 0x2 lacks the window's words"
    expect 0 "$cut" --help
    grep -q -- "--verify" out.txt || fail "--help: $(cat out.txt)"
    expect 0 "$cut" --version
    grep -q "^slicewright-cut [0-9]" out.txt || fail "--version: $(cat out.txt)"
    echo "usage errors checked"
}

group_paths() {
    mkdir -p "in dir"
    cp plasma.bmp "in dir/my pïcture.bmp"
    cp plasma.bmp -- "-dash.bmp"
    expect 0 "$cut" "in dir/my pïcture.bmp" --grid 2x2 -o "out dir/ü" -f png \
        --css "out dir/page é.html" --manifest "out dir/ü/m.json" --verify
    [[ -f "out dir/ü/my pïcture4.png" ]] || fail "blank and non-ASCII names: $(find 'out dir')"
    check_manifest "out dir/ü/m.json" plasma.bmp
    render "$work/out dir/page é.html" paths.png 300 200 0
    same_pixels paths.png plasma.bmp
    expect 0 "$cut" --grid 2x2 -o -out -- -dash.bmp
    [[ -f -out/-dash1.bmp ]] || fail "leading dash: $(ls -- -out 2>&1)"
    expect 0 "$cut" ./-dash.bmp --grid 2x2 -o dash2
    [[ -f dash2/-dash4.bmp ]] || fail "leading dash through ./: $(ls dash2)"
    echo "paths checked"
}

group_demo() {
    # The README's example: 12 pieces, a page that rejoins them, exit 0.
    expect 0 "$cut" photo.jpg --grid 3x4 -o out --css out/index.html --verify
    [[ $(count_files out 'photo*.jpg') == 12 ]] || fail "not 12 pieces: $(ls out)"
    render "$work/out/index.html" demo.png 300 200 0
    # JPEG pieces: the page must show the picture as the pieces decode.
    "$convert" photo.jpg demo-ref.png
    local db
    db=$(psnr_db demo.png demo-ref.png)
    awk -v db="$db" 'BEGIN { exit !(db == "inf" || db >= 30) }' || fail "the page shows the picture at $db dB"
    echo "the README's example works"
}

"group_$group"

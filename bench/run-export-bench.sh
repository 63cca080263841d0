#!/bin/bash
# Measures the export of a 2000 x 2000 photo-like picture cut 10 x 10, in one
# run, and writes a small report:
#   (a) the export in-process (sort, plan, clip, write every section), JPG q90 and BMP
#   (b) its lower bound: bare TurboJPEG and bare BMP loops over one BGR buffer
#   (c) ImageMagick cutting the same grid, as a whole process
#   (d) the headless scenario runner (start, open, export), as a whole process
# Targets: a/b <= 1.25 for both formats; c/d >= 3 for both; peak memory of
# (d) below 3 x the decoded picture.
#
#   bench/run-export-bench.sh [BUILD_DIR]   (default build-release, made if missing)
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$source_dir/build-release}
convert=/usr/bin/convert
time_tool=/usr/bin/time
runs=5
side=2000

for tool in "$convert" "$time_tool"; do
    [[ -x $tool ]] || { echo "$tool is missing (packages imagemagick, time)" >&2; exit 1; }
done
if [[ ! -f $build/CMakeCache.txt ]]; then
    cmake -S "$source_dir" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DSLICEWRIGHT_BUILD_TESTS=OFF > /dev/null
fi
ninja -C "$build" export_bench slicewright-scenario > /dev/null
build_type=$(sed -n 's/^CMAKE_BUILD_TYPE:STRING=//p' "$build/CMakeCache.txt")

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
picture=$work/picture.bmp
"$convert" -seed 11 -size ${side}x${side} plasma:fractal -blur 0x2 -type TrueColor "BMP3:$picture"

now_ms() { echo $(($(date +%s%N) / 1000000)); }

# Best wall time in milliseconds of a command run $runs times, each time in an empty folder.
best_of() {
    local folder=$1
    shift
    local best=999999999
    for ((i = 0; i < runs; i++)); do
        rm -rf "$folder" && mkdir -p "$folder"
        local start
        start=$(now_ms)
        (cd "$folder" && "$@" > /dev/null)
        local took=$(($(now_ms) - start))
        ((took < best)) && best=$took
    done
    echo "$best"
}

runner_script() {
    local format=$1
    echo "store SaveFormat \"$format\""
    echo 'store JPGComp "90"'
    echo start
    echo "answer open \"$picture\""
    echo event mnuOPen_Click
    for direction in Horizontal Vertical; do
        echo "event mnu${direction}Line_Click"
        for ((p = side / 10; p < side; p += side / 10)); do
            echo "event picActual_MouseMove $p $p"
            echo event picActual_Click
        done
    done
    echo "answer save \"out/Tile.${format,,}\""
    echo 'answer finish N'
    echo 'answer box No'
    echo event mnuCreate_Click
}
printf 'start\nanswer open "%s"\nevent mnuOPen_Click\n' "$picture" > "$work/open.scn"
runner_script JPG > "$work/jpg.scn"
runner_script BMP > "$work/bmp.scn"
runner=$build/tools/scenario/slicewright-scenario
run_runner() { mkdir -p out && "$runner" "$1"; }

peak_kb() {
    local folder=$1
    shift
    rm -rf "$folder" && mkdir -p "$folder"
    (cd "$folder" && mkdir -p out && "$time_tool" -v "$@" 2>&1 > /dev/null |
        sed -n 's/.*Maximum resident set size (kbytes): //p')
}

eval "$("$build/bench/export_bench" "$picture" "$work/inprocess")"
c_jpg=$(best_of "$work/c-jpg" "$convert" "$picture" -crop 10x10@ +repage -quality 90 out%d.jpg)
c_bmp=$(best_of "$work/c-bmp" "$convert" "$picture" -crop 10x10@ +repage out%d.bmp)
d_jpg=$(best_of "$work/d-jpg" run_runner "$work/jpg.scn")
d_bmp=$(best_of "$work/d-bmp" run_runner "$work/bmp.scn")
d_open=$(best_of "$work/d-open" run_runner "$work/open.scn")
[[ $(ls "$work/d-jpg/out" | wc -l) == 100 && $(ls "$work/d-bmp/out" | wc -l) == 100 ]] ||
    { echo "the runner did not write 100 sections" >&2; exit 1; }
peak_jpg=$(peak_kb "$work/m-jpg" "$runner" "$work/jpg.scn")
peak_bmp=$(peak_kb "$work/m-bmp" "$runner" "$work/bmp.scn")
peak_open=$(peak_kb "$work/m-open" "$runner" "$work/open.scn")
decoded_kb=$((side * side * 3 / 1024))

ratio() { awk -v a="$1" -v b="$2" 'BEGIN { printf "%.2f", a / b }'; }
verdict() { awk -v r="$1" -v t="$2" -v op="$3" 'BEGIN { ok = op == "le" ? r <= t : r >= t; print ok ? "met" : "MISSED" }'; }

report=$build/export-bench-report.txt
{
    echo "Export benchmark, $(date -u '+%Y-%m-%d %H:%M UTC'), build type ${build_type:-none}, $(nproc) cores"
    echo "Picture: ${side} x ${side} photo-like (plasma, blurred), cut 10 x 10; best of several runs"
    echo
    printf '%-58s %9s %9s\n' "" "JPG q90" "BMP"
    printf '%-58s %7.1fms %7.1fms\n' "(a) export in-process, into an empty folder" "$a_jpg_ms" "$a_bmp_ms"
    printf '%-58s %7.1fms %7.1fms\n' "(b) bare TurboJPEG / bare BMP loop" "$b_jpg_ms" "$b_bmp_ms"
    printf '%-58s %7.1fms %7.1fms\n' "(a') export in-process, replacing the files of a run" "$a_jpg_replace_ms" "$a_bmp_replace_ms"
    printf '%-58s %7.1fms %7.1fms\n' "(b') bare loops, replacing their files" "$b_jpg_replace_ms" "$b_bmp_replace_ms"
    printf '%-58s %7dms %7dms\n' "(c) ImageMagick convert -crop 10x10@, whole process" "$c_jpg" "$c_bmp"
    printf '%-58s %7dms %7dms\n' "(d) scenario runner: start, open, export, whole process" "$d_jpg" "$d_bmp"
    printf '%-58s %7dms  (peak %d kB)\n' "(d0) of which start and open alone" "$d_open" "$peak_open"
    echo
    r=$(ratio "$a_jpg_ms" "$b_jpg_ms"); echo "a/b JPG  = $r  (target <= 1.25: $(verdict "$r" 1.25 le))"
    r=$(ratio "$a_bmp_ms" "$b_bmp_ms"); echo "a/b BMP  = $r  (target <= 1.25: $(verdict "$r" 1.25 le))"
    r=$(ratio "$a_jpg_replace_ms" "$b_jpg_replace_ms"); echo "a'/b' JPG = $r  (replacing files, for information)"
    r=$(ratio "$a_bmp_replace_ms" "$b_bmp_replace_ms"); echo "a'/b' BMP = $r  (replacing files, for information)"
    r=$(ratio "$c_jpg" "$d_jpg"); echo "c/d JPG  = $r  (target >= 3: $(verdict "$r" 3 ge))"
    r=$(ratio "$c_bmp" "$d_bmp"); echo "c/d BMP  = $r  (target >= 3: $(verdict "$r" 3 ge))"
    r=$(ratio "$peak_jpg" "$decoded_kb"); echo "peak memory of (d), JPG: ${peak_jpg} kB = $r x the decoded picture (${decoded_kb} kB; target < 3: $(verdict "$r" 3 le))"
    r=$(ratio "$peak_bmp" "$decoded_kb"); echo "peak memory of (d), BMP: ${peak_bmp} kB = $r x the decoded picture (target < 3: $(verdict "$r" 3 le))"
} | tee "$report"
echo "report written to $report"

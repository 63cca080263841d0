#!/bin/bash
# Times slicewright-cut against ImageMagick on a batch, as whole processes:
# 20 photo-like JPG pictures of 2000 x 2000 cut 10 x 10, to JPG (quality 90)
# and to PNG. ImageMagick runs `convert PICTURE -crop 10x10@` on each picture
# in turn; slicewright-cut takes the batch in one run (default -j: every core).
# Both write into an emptied folder each time. Prints the means, their spread,
# the ratios (target: ImageMagick / slicewright-cut >= 4 for both) and the
# bytes each wrote.
#
#   bench/run-cut-bench.sh [BUILD_DIR]   (default build-release, made if missing)
set -euo pipefail

source_dir=$(cd "$(dirname "$0")/.." && pwd)
build=${1:-$source_dir/build-release}
convert=/usr/bin/convert
hyperfine=/usr/bin/hyperfine
jq=/usr/bin/jq
pictures=20
side=2000
runs=${RUNS:-5}

for tool in "$convert" "$hyperfine" "$jq"; do
    [[ -x $tool ]] || { echo "$tool is missing (packages imagemagick, hyperfine, jq)" >&2; exit 1; }
done
if [[ ! -f $build/CMakeCache.txt ]]; then
    cmake -S "$source_dir" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DSLICEWRIGHT_BUILD_TESTS=OFF > /dev/null
fi
cmake --build "$build" --target slicewright-cut > /dev/null
cut=$build/cli/slicewright-cut

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
mkdir -p "$work/pictures"
# One photo-like picture (plasma, blurred), rolled differently for each of the batch.
"$convert" -seed 7 -size ${side}x${side} plasma:fractal -blur 0x2 "$work/plasma.png"
for ((i = 1; i <= pictures; i++)); do
    "$convert" "$work/plasma.png" -roll +$((i * 97))+$((i * 53)) -quality 92 \
        "$work/pictures/photo$i.jpg"
done

# The ImageMagick side: one process a picture, as a shell loop would run it.
cat > "$work/magick.sh" << SCRIPT
#!/bin/bash
set -e
format=\$1
for picture in "$work"/pictures/*.jpg; do
    name=\$(basename "\$picture" .jpg)
    "$convert" "\$picture" -crop 10x10@ +repage -quality 90 "$work/out-magick/\${name}_%d.\$format"
done
SCRIPT
chmod +x "$work/magick.sh"

# time NAME OUT COMMAND: hyperfine's mean, spread and extremes of a command
# that writes into OUT, emptied before every run, as JSON in $work/NAME.json.
time_it() {
    local name=$1 out=$2 command=$3
    "$hyperfine" --style basic --warmup 1 --runs "$runs" --export-json "$work/$name.json" \
        --prepare "rm -rf '$out'; mkdir -p '$out'" -n "$name" "$command" > "$work/$name.log"
}

measure() {
    local format=$1
    time_it "cut-$format" "$work/out-cut" \
        "'$cut' '$work'/pictures/*.jpg --grid 10x10 -o '$work/out-cut' -f $format -q 90 --quiet"
    time_it "magick-$format" "$work/out-magick" "'$work/magick.sh' $format"
    # The files of the last runs, counted and weighed.
    local ours theirs
    ours=$(find "$work/out-cut" -type f -name "*.$format" | wc -l)
    theirs=$(find "$work/out-magick" -type f -name "*.$format" | wc -l)
    [[ $ours == $((pictures * 100)) && $theirs == $((pictures * 100)) ]] ||
        { echo "$format: $ours and $theirs pieces, not $((pictures * 100)) each" >&2; exit 1; }
    local ours_bytes theirs_bytes
    ours_bytes=$(du -sb "$work/out-cut" | cut -f1)
    theirs_bytes=$(du -sb "$work/out-magick" | cut -f1)
    "$jq" -s -r --arg format "$format" --argjson ob "$ours_bytes" --argjson tb "$theirs_bytes" '
        [.[0].results[0], .[1].results[0]] as $r |
        ($r[0].mean) as $c | ($r[1].mean) as $m |
        "\($format): slicewright-cut \($c * 1000 | floor) ms (sd \((($r[0].stddev // 0) * 1000) | floor), min \($r[0].min * 1000 | floor), max \($r[0].max * 1000 | floor)); " +
        "ImageMagick \($m * 1000 | floor) ms (sd \((($r[1].stddev // 0) * 1000) | floor), min \($r[1].min * 1000 | floor), max \($r[1].max * 1000 | floor)); " +
        "ratio \(($m / $c) * 100 | floor / 100) (target >= 4: \(if $m / $c >= 4 then "met" else "MISSED" end)); " +
        "bytes written \($ob / 1048576 | floor) MiB against \($tb / 1048576 | floor) MiB"' \
        "$work/cut-$format.json" "$work/magick-$format.json"
}

echo "slicewright-cut against ImageMagick, $(date -u '+%Y-%m-%d %H:%M UTC'), $(nproc) cores, load $(cut -d' ' -f1-3 /proc/loadavg)"
echo "$pictures JPG pictures of $side x $side cut 10 x 10; mean of $runs runs after one warm-up"
measure jpg
measure png
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"

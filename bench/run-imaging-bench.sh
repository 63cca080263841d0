#!/bin/sh
# Runs the imaging benchmark and prints what the JPG writer costs beside the
# bare encoder on the same buffer (it should stay at or below 1.10), and
# beside the bare encoder writing into a buffer sized up front as the writer
# does, which leaves only the cost of the file itself. Repetitions run
# interleaved, so that a machine busy with other work weighs on all alike.
# Usage: bench/run-imaging-bench.sh [BUILD_DIR]   (default: build)
set -eu
build=${1:-build}
bench="$build/bench/slicewright_imaging_bench"
if [ ! -x "$bench" ]; then
    echo "run-imaging-bench: $bench is missing; build the project first" >&2
    exit 1
fi
results=$("$bench" --benchmark_format=csv --benchmark_repetitions=9 \
    --benchmark_enable_random_interleaving=true \
    --benchmark_report_aggregates_only=true 2>/dev/null)
echo "$results"
echo "$results" | awk -F, '
    /"BM_BareTurboJpeg\/real_time_median"/   { bare = $3 }
    /"BM_BareTurboJpegPresized\/real_time_median"/ { presized = $3 }
    /"BM_WriteJPGFile\/real_time_median"/    { writer = $3 }
    /"BM_WriteJPGFileNew\/real_time_median"/ { fresh = $3 }
    /"BM_SavePicture\/real_time_median"/     { bmp = $3 }
    END {
        if (bare == 0) { print "run-imaging-bench: no encoder result" > "/dev/stderr"; exit 1 }
        printf "medians (2000 x 2000): bare encoder %.2f ms (into a presized buffer %.2f ms)\n", bare, presized
        printf "  WriteJPGFile, new file %.2f ms, replacing a file %.2f ms; SavePicture %.2f ms\n", fresh, writer, bmp
        printf "WriteJPGFile / bare encoder: new file %.3f, replacing a file %.3f (limit 1.10)\n", fresh / bare, writer / bare
    }'

# shellcheck shell=bash disable=SC2034
# Shared by the shell tests that check from outside what a program wrote:
# failing loudly, the tools they check with, and pixel comparisons.
# Source it; it defines functions and the tool paths, and runs nothing.
#
# The ImageMagick tools are called by their full paths because another
# `convert` may come first on PATH.
convert=/usr/bin/convert
compare=/usr/bin/compare
identify=/usr/bin/identify
jq=/usr/bin/jq
chromium=/usr/bin/chromium

fail() {
    echo "FAIL: $*" >&2
    exit 1
}

# need_tools TOOL...: a name on PATH or a full path each. A test whose tool
# is missing fails: a skipped check would pass unseen.
need_tools() {
    local tool
    for tool in "$@"; do
        command -v "$tool" > /dev/null 2>&1 || fail "$tool is not installed (scripts/install-deps installs it)"
    done
}

# differing_pixels A B: how many pixels of the two pictures differ (ImageMagick
# prints the count on standard error and exits 1 when it is not 0).
differing_pixels() {
    "$compare" -metric AE "$1" "$2" null: 2>&1 || true
}

# same_pixels A B: fails unless the two pictures are equal pixel for pixel.
same_pixels() {
    local differing
    differing=$(differing_pixels "$1" "$2")
    [[ $differing == 0 ]] || fail "$1 differs from $2 in $differing pixels"
}

# psnr_db A B: the PSNR of one picture against the other in dB, "inf" when equal.
psnr_db() {
    "$compare" -metric PSNR "$1" "$2" null: 2>&1 || true
}

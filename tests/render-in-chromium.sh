#!/bin/bash
# Renders a local page in headless Chromium, in a fresh profile and with
# nothing fetched from the network, and keeps the part where a picture of
# WIDTH x HEIGHT shows when the page leaves MARGIN pixels around it.
#
#   render-in-chromium.sh PAGE SHOT WIDTH HEIGHT MARGIN
set -euo pipefail

page=$1
shot=$2
width=$3
height=$4
margin=$5
chromium=/usr/bin/chromium
convert=/usr/bin/convert

[[ -x $chromium ]] || { echo "FAIL: $chromium is missing (package chromium)" >&2; exit 1; }
[[ -x $convert ]] || { echo "FAIL: $convert is missing (package imagemagick)" >&2; exit 1; }
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$chromium" --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$work/profile" --hide-scrollbars --force-device-scale-factor=1 \
    --window-size=$((width + 2 * margin)),$((height + 2 * margin)) \
    --screenshot="$work/screen.png" "file://$page" > "$work/chromium.log" 2>&1 || true
if [[ ! -s $work/screen.png ]]; then
    echo "FAIL: chromium made no screenshot of $page: $(tail -3 "$work/chromium.log")" >&2
    exit 1
fi
"$convert" "$work/screen.png" -crop "${width}x${height}+${margin}+${margin}" +repage "$shot"

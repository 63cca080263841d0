#!/bin/bash
# Renders a local page in headless Chromium, in a fresh profile and with
# nothing fetched from the network, and keeps the part where a picture of
# WIDTH x HEIGHT shows when the page leaves MARGIN pixels around it.
#
#   render-in-chromium.sh PAGE SHOT WIDTH HEIGHT MARGIN
set -euo pipefail
# shellcheck source=SCRIPTDIR/lib/checks.sh
. "$(dirname "$0")/lib/checks.sh"

page=$1
shot=$2
width=$3
height=$4
margin=$5

need_tools "$chromium" "$convert"
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
"$chromium" --headless --no-sandbox --disable-gpu --disable-quic --no-first-run \
    --disable-background-networking --disable-component-update --disable-sync \
    --user-data-dir="$work/profile" --hide-scrollbars --force-device-scale-factor=1 \
    --window-size=$((width + 2 * margin)),$((height + 2 * margin)) \
    --screenshot="$work/screen.png" "file://$page" > "$work/chromium.log" 2>&1 || true
[[ -s $work/screen.png ]] || fail "chromium made no screenshot of $page: $(tail -3 "$work/chromium.log")"
"$convert" "$work/screen.png" -crop "${width}x${height}+${margin}+${margin}" +repage "$shot"

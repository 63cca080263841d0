#!/usr/bin/env bash
# The layer check passes on the core as it is, and fails on each kind of fault
# put into a copy of it: an upward include, a cycle declared in the CMake
# lists, and an include of the window layer.
set -euo pipefail
source_dir=$(cd "$(dirname "$0")/../.." && pwd)
check=$source_dir/scripts/check-layers
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() { echo "FAIL: $*" >&2; exit 1; }

"$check" "$source_dir/core" >/dev/null || fail "the core as it is does not pass"

# expect_refusal NAME WORDS EDIT...: the check fails on a copy changed by EDIT,
# and its message holds WORDS.
expect_refusal() {
    local name=$1 words=$2
    shift 2
    rm -rf "$work/core" && cp -r "$source_dir/core" "$work/core"
    (cd "$work/core" && "$@")
    local said
    if said=$("$check" "$work/core" 2>&1); then
        fail "$name: the check passed"
    fi
    [[ $said == *"$words"* ]] || fail "$name: the check said \"$said\", not \"$words\""
    echo "refused: $name"
}

expect_refusal "an upward include" "imaging includes session/" \
    sed -i '1a #include "session/Session.h"' imaging/Picture.cpp
expect_refusal "a declared cycle" "in a ring" \
    sed -i 's/DEPENDS common imaging$/DEPENDS common imaging session/' ports/CMakeLists.txt
expect_refusal "the window layer in the core" "outside it" \
    sed -i '1a #include "qt/MainWindow.h"' window/Viewport.cpp
expect_refusal "an unknown dependency" "no subsystem of the core" \
    sed -i 's/DEPENDS common imaging$/DEPENDS common imaging pictures/' ports/CMakeLists.txt
echo "check-layers: 4 faults refused, the core passes"

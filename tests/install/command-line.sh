#!/usr/bin/env bash
# The program's command line where no window is needed: --help, --version,
# mistakes, and the one-line message of a start without a display (by the
# program and by scripts/run).
set -euo pipefail
. "$(dirname "$0")/common.sh"
program=$1
version=$2
repository=$3
out=$(mktemp)
err=$(mktemp)
trap 'rm -f "$out" "$err"' EXIT

# run_program EXPECTED_STATUS ARGS...: runs it with no display at all, so that
# an answer that needs none is shown to need none.
run_program() {
    local expected=$1
    shift
    local status=0
    env -u DISPLAY -u WAYLAND_DISPLAY -u QT_QPA_PLATFORM "$@" >"$out" 2>"$err" || status=$?
    [ "$status" -eq "$expected" ] || fail "$* ended with $status, not $expected; it said: $(cat "$out" "$err")"
}

run_program 0 "$program" --help
grep -q '^Usage: .*slicewright \[options\] \[PICTURE\]$' "$out" || fail "--help shows no usage line"
grep -q -- '--version' "$out" || fail "--help does not list --version"
[ ! -s "$err" ] || fail "--help wrote to the error stream"

run_program 0 "$program" --version
[ "$(cat "$out")" = "slicewright $version" ] || fail "--version said \"$(cat "$out")\""

for mistake in --bogus "-x" "one.bmp two.bmp"; do
    # shellcheck disable=SC2086 # the pair of pictures is two arguments
    run_program 2 "$program" $mistake
    [ ! -s "$out" ] || fail "$mistake: the usage went to the output stream"
    grep -q '^Usage: slicewright \[options\] \[PICTURE\]$' "$err" || fail "$mistake: no short usage"
    [ "$(wc -l <"$err")" -le 3 ] || fail "$mistake: the usage is not short"
done
grep -q "one picture at a time" "$err" || fail "two pictures: the message does not say why"

check_no_display_message() {
    [ "$(wc -l <"$err")" -eq 1 ] || fail "$1: not one line without a display: $(cat "$err")"
    grep -q 'DISPLAY' "$err" || fail "$1: the message does not name what is missing"
    grep -q 'xvfb-run' "$err" || fail "$1: the message does not say how to run it"
}
run_program 1 "$program"
check_no_display_message "the program"
run_program 1 "$program" "$repository/tests/data/small.bmp"
check_no_display_message "the program with a picture"
run_program 1 "$repository/scripts/run"
check_no_display_message "scripts/run"
echo "command line: OK"

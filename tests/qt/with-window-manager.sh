#!/bin/sh
# Runs a window test under a window manager (openbox) on the current X
# display: a manager carries out size and state changes later than asked,
# which a bare X server does at once.
command -v openbox >/dev/null 2>&1 || { echo "openbox is not installed" >&2; exit 1; }
ready=$(mktemp -u)
openbox --startup "touch $ready" >/dev/null 2>&1 &
manager=$!
tries=0
while [ ! -e "$ready" ]; do
    tries=$((tries + 1))
    if [ "$tries" -gt 100 ]; then
        echo "openbox did not start" >&2
        kill "$manager" 2>/dev/null
        exit 1
    fi
    sleep 0.1
done
rm -f "$ready"
"$@"
status=$?
kill "$manager" 2>/dev/null
wait "$manager" 2>/dev/null
exit "$status"

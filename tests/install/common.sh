# Helpers of the install tests: failing loudly, a DESTDIR install of the build,
# and driving the installed window under X with xdotool.

# shellcheck source=SCRIPTDIR/../lib/checks.sh
. "$(dirname "${BASH_SOURCE[0]}")/../lib/checks.sh"

# install_into BUILD_DIR DESTDIR: installs the build with the prefix /usr.
install_into() {
    DESTDIR="$2" cmake --install "$1" --prefix /usr >/dev/null || fail "cmake --install failed"
}

# A fresh home with its own settings, so that no test sees another's.
fresh_home() {
    export HOME="$1/home" XDG_CONFIG_HOME="$1/home/.config"
    mkdir -p "$HOME/Pictures" "$XDG_CONFIG_HOME"
}

stored_setting() {
    sed -n "s/^$1=//p" "$XDG_CONFIG_HOME/Corvane-Studio.ini"
}

# wait_window TITLE: the id of the visible window of exactly that title.
wait_window() {
    local id
    id=$(timeout 20 xdotool search --sync --onlyvisible --name "^$1\$" 2>/dev/null | head -n 1)
    [ -n "$id" ] || fail "no window titled \"$1\" appeared"
    echo "$id"
}

# press WINDOW KEYS...: keys typed into that window, as a user would.
press() {
    local window=$1
    shift
    xdotool windowactivate --sync "$window" >/dev/null 2>&1 || fail "cannot activate window $window"
    local key
    for key in "$@"; do
        xdotool key "$key"
        sleep 0.3
    done
}

# picture_origin WINDOW: the screen point "X Y" of the open picture's pixel
# 0,0, found from the title, which names the picture's pixel under the
# pointer; the pointer is put over the window's centre, which the picture
# must cover.
picture_origin() {
    local X Y WIDTH HEIGHT
    eval "$(xdotool getwindowgeometry --shell "$1" | grep -E '^(X|Y|WIDTH|HEIGHT)=')"
    local pointer_x=$((X + WIDTH / 2)) pointer_y=$((Y + HEIGHT / 2))
    xdotool mousemove "$pointer_x" "$pointer_y"
    sleep 0.5
    local position
    position=$(xdotool getwindowname "$1" | sed -n 's/.*Current Position: \([0-9]*\),\([0-9]*\)$/\1 \2/p')
    [ -n "$position" ] || fail "the pointer is not over the picture"
    local picture_x picture_y
    read -r picture_x picture_y <<<"$position"
    echo "$((pointer_x - picture_x)) $((pointer_y - picture_y))"
}

# close_program WINDOW PID: closes the window by the window manager's close
# key, so that the program ends as when the user closes it, and waits for it
# (and for its exit status, when this shell started it).
close_program() {
    press "$1" alt+F4
    local tries=0
    while kill -0 "$2" 2>/dev/null; do
        tries=$((tries + 1))
        [ "$tries" -le 100 ] || { kill "$2"; fail "the program did not end when its window was closed"; }
        sleep 0.1
    done
    if jobs -p | grep -qx "$2"; then
        wait "$2" || fail "the program ended with status $?"
    fi
}

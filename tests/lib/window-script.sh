# shellcheck shell=bash
# Writers of scripts for slicewright-scenario that do in the window what a
# user does: open a picture, draw lines with clicks, create the sections.
# Each prints script lines on standard output. Source it; it runs nothing.

# open_picture PICTURE: a start from the stored choice of no HTML, and the
# picture opened through the open dialog.
open_picture() {
    echo 'store HTMLOut "N"'
    echo start
    echo "answer open \"$1\""
    echo event mnuOPen_Click
}

# draw_lines Horizontal|Vertical POSITION...: clicks on the picture in that draw mode.
draw_lines() {
    local direction=$1
    shift
    echo "event mnu${direction}Line_Click"
    local position
    for position in "$@"; do
        echo "event picActual_MouseMove $position $position"
        echo event picActual_Click
    done
}

# export_to NAME [ANSWER]: one run of Create Sections into NAME, the table in
# a file, the lines kept; ANSWER goes to the question about sections without area.
export_to() {
    echo "answer save \"$1\""
    if [[ -n ${2:-} ]]; then
        echo "answer box $2"
    fi
    echo 'answer finish F'
    echo 'answer box No'
    echo event mnuCreate_Click
}

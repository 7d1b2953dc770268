#!/usr/bin/env bash
# screens.sh ZENTROX DATA OUT MANAGER SIZE...: the room in full screen on screens of these sizes, in each way of
# enlarging: where it stands, how large it is, and that it is the room's picture, by each pixel where pixels are squares.
# A game opens and closes over it.
set -uo pipefail
zentrox=$1 data=$2 out=$3 manager=$4
shift 4
. "$(dirname "$0")/display.bash"
mkdir -p "$out"
cd "$out" || exit 1
picture=$data/graphics/saal.bmp

# Where the picture of the room should stand: its scale and its left upper corner, by the way of enlarging. The window
# has whole pixels of the game, in the middle of the screen, and the room stands in its middle.
expected() {
    awk -v w="$screen_width" -v h="$screen_height" -v how="$1" 'BEGIN {
        s = w / 640 < h / 483 ? w / 640 : h / 483
        if (how == "ganz" && s >= 1) s = int(s + 1e-6)
        printf "%.6f %d %d\n", s, at(w, 640, s), at(h, 480, s) }
        function at(side, room, s,  client) {
            client = int(side / s + 1e-6)
            return int((side - int(client * s + 1e-6)) / 2) + int(int((client - room) / 2) * s + 1e-6) }'
}
# The picture taken back to its own size; the edge of the screen's last pixel may belong to what is beside it.
taken_back() {
    read -r s x y < <(expected "$1")
    local side height
    side=$(awk "BEGIN { print int(640 * $s + .5) }") height=$(awk "BEGIN { print int(480 * $s + .5) }")
    convert shown.png -crop "${side}x$height+$x+$y" +repage -filter box -resize '640x480!' "back_$1.png"
}
# looks HOW MOST: it is the room's picture but for so many parts of a thousand.
looks() {
    local off
    import -window root shown.png
    taken_back "$1"
    off=$(compare -metric RMSE "$picture" "back_$1.png" null: 2>&1 | sed 's/.*(\(.*\))/\1/')
    awk "BEGIN { exit !($off * 1000 <= $2) }"
}
screen() {
    display "$1" "$manager"
    mkdir -p config/zentrox
    echo 'vollbild = ja' >config/zentrox/einstellungen.txt
    # What a desktop says of its scale changes nothing in pixels of the screen.
    xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER $'Xft.dpi: 192\n'
    export GDK_SCALE=2
    play "$zentrox" --dir "$data" Spiele.lsd
    eventually looks ganz 4 || fail "$1: whole multiples are off"
    key F8
    eventually looks scharf 30 || fail "$1: the sharp picture is off"
    key F8
    eventually looks weich 40 || fail "$1: the smooth picture is off"
    key F8
    eventually looks ganz 4 || fail "$1: whole multiples do not come back"
    local room
    room=$(middle)
    read -r scale _ _ < <(expected ganz)
    scale=${scale%.*}
    [ "$scale" -gt 0 ] || scale=1
    field 2 0
    eventually looks_other "$room" || fail "$1: the game does not open"
    sleep 0.3
    blank && fail "$1: the game is not to be seen"
    key alt+F4
    eventually looks_like "$room" || fail "$1: the game leaves something behind"
    must_live "$1"
    kill "$game" && wait "$game"
    tidy
}
for size in "$@"; do screen "$size"; done
exit 0

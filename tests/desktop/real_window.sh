#!/usr/bin/env bash
# Starts the real program under a display of its own, compares its window with the probe's shot pixel for pixel, sends
# it a key and a click, and closes it.
set -euo pipefail
zentrox=$1 probe=$2 data=$3 out=$4
mkdir -p "$out"
cd "$out"
fail() { echo "$*" >&2; exit 1; }

# The display number is the first free one; Xvfb writes it to its descriptor.
exec 3<> <(:)
Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp >/dev/null 2>&1 &
xvfb=$!
game=
trap 'kill $xvfb $game 2>/dev/null || true' EXIT
read -r -t 20 -u 3 number || fail "no display"
export DISPLAY=:$number ZENTROX_SOUND=none
# What the window system's own libraries keep to the end is not ours.
echo 'leak:libdbus' >suppressions
export LSAN_OPTIONS=suppressions=$out/suppressions:print_suppressions=0

cat > shot.walk <<'W'
until text "eins"
shot probe.png
key a
until text "zwei"
wait 300
shot second.png
W
"$probe" --quiet --dir "$data" --args Desktop.lsd --out . shot.walk

"$zentrox" --dir "$data" Desktop.lsd &
game=$!

# The window of 640 by 483 stands in the middle of the screen at its scale of 1; its backdrop is a matter of chance, the
# room picture below the first row is not.
matches() {
    import -window root -crop 640x480+80+59 +repage window.png 2>/dev/null || return 1
    convert "$1" -crop 640x480+0+1 +repage wanted.png
    [ "$(compare -metric AE window.png wanted.png null: 2>&1)" = 0 ]
}
wait_for() {
    for _ in $(seq 100); do
        if matches "$1"; then return 0; fi
        sleep 0.1
    done
    fail "the window never looks like $1"
}
wait_for probe.png
xdotool key a
wait_for second.png

# A script goes on at a press of the mouse as well; then the story closes its own window.
ended() {
    for _ in $(seq 100); do
        if ! kill -0 $game 2>/dev/null; then return 0; fi
        sleep 0.1
    done
    return 1
}
xdotool mousemove 400 300 click 1
ended || fail "the window did not close"
wait $game || fail "exit status $?"
# A fresh program has taken its place; it ends with its display.

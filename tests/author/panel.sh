#!/usr/bin/env bash
# The panel beside the game: it sets and gives, jumps, holds a script before each command, and opens the editor.
set -uo pipefail
zentrox=$1 story=$2 probe=$3 out=$4
. "$(dirname "$0")/../desktop/display.bash"
rm -rf "$out"
mkdir -p "$out"
cd "$out" || exit 1
"$story" new s >/dev/null || fail "no story"
"$story" build s/story --into s >/dev/null || fail "no data"
printf '#!/bin/sh\necho "$@" >%s/opened\n' "$PWD" >kate
chmod +x kate
export VISUAL=$PWD/kate

display 1100x700 openbox
play "$zentrox" --author s/story --record gespielt.walk --flags "BEGRÜSST" Start.lsd
sleep 1.5
key ctrl+F9
panel_there() { panel=$(xdotool search --onlyvisible --name Werkbank 2>/dev/null | tail -1); [ -n "$panel" ]; }
eventually panel_there || fail "no panel"
sleep 0.7

# hit X Y: a click in the panel.
hit() {
    xdotool mousemove --window "$panel" "$1" "$2"
    sleep 0.1
    xdotool click 1
    sleep 0.3
}
row() { hit 100 $((141 + 15 * ($1 - 1))); }
trace() { hit 40 118; }
rooms() { hit 100 118; }
flags() { hit 155 118; }
items() { hit 215 118; }
recorded() { eventually grep -q -- "$1" gespielt.walk || { cat gespielt.walk >&2; fail "not recorded: $1"; }; }

trace
row 1
eventually grep -q -- '-l [0-9]* .*start.story' opened || fail "the editor does not open at a line"
flags
row 3
recorded '^set TÜR_OFFEN$'
row 3
recorded '^clear TÜR_OFFEN$'
items
row 1
recorded '^take schluessel$'
row 1
recorded '^drop schluessel$'
rooms
row 2
recorded '^go Start.lsd$'
import -window root panel.png
must_live "the panel"

# Held before a command, the text does not come; one step, and it does.
sleep 0.5
key F4
sleep 0.3
before=$(middle)
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" 150 200
sleep 0.2
xdotool click 3
recorded '^look Tür$'
sleep 0.7
text_band() { import -window "$window" -crop 640x40+0+220 +repage -depth 8 rgb:- | cksum; }
held=$(text_band)
key F4
other_band() { [ "$(text_band)" != "$held" ]; }
eventually other_band || fail "a step does not lead on"
key ctrl+F4
sleep 0.2
key Return
gone() { ! xdotool search --onlyvisible --name Werkbank >/dev/null 2>&1; }
key ctrl+F9
eventually gone || fail "the panel does not close"
must_live "the end"
kill -9 $game
{ cat gespielt.walk; echo 'expect not item schluessel'; echo 'expect not flag TÜR_OFFEN'; } >ganz.walk
"$probe" --quiet --dir s --args Start.lsd --flags "BEGRÜSST" ganz.walk || fail "the record does not lead there"
exit 0

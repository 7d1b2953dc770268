#!/usr/bin/env bash
# The panel beside the game: it sets and gives, jumps, holds a script before each command, opens the editor, and stands
# wherever its window and that of the game are put. Who plays without the workbench finds nothing of it.
set -uo pipefail
zentrox=$1 story=$2 probe=$3 out=$4
. "$(dirname "$0")/fresh.bash"
printf '#!/bin/sh\necho "$@" >%s/opened\n' "$PWD" >kate
chmod +x kate
export VISUAL=$PWD/kate

display 1100x700 openbox
play "$zentrox" --author s/story --record gespielt.walk --flags "BEGRÜSST" Start.lsd
room_stands
panel_there() { panel=$(xdotool search --onlyvisible --name Werkbank 2>/dev/null | tail -1); [ -n "$panel" ]; }
panel_gone() { ! xdotool search --onlyvisible --name Werkbank >/dev/null 2>&1; }
key ctrl+F9
eventually panel_there || fail "no panel"
sleep 0.7

# hit X Y: a click in the panel.
hit() {
    xdotool mousemove --window "$panel" "$1" "$2"
    sleep 0.1
    xdotool click 1
    sleep 0.3
}
row() { hit 100 $((145 + 18 * ($1 - 1))); }
trace() { hit 29 117; }
rooms() { hit 80 117; }
flags() { hit 140 117; }
items() { hit 215 117; }
recorded() { eventually grep -q -- "$1" gespielt.walk || { cat gespielt.walk >&2; fail "not recorded: $1"; }; }

trace
row 1
eventually grep -q -- '-l [0-9]* .*start.story' opened || fail "the editor does not open at a line"
flags
row 3
recorded '^set TÜR_OFFEN$'
row 3
recorded '^clear TÜR_OFFEN$'
# Typing leaves what holds that: the second flag is the first one now.
xdotool type --delay 40 genom
sleep 0.3
row 1
recorded '^set SCHLÜSSEL_GENOMMEN$'
key Escape
sleep 0.3
row 2
recorded '^clear SCHLÜSSEL_GENOMMEN$'
items
row 1
recorded '^take schluessel$'
row 1
recorded '^drop schluessel$'
rooms
mv s/rooms/Start.lsd weg.lsd
row 2
sleep 0.3
must_live "a room that is gone"
grep -q '^go' gespielt.walk && fail "it went where nothing is"
mv weg.lsd s/rooms/Start.lsd
row 2
recorded '^go Start.lsd$'
import -window root panel.png
must_live "the panel"

# Held before a command, the text does not come; one step, and it does. Meanwhile the source may go and come.
sleep 0.5
key F4
sleep 0.3
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" 150 200
sleep 0.2
xdotool click 3
recorded '^look Tür$'
sleep 0.7
text_band() { import -window "$window" -crop 640x40+0+220 +repage -depth 8 rgb:- | cksum; }
held=$(text_band)
mv s/story/start.story start.weg
sleep 0.4
must_live "the source is gone while a command waits"
key F4
other_band() { [ "$(text_band)" != "$held" ]; }
eventually other_band || fail "a step does not lead on"
mv start.weg s/story/start.story
key ctrl+F4
sleep 0.2
key Return
sleep 0.3

# The window manager closes it, hides it with the game, and the game steps back from the whole screen for it.
xdotool windowfocus "$panel"
key alt+F4
eventually panel_gone || fail "the panel does not close"
must_live "a panel that is closed"
xdotool windowfocus "$window"
key F11
sleep 0.7
key ctrl+F9
eventually panel_there || fail "no panel beside a full screen"
sleep 0.5
[ "$(size_of_window)" = "1100x700" ] && fail "the picture stands over the panel"
xdotool windowminimize "$window"
eventually panel_gone || fail "the panel does not go with the game"
xdotool windowmap "$window"
xdotool windowactivate "$window" 2>/dev/null
eventually panel_there || fail "the panel does not come back with the game"
sleep 0.5
xdotool windowfocus "$window"
key ctrl+F9
eventually panel_gone || fail "the panel does not close"
must_live "the end"
kill -9 $game
wait $game 2>/dev/null
{ cat gespielt.walk; echo 'expect not item schluessel'; echo 'expect not flag TÜR_OFFEN'; } >ganz.walk
"$probe" --quiet --dir s --args Start.lsd --flags "BEGRÜSST" ganz.walk || fail "the record does not lead there"

# A player: no panel, no areas, no new data where a source is saved. What is played can be written down all the same.
play "$zentrox" --dir s --record spieler.walk --flags "BEGRÜSST" Start.lsd
room_stands
room=$(middle)
for one in ctrl+F9 ctrl+F5 ctrl+F6 F4 ctrl+F4; do key $one; done
sed -i 's/Bild ".*"/Bild "nichts.bmp"/' s/story/start.story
sleep 0.7
panel_gone || fail "a panel for a player"
looks_like "$room" || fail "a player sees what is the author's"
xdotool mousemove --window "$window" 150 200
sleep 0.2
xdotool click 3
eventually grep -q '^look Tür$' spieler.walk || fail "no record without the workbench"
sleep 0.5
key Return
sleep 0.5
# What was saved by one key is there again by another, in the record too.
key F5
eventually grep -q '^key f5$' spieler.walk || fail "saving by a key is not recorded"
xdotool mousemove --window "$window" 420 290
sleep 0.2
xdotool click 1
sleep 0.5
key F9
eventually grep -q '^key f9$' spieler.walk || fail "loading by a key is not recorded"
must_live "a player"
kill -9 $game
wait $game 2>/dev/null
{ cat spieler.walk; echo 'expect not item schluessel'; echo 'expect not flag SCHLÜSSEL_GENOMMEN'; } >ganz.walk
"$probe" --quiet --dir s --settings keine --args Start.lsd --flags "BEGRÜSST" ganz.walk || fail "the player's record does not lead there"
exit 0

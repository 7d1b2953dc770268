#!/usr/bin/env bash
# Mini-games on a desktop: minimised and by the pause key they stand still, their music as well; the calm mode; and the
# offer to be let through.
set -uo pipefail
zentrox=$1 data=$2 out=$3
. "$(dirname "$0")/display.bash"
mkdir -p "$out"
cd "$out" || exit 1
settings=config/zentrox/einstellungen.txt

display 1024x768 openbox
unset ZENTROX_SOUND
export SDL_AUDIODRIVER=disk SDL_DISKAUDIOFILE=$PWD/heard.raw
room_plays() {
    rm -f heard.raw
    play "$zentrox" --dir "$data" Spiele.lsd
    eventually shown || fail "no room"
    sleep 0.8
    room=$(middle)
}
shown() { ! blank; }
ends() {
    kill "$game"
    wait "$game"
}
opens() {
    field "$2" "$3"
    eventually looks_other "$room" || fail "$1 does not open"
}
# Of the last fifth of a second the bytes that are not silence.
heard() { tail -c 38400 heard.raw | tr -d '\0' | wc -c; }
sounds() { [ "$(heard)" -gt 1000 ]; }
# What the pi game's circle has of its 91 points; there are three, each a second and a half.
points() { import -window root -crop 400x300+312+234 -depth 8 rgb:- 2>/dev/null |
    od -An -v -tx1 -w3 | grep -c '00 ff 00'; }
some_points() { [ "$(points)" -ge 10 ]; }
# Milliseconds of the processor that the program has used, its sound aside, which has a thread of its own.
used() { awk '{ print int($1 / 1000000) }' "/proc/$game/schedstat"; }
uses() {
    local before
    before=$(used)
    sleep 2
    echo $(($(used) - before))
}
minimised() { ! xdotool search --onlyvisible --class zentrox >/dev/null 2>&1; }
minimise() {
    xdotool windowminimize "$window"
    eventually minimised || fail "$1 can't be minimised"
    sleep 0.5
}
comes_back() {
    xdotool windowactivate "$window"
    eventually window_there || fail "$1 does not come back"
    sleep 0.3
}

room_plays
opens pi 2 0
eventually sounds || fail "the pi game has no music"
eventually some_points || fail "the pi game draws no circle"
minimise pi
sleep 8  # all three circles and the time for the first digit would be over
[ "$(heard)" = 0 ] || fail "music of a minimised window: $(heard) bytes"
comes_back pi
eventually some_points || fail "the pi game went on while it was minimised"
import -window root back.png
eventually sounds || fail "the music does not come back"
key alt+F4
eventually looks_like "$room" || fail "pi leaves something behind"

# By the key, with a box over it.
opens pi 2 0
eventually some_points || fail "the pi game draws no circle"
key Pause
sleep 0.4
import -window root paused.png
still=$(points)
sleep 2
[ "$(points)" = "$still" ] || fail "the pause key does not hold the pi game"
[ "$(heard)" = 0 ] || fail "music in a pause"
key Return
sleep 0.3
goes_on() { [ "$(points)" != "$still" ]; }
eventually goes_on || fail "the pi game does not go on"
key alt+F4
eventually looks_like "$room" || fail "pi leaves something behind"

for game_at in "Pong 0 0" "Jump 1 1"; do
    set -- $game_at
    opens "$1" "$2" "$3"
    sleep 1
    running=$(uses)
    minimise "$1"
    standing=$(uses)
    [ $((3 * standing)) -lt "$running" ] || fail "$1, minimised, uses $standing ms, else $running"
    comes_back "$1"
    key F4
    sleep 0.4
    import -window root "paused-$1.png"
    still=$(middle)
    sleep 1.5
    looks_like "$still" || fail "the pause key does not hold $1"
    key Return
    sleep 0.3
    key alt+F4
    eventually looks_like "$room" || fail "$1 leaves something behind"
    must_live "$1"
done
ends

# A third of the pace: after two seconds the first circle, of a second and a half, is not full. Three defeats: an offer.
mkdir -p "${settings%/*}"
printf 'spieltempo = 30\ndurchwinken = ja\n' >"$settings"
room_plays
opens pi 2 0
eventually some_points || fail "the pi game draws no circle"
sleep 1.4
import -window root calm.png
[ "$(points)" -lt 75 ] || fail "the calm pi game is as fast as ever: $(points) points"
key alt+F4
eventually looks_like "$room" || fail "pi leaves something behind"
for defeat in 1 2 3; do
    looks_like "$room" || fail "asked after too few defeats"
    opens Pong 0 0
    sleep 0.3
    key alt+F4
    [ $defeat = 3 ] || eventually looks_like "$room" || fail "Pong leaves something behind"
done
sleep 0.6
import -window root offer.png
looks_other "$room" || fail "nothing is offered after three defeats"
key Return
eventually looks_like "$room" || fail "the offer stays"
must_live "end"
exit 0

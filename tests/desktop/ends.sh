#!/usr/bin/env bash
# The real program is told to end, by a signal, by its window or because its display is gone, wherever it stands: it is
# gone within a second (four are allowed here, for machines that have more to do; ENDS_WITHIN=1000 is the promise),
# with the status that belongs to it, and the saved game is what it was, with nothing beside it.
set -uo pipefail
zentrox=$(realpath "$1") data=$2 out=$3 second=$4
. "$(dirname "$0")/display.bash"
rm -rf "$out"
mkdir -p "$out/saves"
cd "$out" || exit 1

# A place in the program, and how to come there from the room.
room() { :; }
game() { field 0 0; opened; }
loop() { field 1 2; sleep 0.3; }
box() { key F7; opened; }
# A second of pictures, and then nothing for as long as the disk is said to be.
film() { field 2 2; opened; sleep 1.5; }
dialog() { key F2; opened; key e n d; }
opened() { eventually looks_other "$room" || fail "$place does not open"; }

begin() {
    display 1024x768 openbox
    export ZENTROX_SOUND= SDL_AUDIODRIVER=dummy
    play "$zentrox" --dir "$data" --saves "$out/saves" Spiele.lsd
    sleep 0.6
    eventually shown || fail "no room"
    room=$(middle)
}
shown() { ! blank; }

save_once() {
    begin
    place=dialog
    key F2
    opened
    key s Return
    eventually test -s saves/s.xtc || fail "nothing saved"
    saved=$(cksum saves/*)
    tidy
    xvfb= game=
}

# ends PLACE STATUS COMMAND...
ends() {
    local place=$1 wanted=$2 status begun patience
    shift 2
    # What loses its display is ended from inside the window system, wherever it stands.
    export ASAN_OPTIONS=detect_leaks=$([ "$1" = display_goes ] && echo 0 || echo 1)
    begin
    $place
    sleep 0.2
    alive || fail "$place: gone before its time"
    begun=$(date +%s%N)
    "$@"
    (sleep 10; kill -KILL "$game") >/dev/null 2>&1 &
    patience=$!
    wait "$game" 2>/dev/null
    status=$?
    local took=$((($(date +%s%N) - begun) / 1000000))
    kill $patience
    [ $status = "$wanted" ] || { cat game.log >&2; fail "$place, $*: status $status instead of $wanted"; }
    grep -q 'Sanitizer\|runtime error\|terminate' game.log && { cat game.log >&2; fail "$place, $*"; }
    [ "$(cksum saves/*)" = "$saved" ] || fail "$place, $*: the saved games are others"
    [ "$(find saves | wc -l)" = 2 ] || fail "$place, $*: something lies beside the saved game"
    [ "$took" -lt "${ENDS_WITHIN:-4000}" ] || fail "$place, $*: $took ms until it was gone"
    printf '%-7s %-6s status %d after %4d ms\n' "$place" "$1 $2" $status $took
    end_the_new_one
    tidy
    xvfb= game=
}
signal() { kill "-$1" "$game"; }
display_goes() { kill "$xvfb"; }
# The room's window begins the program anew, at its menu.
window_closes() { key alt+F4; }
end_the_new_one() {
    local new
    for new in $(pgrep -f -- "--saves $out/saves"); do kill "$new"; done
}

cp "$second" "$data/movies/ewig.mpg"
truncate -s 50G "$data/movies/ewig.mpg"
trap 'rm -f "$data/movies/ewig.mpg"; tidy' EXIT
save_once
for where in room loop dialog; do
    ends $where 0 signal TERM
    ends $where 0 signal HUP
    ends $where 1 display_goes ""
done
ends game 0 signal TERM
ends game 1 display_goes ""
ends box 0 signal HUP
ends film 0 signal TERM
ends film 0 window_closes ""
ends loop 0 window_closes ""

#!/usr/bin/env bash
# The workbench under a window manager: what is saved is shown, however an editor writes it; what is faulty is told of
# and changes nothing; an area that is drawn stands in the source; what is played becomes a walk.
set -uo pipefail
zentrox=$1 story=$2 probe=$3 out=$4
. "$(dirname "$0")/fresh.bash"
source=s/story/start.story
convert s/graphics/stube.bmp -negate "BMP3:s/graphics/anders.bmp"

display 1024x768 openbox
play "$zentrox" --author s/story --record gespielt.walk --flags "BEGRÜSST" Start.lsd
room_stands
room=$(middle)

# with PICTURE: the source with another picture of the room, on the standard output.
with() { sed "s/Bild \".*\"/Bild \"$1\"/" "$source"; }
# shows WHAT COMMAND...: saving by this command shows it.
shows() {
    local what=$1 before
    before=$(middle)
    shift
    "$@"
    eventually looks_other "$before" || fail "not shown: $what"
    must_live "$what"
}
by_rename() { with anders.bmp >neu~ && mv neu~ "$source"; }
by_truncation() { with stube.bmp >neu && cat neu >"$source"; }
in_two_steps() {
    with anders.bmp >neu
    head -c 300 neu >"$source"
    sleep 0.01
    tail -c +301 neu >>"$source"
}
shows "a file that is written anew and renamed" by_rename
other=$(middle)
shows "a file that is cut off and written" by_truncation
eventually looks_like "$room" || fail "the room is another one"
shows "a file that is written in two steps" in_two_steps
eventually looks_like "$other" || fail "the room is another one"
shows "the picture itself" convert s/graphics/stube.bmp -flip "BMP3:s/graphics/anders.bmp"
convert s/graphics/stube.bmp -negate "BMP3:s/graphics/anders.bmp"
eventually looks_like "$other" || fail "the picture is not shown again"

# told WORDS: the program has said it; what it showed before is still there.
told() { eventually grep -q -- "$1" game.log || { cat game.log >&2; fail "not told: $1"; }; }
echo 'Quatsch "Nichts"' >>"$source"
told 'start.story:[0-9]*:1: error.*Quatsch'
must_live "a faulty file"
eventually looks_like "$other" || fail "a faulty file changes the room"
import -window "$window" faulty.png
sed -i '$d' "$source"

# Lines may be elsewhere now: what is drawn is put on the clipboard, and the source is left alone.
eval "$(xdotool getwindowgeometry --shell "$window")"
at() { xdotool mousemove --window "$window" "$1" "$(($2 + 1))"; sleep 0.1; }
drag() {
    at "$1" "$2"
    xdotool mousedown 1
    at "$3" "$4"
    xdotool mouseup 1
}
before=$(cksum <"$source")
echo 'Quatsch' >>"$source"
sleep 0.5
at 150 200
key ctrl+F6
sleep 0.2
drag 30 40 91 82
sleep 0.3
copied() { [ "$(xclip -selection clipboard -o 2>/dev/null)" = "Rechteck 30 40 91 82" ]; }
eventually copied || fail "nothing on the clipboard"
key Escape
sed -i '$d' "$source"
[ "$(cksum <"$source")" = "$before" ] || fail "a faulty source was written to"
sleep 0.3

# Sources that are put away, and others in their place.
mv s/story weg
told 'gibt es nicht'
must_live "sources that are gone"
cp -a weg s/story
rm -r weg
sleep 0.3
shows "a source where another directory was" by_truncation
shows "and again" by_rename
mv "$source" start.weg
sleep 0.3
must_live "a source that is gone"
mv start.weg "$source"

# Where nothing can be written.
mv s/rooms s/voll
: >s/rooms
with stube.bmp >neu && cat neu >"$source"
told 's/rooms'
must_live "a disk that takes nothing"
rm s/rooms
mv s/voll s/rooms
sleep 0.3
by_truncation
eventually looks_like "$room" || fail "the room does not come back"

# An area is drawn for the object under the pointer, the door.
at 150 200
key ctrl+F6
sleep 0.2
for corner in "30 40" "90 40" "90 120"; do
    at $corner
    xdotool click 1
    sleep 0.1
done
key Return
outlined() { grep -q "Vieleck 30 40, 90 40, 90 120" "$source"; }
eventually outlined || { cat "$source" >&2; fail "no outline in the source"; }
sleep 0.3
drag 50 60 151 262
written() { grep -q "Rechteck 50 60 151 262" "$source"; }
eventually written || { cat "$source" >&2; fail "no line in the source"; }
grep -q -e "Rechteck 100 120 220 400" -e Vieleck "$source" && fail "the old area is still there"
sed -n '/Objekt "Tür"/,/Links/p' "$source" | grep -q "Rechteck 50 60" || fail "the line is at another object"
key Escape
sleep 0.5

# It is there at once: the door is looked at where it is now.
clear=$(middle)
at 100 100
xdotool click 3
read_on() { grep -q '^look Tür$' gespielt.walk; }
eventually read_on || { cat gespielt.walk >&2; fail "the door is not where it was drawn"; }
sleep 0.5
xdotool key Return
sleep 0.5
at 420 290
xdotool click 1
eventually grep -q '^use Schlüssel$' gespielt.walk || fail "no key taken"
sleep 1
# It can be killed at any time, and what was played is there.
kill -9 $game
{ cat gespielt.walk; echo 'expect item SCHLÜSSEL'; echo 'expect flag SCHLÜSSEL_GENOMMEN'; } >ganz.walk
"$probe" --quiet --dir s --args Start.lsd --flags "BEGRÜSST" ganz.walk || fail "the record does not lead there"
exit 0

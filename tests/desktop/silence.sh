#!/usr/bin/env bash
# A machine without sound: the box and the end as ever, then the offer to begin again without, which is remembered; the
# pictures that a player takes; a machine without fonts, or where one goes.
set -uo pipefail
zentrox=$1 data=$2 out=$3
. "$(dirname "$0")/display.bash"
mkdir -p "$out"
cd "$out" || exit 1
settings=config/zentrox/einstellungen.txt
rm -rf pictures

display 1024x768 openbox
unset ZENTROX_SOUND
export SDL_AUDIODRIVER=none-of-this-name XDG_PICTURES_DIR=$PWD/pictures
stands() { [ "$(xdotool search --onlyvisible --class zentrox 2>/dev/null | wc -l)" -gt 0 ] && ! blank; }
titled() { [ "$(xdotool getwindowname "$(xdotool search --onlyvisible --class zentrox | tail -1)" 2>/dev/null)" = "$1" ]; }

play "$zentrox" --dir "$data" Spiele.lsd
eventually titled Error || fail "no box tells of the missing sound"
key Return
eventually titled Zentrox || fail "nothing is offered after the end"
sleep 0.4
import -window root offer.png
key Escape
gone() { ! alive; }
eventually gone || fail "a refusal does not end"
wait "$game"
[ $? = 1 ] || fail "the end is another than before"
[ ! -e "$settings" ] || fail "a refusal was remembered"

play "$zentrox" --dir "$data" Spiele.lsd
eventually titled Error || fail "no box tells of the missing sound"
key Return
eventually titled Zentrox || fail "nothing is offered after the end"
key Return
eventually gone || fail "the first life does not end"
grep -qx "ohne-ton = ja" "$settings" || fail "the choice was not remembered"
again=
second_life() { again=$(xdotool search --onlyvisible --class zentrox getwindowpid 2>/dev/null | tail -1); [ -n "$again" ]; }
eventually second_life || fail "it does not begin again"
kill "$again"

# Now without a word; and a picture of it.
sleep 0.5
play "$zentrox" --dir "$data" Spiele.lsd
sleep 1
titled Error && fail "the choice has no effect"
key F12
there() { ls pictures/Zentrox*.png >/dev/null 2>&1; }
eventually there || fail "no picture"
sleep 0.3
[ "$(identify -format %wx%h pictures/Zentrox*.png)" = "$(size_of_window)" ] || fail "the picture has another size"
import -window "$window" notice.png
must_live end
kill "$game"
wait "$game"
rm "$settings"
play "$zentrox" --no-sound --dir "$data" Spiele.lsd
sleep 1
titled Error && fail "--no-sound has no effect"
kill "$game"
wait "$game"

# Without any font it plays on in one of its own, which it says once.
echo '<?xml version="1.0"?><!DOCTYPE fontconfig SYSTEM "fonts.dtd"><fontconfig></fontconfig>' >none.conf
export FONTCONFIG_FILE=$PWD/none.conf
play "$zentrox" --no-sound --dir "$data" Spiele.lsd
sleep 1
field 0 2  # a text; it is told of when that has been read
sleep 1
import -window root fonts-text.png
key space
told_of_fonts() { grep -qsx "schrift-gemeldet = ja" "$settings"; }
eventually told_of_fonts || fail "nothing tells of the missing fonts: $(cat game.log)"
sleep 0.6
import -window root fonts.png
told=$(middle)
key Return
eventually looks_other "$told" || fail "the box of the missing fonts does not close"
sleep 0.3
room=$(middle)
field 3 0
eventually looks_other "$room" || fail "the quiz does not open without fonts"
sleep 1.5
import -window root fonts-quiz.png
must_live "the quiz without fonts"
kill "$game"
wait "$game"
play "$zentrox" --no-sound --dir "$data" Spiele.lsd
sleep 1.5
looks_like "$told" && fail "the missing fonts are told of twice"
kill "$game"
wait "$game"
play "$zentrox" --no-sound --dir "$data"
sleep 1.5
import -window root fonts-menu.png
must_live "the menu without fonts"
kill "$game"
wait "$game"

# A fault of the program, here a font that goes after it was listed: a report of it is offered and written.
rm -rf fonts cache documents
mkdir fonts documents
cp /usr/share/fonts/truetype/liberation/Liberation{Sans-Regular,Serif-Bold}.ttf fonts/
echo "<?xml version='1.0'?><fontconfig><dir>$PWD/fonts</dir><cachedir>$PWD/cache</cachedir></fontconfig>" >some.conf
export FONTCONFIG_FILE=$PWD/some.conf XDG_DOCUMENTS_DIR=$PWD/documents
play "$zentrox" --no-sound --dir "$data" Spiele.lsd
sleep 1
field 0 2
sleep 0.8
key space
sleep 0.5
rm fonts/LiberationSerif-Bold.ttf
field 2 0
eventually grep -q "LiberationSerif-Bold" game.log || fail "the font that is gone is no fault"
sleep 0.8
import -window root fault.png
must_live "the question after a fault"
key Return
written() { ls documents/Zentrox-Bericht*.txt >/dev/null 2>&1; }
eventually written || fail "no report"
grep -q '^# Am Ende stand ein Fehler: .*LiberationSerif-Bold' documents/Zentrox-Bericht*.txt ||
    fail "the report does not tell of the fault"
sleep 0.4
import -window root fault-told.png
key Return
eventually gone || fail "it does not end after the report"
wait "$game"
[ $? = 1 ] || fail "a fault has another status"
exit 0

#!/usr/bin/env bash
# What a player sets on the desktop: the window of the settings opens by its key and by the mark at the edge, and what
# was chosen is there after a new start.
set -uo pipefail
zentrox=$1 data=$2 out=$3
. "$(dirname "$0")/display.bash"
mkdir -p "$out"
cd "$out" || exit 1
settings=config/zentrox/einstellungen.txt

display 1366x768 openbox
room_plays() {
    play "$zentrox" --dir "$data" Spiele.lsd
    eventually looks_other "$(middle)"
    sleep 0.5
    blank && fail "no room"
}
ends() {
    kill "$game"
    wait "$game"
}
in_full_screen() { [ "$(size_of_window)" = 1366x768 ]; }
says() { grep -qx "$1" "$settings" 2>/dev/null; }

room_plays
room=$(middle)
key F10
eventually looks_other "$room" || fail "F10 opens no settings"
sleep 0.2
import -window "$window" settings.png
key Left Left Next space  # music; the next page, full screen
eventually in_full_screen || fail "the settings do not bring full screen"
says "musik = 80" || fail "the settings are not written: $(cat "$settings")"
sleep 0.5
import -window "$window" settings_full.png
key Escape
sleep 0.3
key F8
sleep 0.5
must_live "full screen"
xdotool mousemove 683 300
eventually says "vergroesserung = scharf" || fail "F8 is not remembered: $(cat "$settings")"
ends

printf '# von Hand\n' >>"$settings"
room_plays
eventually in_full_screen || fail "full screen is not remembered: $(size_of_window)"
sleep 0.5
import -window root again.png
[ "$(convert again.png -crop 1x760+200+4 -format %k info:-)" -gt 20 ] || fail "the way of enlarging is not remembered"
key F11
left_full_screen() { ! in_full_screen; }
eventually left_full_screen
sleep 0.5
key F8
sleep 0.2
key F8
xdotool mousemove --window "$window" 200 200
eventually says "vergroesserung = ganz" || fail "back to the first way: $(cat "$settings")"
says "vollbild = nein" && says "# von Hand" || fail "the file lost something: $(cat "$settings")"

# The mark shows where the pointer rests, and opens them.
sleep 0.5
room=$(middle)
eval "$(xdotool getwindowgeometry --shell "$window")"
xdotool mousemove --window "$window" $((WIDTH - 10)) 10
sleep 1
xdotool mousemove --window "$window" $((WIDTH - 10)) 1
sleep 1.2
import -window "$window" mark.png
xdotool click 1
eventually looks_other "$room" || fail "the mark opens nothing"
key Escape
eventually looks_like "$room" || fail "the settings leave something behind"
must_live "end"
exit 0

#!/usr/bin/env bash
# The real program under a window manager: windows open and close quickly, games stand in full screen and back, a resize
# reaches the room under a dialog; and the room is afterwards what it was.
set -uo pipefail
zentrox=$1 data=$2 out=$3 manager_name=${4:-openbox}
. "$(dirname "$0")/display.bash"
mkdir -p "$out"
cd "$out" || exit 1

display 1024x768 "$manager_name"
play "$zentrox" --dir "$data" Spiele.lsd
eventually looks_other "$(middle)" 
sleep 0.5
blank && fail "no room"
room=$(middle)

# Message boxes one after the other: each closes on a key, and the window system still talks to it then.
for i in $(seq 40); do
    key F7
    sleep 0.05
    key Return
    sleep 0.03
    must_live "box $i"
done
eventually looks_like "$room" || fail "the boxes leave something behind"

# opens NAME COLUMN ROW
opens() {
    field "$2" "$3"
    eventually looks_other "$room" || fail "$1 does not open"
    must_live "$1 opens"
}
closes() {
    eventually looks_like "$room" || fail "$1 leaves something behind"
    must_live "$1 closes"
}
for i in 1 2 3; do
    opens Pong 0 0
    key alt+F4
    closes Pong
    opens riddle 1 0
    wmctrl -c :ACTIVE: 2>/dev/null || key alt+F4
    closes riddle
    key F2
    eventually looks_other "$room" || fail "no dialog"
    key Escape
    closes dialog
done

# In full screen, and out of it while the game is open.
in_full_screen() { [ "$(size_of_window)" = 1024x768 ]; }
in_window() { [ "$(size_of_window)" = 640x483 ]; }
key F11
eventually in_full_screen || fail "no full screen"
eventually looks_other "$room"
sleep 0.4
full=$(middle)
for game_at in "Pong 0 0" "riddle 1 0" "pi 2 0" "Memory 0 1"; do
    set -- $game_at
    field "$2" "$3"
    eventually looks_other "$full" || fail "$1 does not open in full screen"
    sleep 0.3
    blank && [ "$1" != Pong ] && fail "$1 is not to be seen in full screen"
    key F11
    sleep 0.5
    key F11
    eventually in_full_screen || fail "$1: full screen does not come again"
    key alt+F4
    sleep 0.3
    must_live "$1 in full screen"
done
key F11
eventually in_window || fail "the window does not come back: $(size_of_window)"
eventually looks_like "$room" || fail "the room does not come back"

# A person's size reaches the room under a dialog.
key F2
eventually looks_other "$room" || fail "no dialog"
xdotool windowsize "$window" 800 600
sleep 0.8
key Escape
sleep 0.3
import -window "$window" sized.png
corner=$(convert sized.png -crop 60x500+4+40 -format %k info:-)
[ "$corner" -gt 20 ] || fail "the room did not take the size: $corner colours at its edge"
must_live "end"
exit 0

# For scripts that play the real program under a display of their own: `display SIZE WM`, then `play ARGUMENTS`.
# A room of tests/desktop/story is 4 by 3 fields of 160 by 160 pixels, one for each thing that opens a window.

fail() { echo "$*" >&2; exit 1; }

xvfb= game=
# The window manager and what it has started end with the display.
tidy() { kill $game $xvfb; wait $game $xvfb; } 2>/dev/null
trap tidy EXIT

# The display number is the first free one; Xvfb writes it to its descriptor. A server that starts anew when its last
# client goes would take a window manager with it that is just coming.
display() {
    local number
    exec 3<> <(:)
    Xvfb -displayfd 3 -screen 0 "$1x24" -nolisten tcp -noreset >/dev/null 2>&1 &
    xvfb=$!
    read -r -t 20 -u 3 number || fail "no display"
    export DISPLAY=:$number ZENTROX_SOUND=none XDG_CONFIG_HOME=$PWD/config
    rm -rf "$XDG_CONFIG_HOME"  # out of the box
    screen_width=${1%x*} screen_height=${1#*x}
    # What the window system's own libraries keep to the end is not ours.
    echo 'leak:libdbus' >suppressions
    export LSAN_OPTIONS=suppressions=$PWD/suppressions:print_suppressions=0
    [ -n "${2:-}" ] || return 0
    $2 >/dev/null 2>&1 &
    eventually managed || fail "$2 does not start"
}
managed() { xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q 'window id'; }

# Tries for ten seconds.
eventually() {
    local i
    for i in $(seq 200); do
        "$@" && return 0
        sleep 0.05
    done
    return 1
}

# play PROGRAM ARGUMENTS: its window is $window, its output in game.log.
play() {
    "$@" >game.log 2>&1 </dev/null &
    game=$!
    eventually window_there || fail "no window"
}
window_there() {
    window=$(xdotool search --onlyvisible --class zentrox 2>/dev/null | tail -1)
    [ -n "$window" ]
}
alive() { kill -0 "$game" 2>/dev/null; }
must_live() {
    alive && return
    wait "$game"
    local status=$?
    cat game.log >&2
    fail "the program ended with status $status: $*"
}

# Keys and clicks go a little slower than a person's fastest.
key() { xdotool key "$@"; }
# field COLUMN ROW: clicks into a field of the room, which stands in the middle of the native window at $scale.
scale=1
field() {
    eval "$(xdotool getwindowgeometry --shell "$window")"
    xdotool mousemove --window "$window" $((WIDTH / 2 + ($1 * 160 - 240) * scale)) \
        $((HEIGHT / 2 + ($2 * 160 - 160) * scale)) click 1
}

# The pixels of the screen's middle, as a number.
middle() {
    import -window root -crop "240x300+$((screen_width / 2 - 120))+$((screen_height / 2 - 150))" +repage -depth 8 \
        rgb:- 2>/dev/null | cksum
}
looks_other() { [ "$(middle)" != "$1" ]; }
looks_like() { [ "$(middle)" = "$1" ]; }
# Black or one colour: nothing is there.
blank() {
    [ "$(import -window root -crop "240x300+$((screen_width / 2 - 120))+$((screen_height / 2 - 150))" +repage \
        -format %k info:- 2>/dev/null)" -le 2 ]
}
# The first room, drawn whole and a moment old.
stands() { ! blank; }
room_stands() { eventually stands || fail "no room"; sleep 0.5; }
size_of_window() { xdotool getwindowgeometry "$window" | sed -n 's/.*Geometry: //p'; }

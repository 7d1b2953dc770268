#!/usr/bin/env bash
# Takes the probe's arguments for a story, plays it with the real program instead, and closes its window: early, late, and
# behind a click on each of the objects that the walk uses. Appends a line for each to $HARM_OUT: milliseconds until the
# process is gone, milliseconds of its processor time, MB with its workers, how many times it was asked.
set -uo pipefail
while [ $# -gt 1 ]; do
    case $1 in
        --dir) story=$2; shift 2 ;;
        *) shift ;;
    esac
done
walk=$1
work=$(mktemp -d)
. "$(dirname "$0")/../desktop/display.bash"
trap 'end_all; tidy; rm -rf "$work"' EXIT
cd "$work" || exit 1

ours() { pgrep -f -- "--saves $work/saves"; }
end_all() {
    local process
    for process in $(ours); do kill -KILL "$process"; done 2>/dev/null
}
# Ticks of a hundredth of a second that the process has had.
ticks() { awk '{ print $14 + $15 }' "/proc/$game/stat" 2>/dev/null; }
gone() {
    case $(cut -d' ' -f3 "/proc/$game/stat" 2>/dev/null) in '' | Z) return 0 ;; *) return 1 ;; esac
}
megabytes() {
    local process
    for process in $(ours); do cat "/proc/$process/smaps_rollup"; done 2>/dev/null |
        awk '/^Pss:/ { sum += $2 } END { print int(sum / 1024) }'
}
note_memory() {
    local now
    now=$(megabytes)
    [ "$now" -le "$most" ] || most=$now
}
# close_after SECONDS [OBJECT]: OBJECT counts from 0.
close_after() {
    local begun before last asked=0 now most=0 i
    mkdir -p saves
    play "$HARM_ZENTROX" --dir "$story" --saves "$work/saves" Start.lsd
    sleep 1
    if [ $# -gt 1 ]; then
        eval "$(xdotool getwindowgeometry --shell "$window")"
        xdotool mousemove --window "$window" $((WIDTH / 2 - 315 + 10 * $2)) $((HEIGHT / 2 - 220)) click 1
    fi
    for i in $(seq "$(awk "BEGIN { print int($1 / 0.1) }")"); do
        note_memory
        sleep 0.05
    done
    [ -z "${HARM_SHOTS:-}" ] || import -window root "$HARM_SHOTS/$(basename "$HARM_OUT")-$1-${2:-}.png"
    before=$(ticks) last=$before begun=$(date +%s%N)
    for i in $(seq 1000); do
        # Who shows a box closes that first.
        [ $(((i - 1) % ${HARM_ASK_EACH:-20})) != 0 ] || { key alt+F4; asked=$((asked + 1)); }
        ! gone || break
        now=$(ticks)
        [ -z "$now" ] || last=$now
        sleep 0.01
    done
    now=$((($(date +%s%N) - begun) / 1000000))
    gone || { now=99999; kill -KILL "$game"; }
    echo "$now $(((last - before) * 10)) $most $asked" >>"$HARM_OUT"
    wait "$game" 2>/dev/null
    game=
    # Whose room is closed begins anew at the menu.
    sleep 0.2
    end_all
}

display 1024x768 openbox
export ZENTROX_SOUND= SDL_AUDIODRIVER=dummy
close_after 0
close_after 2
used=$(grep -c '^use ' "$walk")
for ((object = 0; object < used; object++)); do
    close_after 0.2 "$object"
    close_after 2 "$object"
done
echo "status 0"

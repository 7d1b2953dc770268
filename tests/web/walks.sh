#!/usr/bin/env bash
# Plays walks with the native probe and with the one compiled for the browser, under node: traces have to be equal to
# the byte, pictures to the pixel. walks.sh SOURCE BUILD WORK; exit status 77 where the browser's engine is not built.
set -u
source=$1 build=$2 work=$3
engine=$source/build/web-build
export NODE_PATH=${NODE_PATH:-/usr/share/nodejs}
if [ ! -f "$engine/build.ninja" ] || ! command -v emcc >/dev/null; then
    echo "The engine for the browser is not built; ./web builds it."
    exit 77
fi
# Up to date with the sources, or it would prove nothing.
cmake --build "$engine" --target zentrox-probe >"$work.log" 2>&1 || { tail -20 "$work.log"; exit 1; }
rm -rf "$work"
mkdir -p "$work"
options=()
[ "$(node -p 'parseInt(process.versions.node)')" -ge 18 ] && options=(--no-experimental-fetch)

status=0 count=0 pictures=0
# Has each machine play a walk in a place of its own: both NAME WALK options of the probe...
both() {
    local name=$1 walk=$2
    shift 2
    local ours=$work/native/$name theirs=$work/node/$name
    mkdir -p "$ours" "$theirs"
    "$build/zentrox-probe" "$@" --out "$ours" "$walk" >"$ours.trace" 2>"$ours.err"
    local wanted=$?
    node "${options[@]}" "$engine/zentrox-probe.js" "$@" --out "$theirs" "$walk" >"$theirs.trace" 2>"$theirs.err"
    local got=$?
    count=$((count + 1))
    if [ $wanted -ne $got ] || ! cmp -s "$ours.trace" "$theirs.trace"; then
        echo "$name: the traces differ (exit status $wanted and $got)"
        diff "$ours.trace" "$theirs.trace" | head -5
        head -3 "$theirs.err"
        status=1
    fi
    local picture
    for picture in "$ours"/*.png; do
        [ -f "$picture" ] || continue
        pictures=$((pictures + 1))
        local pixels
        pixels=$(compare -metric AE "$picture" "$theirs/${picture##*/}" null: 2>&1)
        [ "$pixels" = 0 ] || { echo "$name: ${picture##*/} differs in $pixels pixels"; status=1; }
    done
}

places=()
for place in "$source/build/demo" "$source/build/demo-cd" "$build/tests/walks/data" "$build/tests/games/data"; do
    [ -d "$place" ] && places+=("$place")
done
export ZENTROX_LENGTHS=$work/lengths
"$build/list_lengths" "${places[@]}" >"$ZENTROX_LENGTHS"
# Under node nothing decodes the pictures of a film; those that walks look at are taken apart ahead.
export ZENTROX_FILMS=$work/films
"$build/list_lengths" --films "$ZENTROX_FILMS" "$build/tests/walks/data" >/dev/null

for walk in "$source"/demo/walks/*.walk; do
    both "demo-$(basename "$walk" .walk)" "$walk" --dir "$source/build/demo" --root "$source/build/demo-cd"
done
for walk in "$source"/tests/walks/*.walk; do
    name=$(basename "$walk" .walk)
    both "walks-$name" "$walk" --dir "$build/tests/walks/data" --args "${name^}.lsd"
done
for walk in "$source"/tests/games/*.walk; do
    name=$(basename "$walk" .walk)
    both "games-$name" "$walk" --dir "$build/tests/games/data" --args "${name%%_*}.lsd"
done
rm -rf "$ZENTROX_FILMS"
echo "$count walks, $pictures pictures"
exit $status

#!/usr/bin/env bash
# Makes a page of the rooms that begin with a mini-game and plays it and the demo's page in a browser:
# browser.sh SOURCE BUILD WORK.
set -u
source=$1 build=$2 work=$3
if [ -d "$source/build/web-engine/page" ] && [ -d "$build/tests/games/data" ]; then
    "$build/zentrox-story" web "$build/tests/games/data" --into "$work/games" --engine "$source/build/web-engine" \
        --title Spiele >"$work/games.log" 2>&1 || { cat "$work/games.log"; exit 1; }
fi
exec node "$source/tests/web/browser.mjs" "$source/build/web" "$work/pictures" "$work/games"

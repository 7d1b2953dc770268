#!/usr/bin/env bash
# Makes pages of the data of tests/games and tests/walks and plays them and the demo's page in a browser:
# browser.sh SOURCE BUILD WORK [SCRIPT], SCRIPT browser.mjs or another one beside it.
set -u
source=$1 build=$2 work=$3 script=${4:-browser.mjs}
if [ -d "$source/build/web-engine/page" ]; then
    for data in games walks; do
        [ -d "$build/tests/$data/data" ] || { echo "left out: the data of tests/$data are not built"; continue; }
        # Some of the data is broken on purpose, which is told and does no harm.
        "$build/zentrox-story" web "$build/tests/$data/data" --into "$work/page-$data" --engine "$source/build/web-engine" \
            --title Spiele >"$work/page-$data.log" 2>&1
        [ -f "$work/page-$data/index.html" ] || { cat "$work/page-$data.log"; exit 1; }
    done
fi
exec node "$source/tests/web/$script" "$source/build/web" "$work/pictures" "$work/page-games" "$work/page-walks"

#!/bin/sh
# Proves a story and plays every walk that comes of it: played.sh ZENTROX-STORY ZENTROX-PROBE DATA PLACE SOURCE [GAMES]
# DATA holds pictures and pointers, GAMES the files of the mini-games, PLACE is made anew. At least one walk of an ending and one of a dead end are wanted.
set -eu
story=$1 probe=$2 data=$3 place=$4 source=$5
rm -rf "$place"
mkdir -p "$place"
cp -r "$data/graphics" "$data/cursors" "$data/items" "$data/sounds" "$place"
cp "$place/items/red.bmp" "$place/items/muenze.bmp"
[ $# -lt 6 ] || cp -r "$6" "$place/games"
"$story" build "$source" --into "$place"
status=0
"$story" prove "$source" --walks "$place/walks" --graph "$place/graph.dot" --statistik >"$place/report.txt" || status=$?
cat "$place/report.txt"
[ $status -eq 1 ]
[ -n "$(ls "$place"/walks/ende-*.walk)" ]
[ -n "$(ls "$place"/walks/sackgasse-*.walk)" ]
for walk in "$place"/walks/*.walk; do
    echo "$walk"
    "$probe" --quiet --dir "$place" --args Start.lsd --ran "$place/ran.json" "$walk"
done
# What was compiled has the same answers.
"$story" prove "$place" --json >"$place/data.json" || [ $? -eq 1 ]
"$story" prove "$source" --json >"$place/source.json" || [ $? -eq 1 ]
[ "$(grep '"complete"' "$place/data.json")" = "$(grep '"complete"' "$place/source.json")" ]
[ "$(grep '"states"' "$place/data.json")" = "$(grep '"states"' "$place/source.json")" ]

#!/usr/bin/env bash
# The sample story packed: the same twice, read by every unzip, and played like the directory it came from.
# demo.sh ZENTROX-STORY ZENTROX-PROBE DEMO-DATA TITLE WALK SCRATCH
set -euo pipefail
story=$1 probe=$2 demo=$3 title=$4 walk=$5 scratch=$6
fail() { echo "$*" >&2; exit 1; }

rm -rf "$scratch"
mkdir -p "$scratch/demo"
cp -al "$demo"/* "$scratch/demo/" 2>/dev/null || cp -a "$demo"/* "$scratch/demo/"
rm -rf "$scratch/demo/saves"
cp "$title" "$scratch/demo/titel.txt"
cd "$scratch"

"$story" pack demo >said
[ "$(cat said)" = die-letzte-stunde.zentrox ] || fail "said $(cat said)"
mv die-letzte-stunde.zentrox first.zentrox
TZ=America/Lima "$story" pack demo --into second.zentrox >/dev/null
cmp first.zentrox second.zentrox
SOURCE_DATE_EPOCH=1000000000 "$story" pack demo --into dated.zentrox >/dev/null
unzip -lv dated.zentrox | grep -q '2001-09-09 01:46.*titel.txt' || fail "the date of the files is not the one asked for"
unzip -tq first.zentrox >/dev/null
[ "$(dd if=first.zentrox bs=1 skip=38 count=27 2>/dev/null)" = application/x-zentrox-story ] ||
    fail "its kind is not told at its start"

"$probe" --dir first.zentrox --out packed "$walk" >packed.txt
"$probe" --dir demo --out plain "$walk" >plain.txt
cmp packed.txt plain.txt

# With a player in it, which is an unpacked archive of the game: its author's tools and its stories stay behind.
mkdir -p player/bin player/lib/bundled player/share/zentrox/stories/own
echo linux-test >player/share/zentrox/relocatable
printf '#!/bin/sh\nexec echo "played $0"\n' | tee player/zentrox player/bin/zentrox >player/bin/zentrox-story
chmod +x player/zentrox player/bin/*
touch player/lib/bundled/libx.so.1 player/share/zentrox/stories/own/titel.txt
"$story" pack demo --program --player player --into gift >said
[ "$(cat said)" = $'gift/die-letzte-stunde\ngift-linux-test.zip' ] || fail "said $(cat said)"
(cd gift && find . -type f | sort) >files
diff - files <<'END'
./bin/zentrox
./die-letzte-stunde
./lib/bundled/libx.so.1
./share/zentrox/relocatable
./share/zentrox/stories/die-letzte-stunde.zentrox
END
cmp gift/share/zentrox/stories/die-letzte-stunde.zentrox first.zentrox
unzip -q gift-linux-test.zip -d unpacked
diff -r gift unpacked/die-letzte-stunde
[ "$(unpacked/die-letzte-stunde/die-letzte-stunde)" = "played unpacked/die-letzte-stunde/die-letzte-stunde" ] ||
    fail "what the archive holds does not start"
mv gift-linux-test.zip once.zip
rm -rf gift
"$story" pack demo --program --player player --into gift >/dev/null
cmp once.zip gift-linux-test.zip
if "$story" pack demo --program --player player --into gift >said 2>&1; then fail "packed over a folder that is there"; fi
grep -q 'gibt es schon' said
if "$story" pack demo --program --player demo --into other >said 2>&1; then fail "packed with a player that is none"; fi
grep -q -- --player said
[ ! -e other ] || fail "something is left of a folder without a player"
sed 's/^Kennung:.*/Kennung: lib/' "$title" >demo/titel.txt
if "$story" pack demo --program --player player --into other >said 2>&1; then fail "the program is called as a directory"; fi
grep -q 'Kennung: lib' said
cp "$title" demo/titel.txt

# What can't be packed is told, and nothing is left of it.
refused() {
    if "$story" pack demo --into third.zentrox >said 2>&1; then fail "packed, but $1"; fi
    grep -q "$2" said || fail "$1, but it says: $(cat said)"
    [ ! -e third.zentrox ] || fail "something is left of a story with $1"
}
grep -v Kennung "$title" >demo/titel.txt
refused "no name for the saved games" 'Kennung: mein-spiel'
{ cat "$title"; echo 'Farbe: rot'; } >demo/titel.txt
refused "an unknown line" "titel.txt:$(wc -l <demo/titel.txt): "
cp "$title" demo/titel.txt
cp demo/rooms/Start.lsd demo/rooms/START.lsd
refused "two files of one name" 'anders geschrieben'
rm demo/rooms/S*.lsd
refused "no first room" 'Start.lsd fehlt'

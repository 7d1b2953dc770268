#!/usr/bin/env bash
# talk.sh PROBE DATA: captions and names from their files, what was heard in an earlier play, and speech by a stand-in.
set -u
probe=$1
data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0
fail() { printf '%s\n' "$*"; status=1; }
play() {
    "$probe" --dir "$scratch/data" --saves "$scratch/saves" --settings "$scratch/settings" --out "$scratch" \
        --args Bequem.lsd - >"$scratch/trace" 2>"$scratch/complaint" || fail "$(cat "$scratch/complaint")"
}
mkdir -p "$scratch/data"
cp -RL "$data"/*/ "$scratch/data/"
rm -rf "$scratch/data/sounds"
mkdir "$scratch/data/sounds"
cp "$data/sounds/lang.wav" "$scratch/data/sounds/"
printf 'LANG.wav\tEin langer Ton\nohne Tabulator\n\tleer\n' >"$scratch/data/sounds/untertitel.tsv"
printf 'lang.wav\tKlara\n' >"$scratch/data/sounds/sprecher.tsv"

# A name before the line; the caption changes the picture over the room and is gone again.
printf 'untertitel = ja\nnamen = ja\n' >"$scratch/settings"
play <<'END'
until idle
shot vorher.png
use Rede
until text "Klara: Erste Rede."
shot darin.png
key a
until text "Klara: Zweite"
key a
until idle
wait 6000
shot nachher.png
use Frage
until choice
expect not text "Klara"
END
cmp -s "$scratch/vorher.png" "$scratch/nachher.png" || fail "the caption stays"
cmp -s "$scratch/vorher.png" "$scratch/darin.png" && fail "nothing is shown"

# Heard in an earlier play, and damaged notes of it.
printf 'gehoertes-merken = ja\n' >"$scratch/settings"
talk=$'until idle\nuse Rede\nuntil text "Erste"\nkey a\nuntil text "Zweite"\nkey a\nuntil idle'
play <<<"$talk"
printf 'zzz\n\n0xg\n%s\n' "$(printf 'f%.0s' {1..40})" >>"$scratch/saves/gehoert.txt"
play <<'END'
until idle
down pagedown
use Rede
until idle 400
expect flag FERTIG
END

# Said aloud, and hushed when it was read on; what the pointer is over; a machine without speech plays on.
printf 'vorlesen = stimme\n' >"$scratch/settings"
play <<<"$talk"$'\nmove 45 10\nwait 400\nuse Frage\nuntil choice'
for line in 'spd-say --language de -- Erste Rede.' 'spd-say --cancel' 'spd-say --language de -- Zweite Rede, die zwei Zeilen hat.' \
    'spd-say --language de -- Ding' 'spd-say --language de -- Wie nun? 1: So 2: Anders'; do
    grep -qF "start \"$line\"" "$scratch/trace" || fail "not told: $line"
done
exit $status

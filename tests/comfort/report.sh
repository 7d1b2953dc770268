#!/usr/bin/env bash
# report.sh PROBE DATA: a report of a problem leads to where it was written, and holds what it says.
set -u
probe=$1
data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0

fail() { printf '%s\n' "$*"; status=1; }
common=(--quiet --dir "$data" --saves "$scratch/saves")
# reports WALK OPTIONS...: plays it with the comforts; what it says goes to `said`, the report is `report`.
reports() {
    rm -rf "$scratch/out" "$scratch"/saves
    "$probe" "${common[@]}" --settings "$scratch/none" --out "$scratch/out" "${@:2}" - <<<"$1" >"$scratch/said" ||
        fail "the play fails"
    report=$(echo "$scratch"/out/Zentrox-Bericht*.txt)
    [ -f "$report" ] || fail "no report"
}
# leads MORE: the report and more of a walk comes to the state that was said.
leads() {
    { cat "$report"; echo "$1"; } >"$scratch/walk"
    "$probe" "${common[@]}" --as-recorded "$scratch/walk" >"$scratch/again" || { cat "$report"; fail "the report fails"; }
    diff "$scratch/said" "$scratch/again" || { grep -v '^#  ' "$report"; fail "the report leads elsewhere"; }
}
write=$'down control\nkey p\nup control'

# In the middle of a talk, after some rooms and with something in the bag.
reports "until idle
use Ding
until idle
use Tür
until idle
use Zurück
until idle
use Frage
until choice
choose 2
until text \"Gut.\"
key space
until idle
use Rede
until text \"Erste\"
$write
say state
say text \"Erste\"
key space
until text \"Zweite\"
key space
until idle
say state" --args Bequem.lsd
leads $'until text "Erste"\nsay state\nsay text "Erste"\nkey space\nuntil text "Zweite"\nkey space\nuntil idle\nsay state'
head -1 "$report" | grep -q '^# zentrox-probe --args Bequem.lsd --random [0-9]* --flags DA,ZURÜCK --items blue$' ||
    fail "not begun with the last room: $(head -1 "$report")"
grep -q 'Tür' "$report" && fail "it holds what was before the last room"
sed -n '/^# Bild/,$ s/^#   //p' "$report" | base64 -d | head -c 8 | cmp -s - <(printf '\x89PNG\r\n\x1a\n') ||
    fail "no picture"
sed -n '/^# Spielstand/,/^# Bild/ s/^#   //p' "$report" | base64 -d | tr -d '\r' | grep -qx FERTIG &&
    fail "the saved game is a later one"
sed -n '/^# Spielstand/,/^# Bild/ s/^#   //p' "$report" | base64 -d | tr -d '\r' | grep -qx GEREDET || fail "no saved game"
grep -q '^# Wartet in: .*Text' "$report" || fail "it does not tell what it waits for"

# Below the box of a failure, and in the menu.
reports "until window MsgBox
$write
close
until idle
say state" --args Fehler_bild.lsd
grep -q '^# Meldung: .*fehlt.bmp' "$report" || fail "it does not tell of the box"
leads $'until window MsgBox\nclose\nuntil idle\nsay state'
reports "until idle
$write"
leads 'until window Menu'

# A room that is played for very long: the report begins where it rested, and is no longer than others.
reports "until idle
use Tür
until idle
$(for i in $(seq 1100); do printf 'use _Wand\nuntil idle\nuse Lang\nuntil text "passt."\nkey a\nuntil idle\n'; done)
$write
say state" --args Bequem.lsd
leads $'until idle\nsay state'
grep -q '^# Der Raum wurde sehr lange gespielt' "$report" || fail "it does not say that it was cut"
[ "$(grep -vc '^#' "$report")" -lt 2100 ] || fail "it holds all of a long play"
head -1 "$report" | grep -q -e '--flags DA,WAND' || fail "not begun with the state it was cut at: $(head -1 "$report")"

[ ! -e "$scratch/none" ] || fail "settings were written"
exit $status

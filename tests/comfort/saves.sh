#!/usr/bin/env bash
# saves.sh PROBE DATA: saving by itself and by one key, the richer dialog, and going on where a play ended; and that
# none of it happens unasked.
set -u
probe=$1
data=$2
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
status=0

fail() { printf '%s\n' "$*"; status=1; }
settings() { printf '%s = ja\n' "$@" >"$scratch/settings"; }
# play OPTIONS... with a walk as standard input
play() {
    "$probe" --dir "$data" --saves "$scratch/saves" --settings "$scratch/settings" --out "$scratch" "$@" - \
        >"$scratch/trace" 2>"$scratch/complaint" || fail "$(cat "$scratch/complaint")"
}
saved() { (cd "$scratch/saves" 2>/dev/null && echo ./*.xtc | sed 's|\./||g'); }
says() { grep -q "$1" "$scratch/saves/$2" || fail "$2 does not say: $1"; }

# Out of the box: a close is not asked about, nothing is written, and the trace is that of a play without comforts.
settings nichts
walk=$'until idle\nuse Rede\nuntil text "Erste"\nkey a\nuntil text "Zweite"\nkey a\nuntil idle\nuse Tür\nuntil idle\nclose'
play --args Bequem.lsd <<<"$walk"
"$probe" --dir "$data" --saves "$scratch/saves" --args Bequem.lsd - <<<"$walk" | cmp - "$scratch/trace" || fail "the trace differs"
[ ! -e "$scratch/saves" ] || [ -z "$(ls "$scratch/saves")" ] || fail "written unasked: $(saved)"

# In the middle of a talk F5 saves what was before it, and F9 leaves it.
play --args Bequem.lsd <<'END'
until idle
use Ding
until idle
use Rede
until text "Erste"
key f5
key a
until text "Zweite"
expect flag GEREDET
key f9
until idle
expect not flag GEREDET
expect item blue
use Uhr
until idle
key f5
END
[ "$(saved)" = schnell-1.xtc ] || fail "a running count-down forbids a save, found: $(saved)"

# Out of a choice and out of a room, and three files that take turns.
play --args Bequem.lsd <<'END'
until idle
use Frage
until choice
key f9
until idle
expect item blue
key f5
use Tür
until idle
key f5
use Zurück
until idle
key f5
key f9
until idle
expect room Bequem.lsd
END
[ "$(saved)" = "schnell-1.xtc schnell-2.xtc schnell-3.xtc" ] || fail "expected three files, found: $(saved)"

# What can't be loaded is told of, and the game that runs stays.
for file in "$scratch"/saves/schnell-*.xtc; do sed -i 's/^Bequem.lsd/Weg.lsd/; s/^Hinten.lsd/Weg.lsd/' "$file"; done
play --args Hinten.lsd <<'END'
until idle
key f9
until window MsgBox
expect text "Weg.lsd"
key enter
until idle
expect room Hinten.lsd
END

# A thing that the story has no more.
for file in "$scratch"/saves/schnell-*.xtc; do sed -i 's/^Weg.lsd/Bequem.lsd/; s/blue.bmp/verloren.bmp/' "$file"; done
play --args Hinten.lsd <<'END'
until idle
key f9
until window Frage
expect text "verloren"
key escape
until idle
expect room Hinten.lsd
key f9
until window Frage
key enter
until idle
expect room Bequem.lsd
expect item verloren
END

# The dialog's load, out of the box: a thing that is gone stops nothing, a room that is gone leaves the play alone.
cp "$scratch/saves/schnell-1.xtc" "$scratch/saves/weg.xtc"
sed -i 's/^Bequem.lsd/Weg.lsd/' "$scratch/saves/weg.xtc"
settings nichts
play --args Bequem.lsd <<'END'
until idle
use Ding
until idle
use Tür
until idle
key f1
until window Dialog
type "weg"
key enter
until window MsgBox
expect text "weg.xtc kann nicht geladen werden"
expect text "Weg.lsd"
key enter
until idle
expect room Hinten.lsd
expect item blue
expect flag DA
use Zurück
until idle
key f1
until window Dialog
type "schnell-1"
key enter
until idle
expect room Bequem.lsd
expect item verloren
shot told.png
wait 20000
shot later.png
END
cmp -s "$scratch/told.png" "$scratch/later.png" && fail "what is gone is not told of"
rm "$scratch/saves/weg.xtc"

# Leaving asks once something is lost, and only then.
settings beenden-fragen bilder-der-spielstaende
play --args Bequem.lsd <<'END'
until idle
use Ding
until idle
close
until window Frage
key escape
until idle
key f2
until window Dialog
type "mein"
key enter
until window MsgBox
key enter
until idle
key f2
until window Dialog
key enter
until window Frage
expect text "mein.xtc"
key escape
until window Dialog
click 20 10
expect text "Raum: Bequem"
expect text "blue"
key escape
until idle
close
until window Menu
END

# By itself: when a room was entered, and on the way out; then the play goes on.
rm -rf "$scratch/saves"
settings automatisch-speichern
play --args Bequem.lsd <<'END'
until idle
use Rede
until text "Erste"
key a
until text "Zweite"
key a
until idle
use Tür
until idle
use Zurück
until idle
use Ding
until idle
use Rede
until text "Erste"
END
[ "$(saved)" = "auto-1.xtc auto-2.xtc auto-3.xtc" ] || fail "expected three files, found: $(saved)"
says '^dabei: blue' "$(cd "$scratch/saves" && ls -t auto-*.was | head -1)"
play --continue <<'END'
until window WasWar
expect text "Raum: Bequem"
expect text "blue"
expect text "Zweite Rede"
key enter
until idle
expect item blue
expect flag FERTIG
expect flag ZURÜCK
END
play --continue <<'END'
until window WasWar
key escape
until window Menu
END

# The same out of the menu, by the first page of the settings; it has no such line without a play to go on with.
play <<'END'
until window Menu
key f10
until window Einstellungen
expect text "Weiterspielen"
key down
key down
key down
key down
key down
key enter
until window WasWar
key enter
until idle
expect item blue
expect flag FERTIG
key f10
until window Einstellungen
expect not text "Weiterspielen"
END

# The newest file is damaged: the one before it.
newest=$(ls -t "$scratch"/saves/auto-*.xtc | head -1)
head -c 300 "$newest" >"$scratch/half" && cp "$scratch/half" "$newest"
play --continue <<'END'
until window WasWar
key enter
until window MsgBox
key enter
until idle
expect flag FERTIG
END
exit $status

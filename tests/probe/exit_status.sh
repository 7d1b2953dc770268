#!/usr/bin/env bash
# What the probe's exit status and its one line of complaint say.
set -u
probe=$1 data=$2
status=0

# expect STATUS PATTERN-OF-STANDARD-ERROR WALK [OPTION...]
expect() {
    local want=$1 pattern=$2 walk=$3
    shift 3
    local complaint got
    complaint=$(printf '%s\n' "$walk" | "$probe" --quiet --dir "$data" "$@" 2>&1 >/dev/null)
    got=$?
    if [ $got != "$want" ] || ! grep -qE "$pattern" <<<"${complaint:-nothing}" || [ "$(wc -l <<<"$complaint")" != 1 ]; then
        printf 'wanted %s and /%s/, got %s and:\n%s\nfor:\n%s\n\n' "$want" "$pattern" "$got" "$complaint" "$walk"
        status=1
    fi
}

expect 0 nothing $'until idle\nexpect room tasten.LSD' --args Tasten.lsd
expect 0 nothing $'until idle\nclose\nuntil window Menu\nkey escape\nexpect ended\nwait 5' --args Tasten.lsd
expect 0 nothing $'until idle\nend\nexpect window Pong' --args Tasten.lsd
expect 1 '^-:2: expected flag NIE, found ' $'until idle\nexpect flag NIE' --args Tasten.lsd
expect 1 '^-:1: expected text "nie" within 300 ms, found ' 'until text "nie" 300' --args Tasten.lsd
expect 1 '^-:2: expected object Nichts, found ' $'until idle\nuse Nichts' --args Tasten.lsd
expect 1 '^-:3: expected click, found that the program has ended' $'key escape\nuntil ended\nclick 1 1'
# What is there is named.
expect 1 'found no object of that name in Ziehen.lsd; there is "Kiste", "Stumm"' $'until idle\nuse Kist' --args Ziehen.lsd
expect 1 'found .*where a choice waits: 1 "' $'until choice\nuse Tix' --args Auswahl.lsd
expect 1 'expected option "nie", found .*where a choice waits: 1 "' 'choose "nie"' --args Auswahl.lsd
expect 1 'expected a text with "nie", found that it never came' 'read "nie"' --args Ziehen.lsd
expect 1 'found window MsgBox with "0"' $'until idle\nkey f7\nexpect window Menu' --args Tasten.lsd
expect 1 'found no picture of that name; there is "red"' $'until idle\ntake rad' --args Ziehen.lsd
expect 1 'expected room Nie.lsd, found that there is none' $'until idle\ngo Nie.lsd' --args Ziehen.lsd
expect 1 'longer than --timeout' $'until idle\nwait 2000000000' --args Ziehen.lsd --timeout 1
expect 2 '^-:1: expected the name of a window, found Fenster' 'expect not window Fenster'
# A story that stops with a failure box: a fault of the story, but for a walk that looks for the box.
expect 1 'ohne Ende' $'wait 50\nkey enter\nuntil window Menu' --args Fehler_kreis.lsd
expect 1 'ohne Ende' 'wait 50' --args Fehler_kreis.lsd
expect 0 nothing $'until window MsgBox\nkey enter\nuntil window Menu' --args Fehler_kreis.lsd
# So is data that is missing, though the game goes on without it.
expect 1 'fehlt.bmp' $'wait 50\nkey enter\nuntil idle' --args Fehler_bild.lsd
expect 1 'fehlt.bmp' 'wait 50' --args Fehler_bild.lsd
expect 0 nothing $'until window MsgBox\nkey enter\nuntil idle' --args Fehler_bild.lsd
expect 2 '^-:1: expected ' 'walk on'
exit $status

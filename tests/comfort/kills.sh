#!/usr/bin/env bash
# kills.sh PROBE DATA [TIMES]: a play that saves by itself is killed at any moment. What lies there afterwards can be
# gone on from, and what was being written has not harmed what was there.
set -u
probe=$1
data=$2
times=${3:-12}
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
printf 'automatisch-speichern = ja\n' >"$scratch/settings"
{
    echo 'until idle'
    for ((i = 0; i < 400; ++i)); do printf 'use Tür\nuntil idle\nuse Zurück\nuntil idle\nuse Ding\nuntil idle\n'; done
} >"$scratch/walk"
common=(--quiet --dir "$data" --saves "$scratch/saves" --settings "$scratch/settings" --out "$scratch")
kills=0
for ((round = 0; round < times; ++round)); do
    "$probe" "${common[@]}" --args Bequem.lsd "$scratch/walk" &
    pid=$!
    sleep "0.$((RANDOM % 40 + 10))"
    kill -KILL $pid 2>/dev/null && kills=$((kills + 1))
    wait $pid 2>/dev/null
    compgen -G "$scratch/saves/auto-*.xtc" >/dev/null || continue
    for file in "$scratch"/saves/auto-*.xtc; do
        tail -c 5 "$file" | grep -q $'^ 0 \r$' || { echo "round $round: $file is cut"; exit 1; }
    done
    "$probe" "${common[@]}" --continue - <<<$'until window WasWar\nkey enter\nuntil idle\nexpect flag DA' ||
        { echo "round $round: can't be gone on from"; exit 1; }
done
[ -e "$scratch/saves/auto-3.xtc" ] || { echo "the play never came to save three times"; exit 1; }
[ $kills -gt 0 ] || { echo "nothing was killed"; exit 1; }

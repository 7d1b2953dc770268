#!/usr/bin/env bash
# weeks.sh PROBE WALKS OUT: walks of rooms and games while the machine's clock passes 2^31 and 2^32 milliseconds, 24 and 49
# days after its start: what is traced and shot is the same to the byte as on its first day. WALKS is a file with a line of
# data, room, walk and settings ("-" for none) for each.
set -u
probe=$1 walks=$2 out=$3
rm -rf "$out"
mkdir -p "$out"
status=0 played=0 early=10000
edges=(2147483648 4294967296 6442450944 8589934592)

# play NAME CLOCK
play() {
    local comforts=() place=$out/$1.$2
    mkdir -p "$place"
    [ "$settings" = - ] || { cp "$settings" "$place.settings" 2>/dev/null; comforts=(--settings "$place.settings"); }
    "$probe" --clock "$2" --dir "$data" --saves "$place.saves" --args "$room" --out "$place" "${comforts[@]}" "$walk" \
        >"$place/trace" 2>"$place/complaint"
    echo $? >>"$place/trace"
}
while read -r data room walk settings; do
    name=$(basename "$walk" .walk)
    # No program shows its first room in the first moment of a machine.
    play "$name" $early
    length=$(tail -2 "$out/$name.$early/trace" | awk 'NR == 1 { print $1 }')
    [ "${length:-0}" -ge 100 ] || continue
    # The edge comes in the middle of the play.
    begin=$((${edges[played % 4]} - ${length:-0} / 2))
    play "$name" $begin
    diff -r -x "Zentrox *" "$out/$name.$early" "$out/$name.$begin" >"$out/diff" || { head -20 "$out/diff"; status=1; }
    played=$((played + 1))
done <"$walks"
[ $played -gt 20 ] || { echo "only $played walks"; status=1; }
exit $status

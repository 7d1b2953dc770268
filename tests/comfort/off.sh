#!/usr/bin/env bash
# With no setting chosen, a play is the same to the byte whether the comforts are there or not: what is traced, what is
# shot, how it ends. Letters that are noted for a screen change none of it either.
set -u
probe=$1 data=$2 walks=$3 out=$4
rm -rf "$out"
mkdir -p "$out"/{without,with,fine}
echo 'feine-buchstaben = ja' >"$out/fine.settings"
status=0 played=0
for walk in "$walks"/*.walk; do
    name=$(basename "$walk" .walk)
    [ "$name" = schleife ] && continue  # ends by a limit of real time
    room=${name^}.lsd
    for way in without with fine; do
        comforts=()
        [ $way = with ] && comforts=(--settings "$out/none")
        [ $way = fine ] && comforts=(--settings "$out/fine.settings")
        "$probe" --dir "$data" --args "$room" --out "$out/$way/$name" "${comforts[@]}" "$walk" \
            >"$out/$way/$name.trace" 2>"$out/$way/$name.complaint"
        echo $? >>"$out/$way/$name.trace"
    done
    played=$((played + 1))
done
diff -r "$out/without" "$out/with" || status=1
diff -r "$out/without" "$out/fine" || status=1
[ $played -gt 20 ] || { echo "only $played walks"; status=1; }
[ ! -e "$out/none" ] || { echo "settings were written though none was chosen"; status=1; }
exit $status

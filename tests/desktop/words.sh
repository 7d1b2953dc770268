#!/usr/bin/env bash
# Names that the game's people know are German and live in engine/, room/, saves/, menu/, games/ and media/; all else,
# tests included, is English. An umlaut gives a German name away, and so do a few words in the names of tests.
set -u
export LC_ALL=C.UTF-8
cd "$1"
german=(engine room saves menu games media)
english=(platform comfort author main tools tests bench fuzz)
status=0

# The identifiers with an umlaut below these folders, each once; texts, characters and comments aside.
names_in() {
    find "$@" \( -name '*.h' -o -name '*.cpp' \) -exec cat {} + |
        perl -0pe 's/R"(\w*)\(.*?\)\1"//gs; s/\\.//g; s/"[^"\n]*"//g; s/\x27[^\x27\n]*\x27//g; s#//.*##g' |
        grep -oP '[\wäöüßÄÖÜ]*[äöüßÄÖÜ][\wäöüßÄÖÜ]*' | sort -u
}

known=$(names_in "${german[@]}")
for folder in "${english[@]}"; do
    foreign=$(comm -23 <(names_in "$folder") <(printf '%s\n' "$known"))
    [ -z "$foreign" ] || { printf '%s/ has German names of its own:\n%s\n' "$folder" "$foreign"; status=1; }
done
tests=$(grep -rnE --include='*.cpp' \
    '^TEST(_F|_P)?\([A-Za-z]+, [A-Za-z]*(Und|Der|Das|Nicht|Wird|Ist|Kein|Mit|Ohne|Eine?)([A-Z][A-Za-z]*)?\)' tests)
[ -z "$tests" ] || { printf 'tests with German names:\n%s\n' "$tests"; status=1; }
exit $status

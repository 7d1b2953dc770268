#!/usr/bin/env bash
# Does what a page of the documents tells a reader to do, word for word: tutorial.sh PAGE DIRECTORY. A block that names a
# file is saved under that name, a block of commands is run, all in their order. ZENTROX is the top of the repository,
# and the programs are on the PATH.
set -euo pipefail
page=$(realpath "$1")
rm -rf "$2"
mkdir -p "$2"
cd "$2"

# One script of the whole page.
awk '
    /^```sh$/ { commands = 1; next }
    /^```(story|walk) / { print "cat > " $2 " <<\"END_OF_BLOCK\""; file = 1; next }
    /^```/ { if (file) print "END_OF_BLOCK"; commands = file = 0; next }
    commands || file
' "$page" > page.sh
grep -q zentrox-probe page.sh
bash -euo pipefail page.sh > said.txt
grep -q 'Zeilen gelaufen' said.txt

#!/usr/bin/env bash
# CI goes on without what the page takes from outside, and fails where the page could be made and is not. ./web, ./check
# and the installing of packages are stand-ins here. ci.sh SOURCE SCRATCH
set -euo pipefail
source=$1 scratch=$2
rm -rf "$scratch"
mkdir -p "$scratch/.ci" "$scratch/scripts" "$scratch/bin"
cp "$source/.ci/run" "$scratch/.ci/"
cd "$scratch"
script() { printf '#!/bin/sh\n%s\n' "$2" >"$1"; chmod +x "$1"; }
script bin/emcc 'exit 0'
echo 'for section in "$@"; do case " $missing " in *" $section "*) return 100 ;; esac; done' >scripts/setup.sh
script web 'echo "the page"; exit $page'
script check 'echo "the check"; exit $check'

# runs STATUS SAYS missing=SECTIONS page=STATUS check=STATUS
runs() {
    local wanted=$1 says=$2 got=0
    shift 2
    env PATH="$PWD/bin:$PATH" "$@" .ci/run >said 2>&1 || got=$?
    if [ $got != "$wanted" ] || ! grep -q "the check" said || ! grep -q "$says" said; then
        echo "$*: status $got instead of $wanted, and said:"
        cat said
        exit 1
    fi
}
runs 0 "the page" missing= page=0 check=0
runs 0 "Chromium" missing=browsers page=0 check=0
runs 0 "compiler for the browser can't be had" missing="web browsers" page=1 check=0
runs 0 "sources of the libraries.*can't be had" missing= page=75 check=0
runs 3 "page can't be made" missing= page=3 check=0
runs 8 "the page" missing= page=0 check=8

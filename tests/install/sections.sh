#!/usr/bin/env bash
# Each of the commands installs what it takes and no more: who plays gets no compiler of the fuzzers and no screen for
# tests. The tools that they call stand here for those that would install and build.
# sections.sh REPOSITORY
set -euo pipefail
cd "$1"
fail() { echo "$*" >&2; exit 1; }
tools=$(mktemp -d)
trap 'rm -rf "$tools"' EXIT
tool() { printf '#!/bin/sh\n%s\n' "$2" >"$tools/$1"; chmod +x "$tools/$1"; }
tool dpkg-query 'exit 1'
tool sudo 'exec "$@"'
tool apt-get "echo \"\$@\" >>$tools/asked"
for builder in cmake emcmake em++ apt-cache; do tool "$builder" 'exit 9'; done

# installs COMMAND HAS... -- HASN'T...
installs() {
    local command=$1 package wanted=yes
    shift
    rm -f "$tools/asked"
    if env -u ZENTROX_NO_SETUP PATH="$tools:$PATH" "./$command" >/dev/null 2>&1; then fail "$command builds with no compiler"; fi
    for package in "$@"; do
        if [ "$package" = -- ]; then wanted=no; continue; fi
        if tr ' ' '\n' <"$tools/asked" | grep -qxF -- "$package"; then found=yes; else found=no; fi
        [ $found = $wanted ] || fail "$command: $package: wanted $wanted, installed $found"
    done
}
installs play g++ libsdl2-dev ffmpeg -- clang clang-tidy xvfb libgtest-dev mandoc lintian patchelf emscripten chromium
installs check g++ libgtest-dev clang xvfb mandoc -- lintian mmdebstrap emscripten chromium
installs pack g++ patchelf lintian -- clang xvfb libgtest-dev emscripten chromium

# What is there already is not asked for once more.
tool dpkg-query 'echo install ok installed'
rm -f "$tools/asked"
env -u ZENTROX_NO_SETUP PATH="$tools:$PATH" ./check >/dev/null 2>&1 || true
[ ! -e "$tools/asked" ] || fail "check installs what is installed"

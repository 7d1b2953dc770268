#!/usr/bin/env bash
# Each room of the house includes only rooms below it, and only platform/codec/ and platform/sdl/ know the libraries of
# the machine.
set -u
shopt -s nullglob
cd "$1"
status=0

forbid() {  # forbid FOLDER PATTERN-OF-INCLUDES
    [ -d "$1" ] || return
    local hits
    hits=$(grep -rnE "#include [<\"]($2)" --include='*.h' --include='*.cpp' "$1")
    [ -z "$hits" ] || { printf '%s may not include:\n%s\n' "$1" "$hits"; status=1; }
}

forbid platform 'engine|media|room|saves|comfort|menu|games|author|main|tools/'
forbid platform/values 'platform/(picture|machine|window|codec|sdl|probe|web|platform)'
forbid platform/picture 'platform/(machine|window|codec|sdl|probe|web|platform)'
forbid platform/machine 'platform/(window|codec|sdl|probe|web|platform)'
forbid platform/window 'platform/(codec|sdl|probe|web)'
forbid platform/codec 'platform/(window|sdl|probe|web|platform)'
forbid platform/sdl 'platform/(probe|web)'
forbid platform/probe 'platform/(sdl|web)'
forbid platform/web 'platform/(sdl|probe)'
forbid engine/state 'engine/(language|files|interpreter)|media|room|saves|comfort|menu|games|author|main|tools/'
forbid engine/language 'engine/(files|interpreter)|platform/(machine|window|codec|sdl|probe|web|platform)|media|room|saves|comfort|menu|games|author|main|tools/'
forbid engine/files 'engine/interpreter|media|room|saves|comfort|menu|games|author|main|tools/'
forbid engine/interpreter 'room|saves|comfort|menu|games|author|main|tools/'
forbid media 'engine/(files|interpreter)|room|saves|comfort|menu|games|author|main|tools/'
forbid saves 'room|comfort|menu|games|author|main|tools/'
forbid comfort 'room|menu|games|author|main|tools/'
forbid room 'comfort|menu|games|author|main|tools/'
forbid menu 'comfort|games|author|main|tools/'
forbid games 'room/|saves|comfort|menu|author|main|tools/'
forbid author 'menu|games|main|tools/(prove|web)'
for game in games/*/; do
    game=$(basename "$game")
    others=$(basename -a games/*/ | grep -vxE "$game|base|sparks" | paste -sd"|")
    [ -z "$others" ] || forbid "games/$game" "games/($others)"
done
hits=$(grep -rlE '#include <(SDL|fluidsynth|fontconfig|mpg123|zip|lib(av|sw))' --include='*.h' --include='*.cpp' . |
    grep -vE '^\./(platform/(codec|sdl)|tests|bench|build)/')
[ -z "$hits" ] || { printf 'only platform/codec/ and platform/sdl/ know the libraries of the machine:\n%s\n' "$hits"; status=1; }
exit $status

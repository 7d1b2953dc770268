#!/usr/bin/env bash
# Installs what was built, looks at all of it, moves the tree and plays from it as a user who may write only at home.
# staged.sh BUILD WALK SCRATCH
set -euo pipefail
build=$1 walk=$2 scratch=$3
fail() { echo "$*" >&2; exit 1; }
rm -rf "$scratch"
mkdir -p "$scratch"
cd "$scratch"
cmake --install "$build" --prefix "$scratch/first" >/dev/null

# --- the list of files
story=share/zentrox/stories/die-letzte-stunde
for file in bin/zentrox bin/zentrox-{probe,story,notes,voices} share/man/man6/zentrox.6.gz \
    share/man/man1/zentrox-{probe,story,notes,voices}.1.gz share/applications/zentrox.desktop \
    share/metainfo/org.zentrox.Zentrox.metainfo.xml share/mime/packages/zentrox.xml \
    share/icons/hicolor/{16x16,22x22,24x24,32x32,48x48,64x64,128x128,256x256}/apps/zentrox.png \
    share/icons/hicolor/scalable/apps/zentrox.svg share/icons/hicolor/scalable/mimetypes/application-x-zentrox-story.svg \
    share/bash-completion/completions/zentrox{,-story} share/zsh/vendor-completions/_zentrox{,-story} \
    share/fish/vendor_completions.d/zentrox{,-story}.fish $story/titel.txt $story/rooms/Start.lsd $story/cd/Zentrox \
    share/doc/zentrox/copyright; do
    [ -e "first/$file" ] || fail "$file is not installed"
done
[ "$(find first/lib -name zentrox-decoder.so -path '*/zentrox/*' | wc -l)" = 1 ] || fail "the module has no folder of its own"
[ ! -e first/$story/saves ] || fail "somebody's saved games are installed"
strays=$(find first -type f | grep -vE '^first/(bin|lib|share)/' || true)
[ -z "$strays" ] || fail "strays: $strays"
! grep -rIl -e "$build" -e "$scratch" first --include='*.desktop' --include='*.xml' || fail "a path of this machine is installed"

# --- what others say of it
have() { command -v "$1" >/dev/null || { echo "not tried: $1 is missing"; false; }; }
if have desktop-file-validate; then desktop-file-validate first/share/applications/zentrox.desktop; fi
if have appstreamcli; then appstreamcli validate --no-net first/share/metainfo/*.xml >appstream || { cat appstream; exit 1; }; fi
if have update-mime-database; then
    cp -r first/share/mime mime
    update-mime-database mime >/dev/null 2>&1
    grep -q 'application/x-zentrox-story:\*.zentrox' mime/globs || fail "the ending is not known"
fi
for page in first/share/man/man*/*.gz; do
    plain=$(basename "$page" .gz)
    gzip -dc "$page" >"$plain"
    if have mandoc; then
        found=$(mandoc -Tlint "$plain" 2>/dev/null | grep -vE 'referenced manual not found|outdated mandoc.db' || true)
        [ -z "$found" ] || fail "$found"
    fi
    # Every option of --help, also of each command, and none besides.
    program=first/bin/${plain%.*}
    commands=$("$program" --help | sed -n '/^Subcommands:\|^Befehle:/,$ s/^  \([a-z-]\{2,\}\) .*/\1/p')
    { "$program" --help; for command in $commands; do "$program" "$command" --help || true; done; } |
        grep -oE '^ +(-h,)?--[a-z-]+' | grep -oE -- '--[a-z-]+' | sort -u >told
    sed -n 's/^\.It Fl Fl \([a-z\\-]*\).*/--\1/p' "$plain" | tr -d '\\' | sort -u >paged
    diff told paged || fail "$plain and --help differ"
done
for shell in bash zsh fish; do
    if have $shell; then find first/share/{bash-completion,zsh,fish} -type f -path "*$shell*" -exec $shell -n {} \;; fi
done
words=$(bash -c 'source first/share/bash-completion/completions/zentrox-story
    COMP_WORDS=(zentrox-story pa) COMP_CWORD=1; _zentrox_story; echo "${COMPREPLY[*]}"')
[ "$words" = pack ] || fail "bash completes pa to: $words"

# --- a moved tree, another directory, and a user who may write nowhere but at home
mkdir -p elsewhere/deep home
mv first elsewhere/deep/second
bin=$scratch/elsewhere/deep/second/bin
stories=$scratch/elsewhere/deep/second/$story
as_user=()
if [ "$(id -u)" = 0 ]; then
    as_user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    chown 65534 home
    chmod -R go+rX elsewhere
    "${as_user[@]}" test -x "$bin/zentrox" || { echo "not tried: another user can't reach $scratch"; exit 0; }
else
    chmod -R a-w elsewhere
    trap 'chmod -R u+w "$scratch/elsewhere"' EXIT
fi
cd /
"${as_user[@]}" env HOME="$scratch/home" "$bin/zentrox-probe" --dir "$stories" --saves "$scratch/home/games" \
    --out "$scratch/home" --quiet "$walk" || fail "the walk fails in the moved tree"
if ! have Xvfb || ! have xdotool; then exit 0; fi
exec 3<> <(:)
Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -ac >/dev/null 2>&1 &
display=$! game=
trap 'kill $display $game 2>/dev/null || true; chmod -R u+w "$scratch/elsewhere" 2>/dev/null || true' EXIT
read -r -t 20 -u 3 number || fail "no display"
export DISPLAY=:$number
"${as_user[@]}" env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$scratch/home" ZENTROX_SOUND=none LSAN_OPTIONS=detect_leaks=0 \
    "$bin/zentrox" >"$scratch/said" 2>&1 &
game=$!
for _ in $(seq 200); do
    if xdotool search --name '^Die letzte Stunde' >/dev/null 2>&1; then break; fi
    kill -0 $game 2>/dev/null || { cat "$scratch/said"; fail "the game has ended"; }
    sleep 0.1
done
xdotool search --name '^Die letzte Stunde' >/dev/null || fail "the installed story is not played"
[ -d "$scratch/home/.local/share/zentrox/die-letzte-stunde/saves" ] || fail "no place for saved games at home"
[ ! -e "$stories/saves" ] || fail "a place for saved games in the installed story"

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
    $story/sounds/{sprecher,untertitel}.tsv \
    share/doc/zentrox/copyright share/vim/vimfiles/{ftdetect,ftplugin,syntax,compiler}/zentrox.vim \
    share/vim/vimfiles/{lua,lsp}/zentrox.lua share/org.kde.syntax-highlighting/syntax/zentrox-geschichte.xml \
    share/zentrox/editors/kate/lspclient.json share/zentrox/editors/vscode/package.json \
    share/zentrox/editors/vscode/{extension.js,language-configuration.json,syntaxes/zentrox.tmLanguage.json}; do
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
    COMP_WORDS=(zentrox-story pac) COMP_CWORD=1; _zentrox_story; echo "${COMPREPLY[*]}"')
[ "$words" = pack ] || fail "bash completes pac to: $words"

# --- a moved tree, another directory, and a user who may write nowhere but at home
place=$scratch
user=()
if [ "$(id -u)" = 0 ]; then
    user=(setpriv --reuid 65534 --regid 65534 --clear-groups)
    if ! "${user[@]}" test -x "$scratch" -a -r "$scratch"; then
        place=$(mktemp -d)  # where another user comes to
        chmod 755 "$place"
    fi
fi
display=
finish() {
    [ -z "$display" ] || kill "$display" 2>/dev/null || true
    chmod -R u+w "$place" 2>/dev/null || true
    [ "$place" = "$scratch" ] || rm -rf "$place"
}
trap finish EXIT
home=$place/home
mkdir -p "$place/elsewhere/deep" "$home"
mv first "$place/elsewhere/deep/second"
if [ ${#user[@]} -gt 0 ]; then
    chmod -R go+rX,go-w "$place/elsewhere"
    chown 65534 "$home"
else
    chmod -R a-w "$place/elsewhere"
fi
as_user() {  # as_user VARIABLE=VALUE... PROGRAM...
    (cd / && exec "${user[@]}" env -u XDG_DATA_HOME -u XDG_CONFIG_HOME HOME="$home" ZENTROX_SOUND=none \
        LSAN_OPTIONS=detect_leaks=0 "$@")
}
bin=$place/elsewhere/deep/second/bin
stories=$place/elsewhere/deep/second/$story
as_user "$bin/zentrox-probe" --dir "$stories" --saves "$home/games" --out "$home" --quiet "$walk" ||
    fail "the walk fails in the moved tree"

# Where no game can be kept, one is told so and plays on.
cat >"$scratch/verboten.walk" <<'END'
until window Form1
until text "Balduin"
key space
until idle
key f2
until window Dialog
type "nirgends"
key enter
until window MsgBox
expect text "konnte nicht"
key enter
until window Form1
until idle
END
as_user "$bin/zentrox-probe" --dir "$stories" --args Hof.lsd --quiet - <"$scratch/verboten.walk" ||
    fail "a game that can't be kept"
[ ! -e "$stories/saves" ] || fail "a place for saved games in the installed story"

if ! have Xvfb || ! have xdotool; then exit 0; fi
exec 3<> <(:)
Xvfb -displayfd 3 -screen 0 800x600x24 -nolisten tcp -ac >/dev/null 2>&1 &
display=$!
read -r -t 20 -u 3 number || fail "no display"
export DISPLAY=:$number
opens() {  # opens TITLE VARIABLE=VALUE... PROGRAM...: its first window has that title
    local title=$1 game window
    shift
    as_user "$@" >"$scratch/said" 2>&1 &
    game=$!
    for _ in $(seq 200); do
        if window=$(xdotool search --name "^$title" 2>/dev/null); then
            xdotool windowkill $window
            wait $game || true
            return
        fi
        kill -0 $game 2>/dev/null || { cat "$scratch/said"; fail "the game has ended before its window: $*"; }
        sleep 0.1
    done
    fail "no window $title: $*"
}
own=.local/share/zentrox
saves=$own/die-letzte-stunde/saves
opens 'Die letzte Stunde - ' "$bin/zentrox"
[ -d "$home/$saves" ] || fail "no place for saved games at home"
[ ! -e "$stories/saves" ] || fail "a place for saved games in the installed story"
kept() { cmp -s "$walk" "$home/$1/Mein Spiel.xtc"; }  # what the bytes are is the game's affair
as_user cp "$walk" "$home/$saves/Mein Spiel.xtc"

# The tree is moved once more: the games stay where they are. A place that is not absolute is none.
mv "$place/elsewhere/deep/second" "$place/elsewhere/third"
bin=$place/elsewhere/third/bin
opens 'Die letzte Stunde - ' XDG_DATA_HOME=somewhere XDG_CONFIG_HOME=. "$bin/zentrox"
kept "$saves" || fail "the game is gone with the move"
[ "$(find "$home" -name '*.xtc' | wc -l)" = 1 ] || fail "the game is there more than once"
opens 'Die letzte Stunde - ' XDG_DATA_HOME="$home/data" "$bin/zentrox"
[ -d "$home/data/zentrox/die-letzte-stunde/saves" ] || fail "XDG_DATA_HOME does not count"

# The same story as one file finds the games; another one sees nothing of them.
packs() { "$bin/zentrox-story" pack other --into "$place/$1" >/dev/null; chmod 644 "$place/$1"; }
mkdir other
cp -r "$place/elsewhere/third/$story"/* other/
chmod -R u+w other
packs same.zentrox
opens 'Die letzte Stunde - ' "$bin/zentrox" "$place/same.zentrox"
kept "$saves" || fail "the game of the packed story is gone"
[ "$(find "$home/$own" -name '*.xtc' | wc -l)" = 1 ] || fail "the game is there more than once"
sed -i 's/^Titel:.*/Titel: Die andere/; s/^Kennung:.*/Kennung: andere/' other/titel.txt
packs other.zentrox
opens 'Die andere - ' "$bin/zentrox" "$place/other.zentrox"
[ -d "$home/$own/andere/saves" ] || fail "the other story has no place for games"
[ -z "$(ls "$home/$own/andere/saves")" ] || fail "the games of two stories are mixed"

# One that is none is refused where who clicked it sees it.
echo 'no archive' >"$place/broken.zentrox"
opens 'Zentrox$' "$bin/zentrox" "$place/broken.zentrox"

# A home that can't be written to stops nobody.
mkdir "$place/sealed"
chmod 555 "$place/sealed"
opens 'Die letzte Stunde - ' HOME="$place/sealed" "$bin/zentrox"
opens 'Die letzte Stunde - ' HOME=/nowhere "$bin/zentrox"
[ -z "$(ls -A "$place/sealed")" ] || fail "written into a sealed home"

#!/usr/bin/env bash
# Opens a small story in Vim or Neovim and asks what each of its words is coloured as: vim.sh EDITOR SOURCES SCRATCH
set -euo pipefail
editor=$1 sources=$2 scratch=$3
rm -rf "$scratch"
mkdir -p "$scratch"
cd "$scratch"
cat >probe.story <<'END'
raum "Start.lsd"  // stumm: x
    Bild "b.jpg"
    Objekt "Tür" einsteckbar RING
        Flaeche Rechteck 1, 2, 30 -40
        LINKS
            WennMerker nicht SONST und B
                Der Esel: "$7Hü, //nein!"
                Text "offen
                LöscheMerker A  // warum
            EndeWenn
END
# LINE WORD GROUP
cat >expected <<'END'
1 raum zentroxHeading
1 Start zentroxText
1 // zentroxComment
1 stumm zentroxSilence
2 Bild zentroxDetail
3 Objekt zentroxHeading
3 einsteckbar zentroxInner
3 RING -
4 Flaeche zentroxDetail
4 Rechteck zentroxDetail
4 30 zentroxNumber
4 -40 zentroxNumber
5 LINKS zentroxScript
6 WennMerker zentroxBlock
6 nicht zentroxInner
6 SONST -
6 und zentroxInner
7 Der zentroxSpeaker
7 Esel zentroxSpeaker
7 $7 zentroxColour
7 // zentroxText
8 Text zentroxCommand
8 offen zentroxUnclosed
9 LöscheMerker zentroxCommand
9 A -
9 // zentroxComment
10 EndeWenn zentroxBlock
END
cat >ask.vim <<'END'
set encoding=utf-8
filetype plugin indent on
syntax on
edit probe.story
let said = []
for row in readfile('expected')
  let [line, word, group] = split(row)
  let column = match(getline(line), '\V' . word) + 1
  let name = synIDattr(synID(line, column, 1), 'name')
  call add(said, line . ' ' . word . ' ' . (name ==# '' ? '-' : name))
endfor
call writefile(said, 'said')
call writefile([&filetype, &commentstring, &shiftwidth], 'settings')
call setline(11, '')
set makeprg=cat\ findings
call writefile(['probe.story:3:5: error [wort]: "x" ist kein Befehl'], 'findings')
silent make!
call writefile([getqflist()[0].lnum . ' ' . getqflist()[0].col . ' ' . getqflist()[0].type], 'quickfix')
qall!
END
case $(basename "$editor") in nvim) quiet=--headless ;; *) quiet=-es ;; esac
HOME=$scratch timeout 60 "$editor" -n -u NONE -i NONE "$quiet" --cmd "set nocompatible runtimepath^=$sources/editors/vim" \
    -S ask.vim >messages 2>&1 </dev/null || { cat messages; exit 1; }
diff expected said
printf 'zentrox\n// %%s\n4\n' | diff - settings
printf '3 5 e\n' | diff - quickfix

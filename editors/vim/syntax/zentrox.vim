" Stories of Zentrox. Made by `zentrox-story grammar vim`.
if exists('b:current_syntax')
  finish
endif

syntax case ignore
syntax sync minlines=1

syntax match zentroxNumber /\%(^\|[ \t,]\)\@1<=-\?\d\+\%(\.\d\+\)\?\ze\%([ \t,]\|$\)/
syntax match zentroxSpeaker /^[ \t]*\zs[^ \t",{/][^",{]\{-}:\ze\%([ \t]*"\|[ \t]*$\)/
syntax match zentroxInner /[ \t,]\@1<=\%(nicht\|und\|oder\|wenn\|einmal\|Merker\|Gegenstand\|Parameter\|heißt\|heisst\|einsteckbar\|ergibt\|Aus\|links\|rechts\|weiß\|weiss\|zurück\|zurueck\)\ze\%([ \t,]\|$\)/
syntax match zentroxHeading /^[ \t,]*\zs\%(Raum\|Objekt\|Gegenstand\|Skriptdatei\|Skriptteil\|Person\|Kombiniere\|Einbinden\)\ze\%([ \t,"{]\|$\)/
syntax match zentroxDetail /^[ \t,]*\zs\%(Bild\|Zeiger\|Aktiv\|Inaktiv\|Fläche\|Flaeche\|Rechteck\|Vieleck\|Maskenbild\|Farbe\|Stimme\|Spieler\)\ze\%([ \t,"{]\|$\)/
syntax match zentroxScript /^[ \t,]*\zs\%(Start\|Countdown\|Rechts\|Links\|Ablegen\)\ze\%([ \t,"{]\|$\)/
syntax match zentroxBlock /^[ \t,]*\zs\%(WennMerker\|WennParameter\|Sonst\|EndeWenn\|Auswahl\|Fall\|EndeAuswahl\|WennGegenstand\|SonstWenn\|Bei\|EndeBei\|Gespräch\|Gespraech\|EndeGespräch\|EndeGespraech\|Frage\|Antwort\|Schluss\|EndeFrage\|Option\)\ze\%([ \t,"{]\|$\)/
syntax match zentroxCommand /^[ \t,]*\zs\%(Ton\|Text\|SetzeMerker\|Raumwechsel\|ZeigBild\|NimmGegenstand\|GibGegenstand\|Film\|LöscheMerker\|LoescheMerker\|SetzeZeiger\|ZoomIN\|ZoomOUT\|Fehlerton\|ObjektAn\|ObjektAus\|Musik\|RahmenAuf\|RahmenZu\|BöseÄndern\|BoeseÄndern\|BöseAEndern\|BoeseAEndern\|Portrait\|Spiel\|Springe\|Marke\|System\|CountDownSetzen\|Blende\|Rufe\|Roh\)\ze\%([ \t,"{]\|$\)/
syntax match zentroxDetail /\%(^[ \t]*\%(Fläche\|Flaeche\)[ \t]\+\)\@<=\%(Rechteck\|Vieleck\|Maskenbild\)\ze[ \t,]/
syntax match zentroxCharacter /{\x\x}/
syntax match zentroxUnclosed /"[^"]*$/
syntax match zentroxText /"[^"]*"/ contains=zentroxColour,zentroxNoPlace
syntax match zentroxColour /"\@1<=\$[0-9A-F]/ contained
syntax match zentroxNoPlace /#/ contained
syntax match zentroxComment +\%(^\|[ \t,]\)\@1<=//.*$+ contains=zentroxSilence,zentroxTodo,@Spell
syntax match zentroxSilence /stumm:[ \t]*[a-z0-9, \t-]*/ contained
syntax keyword zentroxTodo TODO FIXME XXX contained

highlight default link zentroxNumber Number
highlight default link zentroxSpeaker Identifier
highlight default link zentroxInner Operator
highlight default link zentroxCharacter SpecialChar
highlight default link zentroxUnclosed Error
highlight default link zentroxText String
highlight default link zentroxColour Special
highlight default link zentroxNoPlace Error
highlight default link zentroxComment Comment
highlight default link zentroxSilence SpecialComment
highlight default link zentroxTodo Todo
highlight default link zentroxHeading Structure
highlight default link zentroxDetail Type
highlight default link zentroxScript Label
highlight default link zentroxBlock Conditional
highlight default link zentroxCommand Function

let b:current_syntax = 'zentrox'

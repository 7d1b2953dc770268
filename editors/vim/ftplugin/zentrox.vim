" Stories of Zentrox.
if exists('b:did_ftplugin')
  finish
endif
let b:did_ftplugin = 1

setlocal commentstring=//\ %s comments=:// formatoptions-=t formatoptions+=croql
setlocal expandtab shiftwidth=4 softtabstop=4
setlocal suffixesadd=.story
compiler zentrox

let b:undo_ftplugin = 'setlocal commentstring< comments< formatoptions< expandtab< shiftwidth< softtabstop<'
      \ . ' suffixesadd< makeprg< errorformat<'

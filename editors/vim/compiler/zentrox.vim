" :make lets zentrox-story check the story that the file belongs to.
if exists('current_compiler')
  finish
endif
let current_compiler = 'zentrox'

if exists(':CompilerSet') != 2
  command -nargs=* CompilerSet setlocal <args>
endif
CompilerSet makeprg=zentrox-story\ check\ %:p:h:S
CompilerSet errorformat=%f:%l:%c:\ %trror\ %m,%f:%l:%c:\ %tarning\ %m,%-G%.%#

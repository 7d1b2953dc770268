autocmd BufRead,BufNewFile *.story setfiletype zentrox

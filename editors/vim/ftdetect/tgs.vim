autocmd BufRead,BufNewFile *.tgs setfiletype tgs

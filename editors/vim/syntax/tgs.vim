" Interface scripts of TGX in text form.
" Generated from the vocabulary by `tgx reference`. To regenerate: cmake --build build/release --target script_reference

if exists("b:current_syntax")
  finish
endif

setlocal iskeyword=@,48-57,_
setlocal comments=:# commentstring=#\ %s
syntax case match

syntax keyword tgsBlock BEGIN END
syntax keyword tgsWindow BARGRAPH BITMAP BUTTON CHECKBOX CHECKBOXSTATE COMBOBOX COMBOMENU COMBONEXT COMBOPREV EDITBOX GRAPH HSCROLLBAR KEYBOARD LINEGRAPH LISTBOX POINTER PROGRESSBAR RADIOBUTTON RADIOSTATE SCREEN TABCONTROL TEXTWND USERDEF VIDIPRINTER VPROGRESSBAR VSCROLLBAR WINDOW
syntax keyword tgsAttribute BMPBLITMODE BMPFILE BMPFRAME BMPINFO BMPOFFSET BMPSOURCE BMPSTRETCH BMPTILE BORDER BUTTONCHECK BUTTONFPS BUTTONFRAMES BUTTONLOOP BUTTONTEXTSHIFT COLUMNS COMBOBELOW COMBODROPS COMBOWRAP EASYCLOSE ENABLED FONT GRAPHINFO ITEM JUSTIFY LISTFIXEDCOLUMNS LISTFIXEDROWS LISTFONTS LISTHIGHLIGHT LISTICONS LISTLOOK LISTOPTIONS SCROLLBARINFO TABLIST1 TABLIST2 TABORDER TEXT TEXTCENTREV TEXTOFFSET TEXTRAW TEXTWRAP TITLEBMP TITLES VISIBLE WNDPOS
syntax keyword tgsCommand ADDFONT GOTO SUBROUTINE
syntax keyword tgsWord CENTRE LEFT RIGHT
syntax keyword tgsPreProc INCLUDE DEFINE EMPTY
syntax match tgsRaw /@\d*/
syntax match tgsNumber /-\?\<\d\+\>/
syntax match tgsNumber /\<0[xX]\x\+\>/
syntax match tgsEscape /\\\(x\x\x\|["\\]\)/ contained
syntax region tgsString start=/"/ skip=/\\["\\]/ end=/"/ oneline contains=tgsEscape
syntax match tgsComment /#.*$/ contains=@Spell
syntax match tgsUnfinished /^\s*#! unfinished:.*$/

highlight default link tgsBlock Structure
highlight default link tgsWindow Type
highlight default link tgsAttribute Statement
highlight default link tgsCommand Function
highlight default link tgsWord Constant
highlight default link tgsPreProc PreProc
highlight default link tgsRaw Special
highlight default link tgsNumber Number
highlight default link tgsEscape SpecialChar
highlight default link tgsString String
highlight default link tgsComment Comment
highlight default link tgsUnfinished Special

let b:current_syntax = "tgs"

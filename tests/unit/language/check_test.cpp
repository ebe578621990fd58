#include "tests/unit/language/check_fixture.h"

#include "language/check/codes.h"
#include "language/check/output.h"
#include "language/text/emit.h"

#include <nlohmann/json.hpp>

#include <set>

using namespace std::string_literals;
using tgx::script_check::CheckReport;

namespace {

/// Returns count subroutines, "S0" and so on, each of which calls the next one that many times.
std::string chain(int count, int calls)
{
    std::string out;
    for (int i = 0; i < count; ++i) {
        const std::string next = i + 1 < count ? "GOTO \"S" + std::to_string(i + 1) + "\"\n" : "TEXTRAW 1\n";
        out += "SUBROUTINE \"S" + std::to_string(i) + "\"\nBEGIN\n" +
               (i + 1 < count ? repeated(calls, next) : next) + "END\n";
    }
    return out + "WINDOW \"W\" 0 0 9 9\nBEGIN\nGOTO \"S0\"\nEND";
}

// Each script is a.tgs, unless another file is named.
const CheckRow rows[] = {
    {"a string without an end", "TEXT \"a",
     "a.tgs:1:6: error: this string has no end; expected \" before the end of the line [syntax]\n"},
    {"a misspelt keyword", "WINDOWW \"A\" 0 0 9 9",
     "a.tgs:1:1: error: unknown keyword WINDOWW; did you mean WINDOW? [unknown-keyword]\n"},
    {"a name without a value", "FONT SMALL",
     "a.tgs:1:6: error: unknown name SMALL; expected: FONT font [unknown-name]\n"},
    {"a DEFINE of a keyword", "DEFINE TEXT 1",
     "a.tgs:1:8: error: TEXT is a keyword and cannot be a name [define]\n"},
    {"a DEFINE that nothing uses", "DEFINE A 1\nFONT 0",
     "a.tgs:1:8: warning: nothing uses A [unused-define]\n"},
    {"an INCLUDE of a missing file", "INCLUDE \"b.inc\"",
     "a.tgs:1:9: error: cannot read b.inc: no such file [include]\n"},
    {"a wrong number of arguments", "WINDOW \"A\" 0 0 9",
     "a.tgs:1:1: error: WINDOW takes 5 arguments, this line has 4; expected: WINDOW \"name\" x y width "
     "height [argument-count]\n"},
    {"a wrong kind of argument", "FONT \"0\"",
     "a.tgs:1:6: error: expected a number here: FONT font [argument-kind]\n"},
    {"a word without a width", "LISTBOX 'L' 0 0 90 90 { COLUMNS 20 LEFT RIGHT 30; COLUMNS LEFT }",
     "a.tgs:3:17: error: this word does not follow a width, and counts as a column of width 0 "
     "[argument-kind]\n"
     "a.tgs:4:9: error: this word does not follow a width, and counts as a column of width 0 "
     "[argument-kind]\n"},
    {"31 tokens", "TABORDER 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0",
     "a.tgs:1:68: error: a line has at most 29 arguments, this one has 30 [too-many-arguments]\n"},
    {"an extra END", "WINDOW \"A\" 0 0 9 9\nBEGIN\nEND\nEND",
     "a.tgs:4:1: error: no block is open here; expected BEGIN first [end-without-begin]\n"},
    {"an extra BEGIN", "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\n  END",
     "a.tgs:2:1: error: this block has no END [begin-without-end]\n"},
    {"a missing END, located by the indentation",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\nEND",
     "a.tgs:4:3: error: this block has no END of its own: it is closed by the one in line 5, which is "
     "further to the left [begin-without-end]\n"},
    {"windows nested too deeply",
     repeated(21, "WINDOW \"static\" 0 0 9 9\nBEGIN\n") + "FONT 0\n" + repeated(21, "END\n"),
     "a.tgs:41:1: error: WINDOW is inside 20 blocks; at most 19 are allowed [too-deep]\n"},
    {"a subroutine in a block", "WINDOW 'A' 0 0 9 9 { SUBROUTINE 'S' { } }",
     "a.tgs:3:1: error: SUBROUTINE inside a block; move it to the top level, preferably of a separate script "
     "[nested-subroutine]\n"},
    {"a subroutine in the main script", "== script.tgs\nSUBROUTINE 'S' { }; GOTO 'S'",
     "script.tgs:1:1: error: the game reads this script from top to bottom, which fails here; move "
     "subroutines to a script of their own [subroutine-in-main]\n"},
    {"a block without a window", "WINDOW 'A' 0 0 9 9 { TEXT '' { TEXTRAW 1 } }",
     "a.tgs:4:1: warning: no window precedes this block, so its lines act on the root of all windows "
     "[block-without-window]\n"},
    {"an attribute outside of all blocks", "FONT 0\nWINDOW \"A\" 0 0 9 9\nTEXTRAW 1",
     "a.tgs:3:1: warning: TEXTRAW outside of all blocks acts on the root of all windows; to apply it to "
     "\"A\", put it between BEGIN and END [outside-block]\n"},
    {"an attribute after the window it is meant for",
     "WINDOW 'A' 0 0 90 90 { TEXTWND 'B' 0 0 90 20 'b'; JUSTIFY CENTRE }",
     "a.tgs:4:1: warning: JUSTIFY acts on \"A\" here; to apply it to \"B\", put it between BEGIN and END "
     "[attribute-on-parent]\n"},
    {"a screen in a block", "SCREEN 'A' 0 0 9 9 '' { SCREEN 'B' 0 0 9 9 '' }",
     "a.tgs:3:1: warning: a SCREEN inside the block that begins in line 2; it becomes a top-level window "
     "anyway. Is an END missing? [nested-screen]\n"},

    {"a missing script",
     "WINDOW 'A' 0 0 9 9 { GOTO 'S' 'part.tgx'; GOTO 'S' '150' }\n== parts.tgs\nWINDOW 'B' 0 0 9 9",
     "a.tgs:3:10: error: no script \"part.tgx\"; did you mean \"parts.tgx\"? [missing-script]\n"},
    {"a missing subroutine",
     "WINDOW 'A' 0 0 9 9 { GOTO 's1' 'parts.tgx'; GOTO 'S1' }\n== parts.tgs\nSUBROUTINE 'S1' { }; WINDOW "
     "'B' 0 0 9 9 { GOTO 'S1' }",
     "a.tgs:3:6: error: no SUBROUTINE \"s1\" in parts.tgx; did you mean \"S1\"? [missing-subroutine]\n"
     "a.tgs:4:6: error: no SUBROUTINE \"S1\" in a.tgx; parts.tgx has one [missing-subroutine]\n"},
    {"recursive subroutines in two scripts",
     "SUBROUTINE 'S' { GOTO 'T' 'b.tgx' }\n== b.tgs\nSUBROUTINE 'T'; GOTO 'S' 'a.tgx'; WINDOW 'W' 0 0 9 9 { "
     "GOTO 'T' }",
     "b.tgs:2:6: error: the subroutine calls itself: \"S\" -> \"T\" -> \"S\" [recursive-subroutine]\n"},
    {"unused subroutines",
     "WINDOW 'A' 0 0 9 9 { GOTO 'S' 'b.tgx' }\n== b.tgs\nSUBROUTINE 'S' { }; SUBROUTINE 'S' { }; "
     "SUBROUTINE 'T'; SUBROUTINE 'U'; TEXTRAW 1\n== c.tgs\nSUBROUTINE 'V' { }",
     "b.tgs:4:12: warning: SUBROUTINE \"S\" is already defined in line 1; GOTO always uses that one "
     "[duplicate-subroutine]\n"
     "b.tgs:7:12: warning: \"T\" has no body; expected a statement or a block after it [empty-subroutine]\n"
     "b.tgs:7:12: warning: no GOTO names \"T\" [unused-subroutine]\n"
     "b.tgs:8:12: warning: no GOTO names \"U\" [unused-subroutine]\n"
     "c.tgs:1:1: warning: no GOTO names a subroutine of this script, which contains nothing else "
     "[unused-script]\n"},

    {"statements on the wrong kind of window",
     "WINDOW 'A' 0 0 90 90 { ITEM 'a'; COMBOWRAP 1; BORDER 'eight.bmp' 4 8 'eight.bmp'; USERDEF 'G' 0 0 90 "
     "90 { ITEM 'a' } }; GRAPHINFO ''",
     "a.tgs:3:1: error: ITEM acts on a list box or a combo box, but \"A\" is a plain window [wrong-window]\n"
     "a.tgs:4:1: warning: COMBOWRAP has no effect on \"A\" [no-effect]\n"
     "a.tgs:5:24: warning: the second bitmap of a BORDER is only for list boxes; \"A\" ignores it "
     "[no-effect]\n"
     "a.tgs:11:1: error: GRAPHINFO acts on a graph, but it is not in a window's block [wrong-window]\n"},
    {"a statement of a subroutine on the wrong kind of window, reported once",
     "WINDOW 'A' 0 0 9 9 { GOTO 'S' }; WINDOW 'B' 0 0 9 9 { GOTO 'S' }; SUBROUTINE 'S'; BUTTONCHECK 1",
     "a.tgs:10:1: error: BUTTONCHECK acts on a button, a combo box or a radio button, but \"A\" is a plain "
     "window [wrong-window]\n"},
    {"tab lists before their windows",
     "SCREEN 'A' 0 0 640 480 '' { TABORDER 'OK'; BUTTON 'OK' 10 10 80 24 ''; TABORDER 'ok' 'QUIT'; TABLIST1 "
     "'OKK' }",
     "a.tgs:3:10: error: no window \"OK\" in \"A\" at this point; it is defined later, in line 4 "
     "[missing-window]\n"
     "a.tgs:5:15: error: no window \"QUIT\" in \"A\" at this point [missing-window]\n"
     "a.tgs:6:10: error: no window \"OKK\" in \"A\" at this point; did you mean \"OK\"? [missing-window]\n"},
    {"pointers to missing windows",
     "WINDOW 'A' 0 0 90 90 { POINTER 'MAP' 'c.tgx'; POINTER 'A' 'c.tgx' }\n== b.tgs\nWINDOW 'MAP' 0 0 9 "
     "9\n== c.tgs\nWINDOW 'NONE' 0 0 9 9",
     "a.tgs:3:9: error: no window \"MAP\" exists at this point, nor at the top level of c.tgx; b.tgx defines "
     "it: name that script [missing-pointer]\n"
     "a.tgs:4:9: error: \"A\" cannot be shown here: it would be inside itself, or nested too deeply "
     "[pointer-inside]\n"},
    {"a pointer to a window of the main script",
     "WINDOW 'A' 0 0 90 90 { POINTER 'MAP' }\n== script.tgs\nWINDOW 'MAP' 0 0 9 9 { TEXTWND 'T' 0 0 3 24 "
     "'long' }",
     "script.tgs:3:1: warning: \"T\" extends beyond \"MAP\" (9 x 9) by 15 pixels below [outside-parent]\n"
     "script.tgs:3:22: warning: the text of \"T\" is 20 pixels wide in font 0, but its box has 3 "
     "[text-clipped]\n"},
    {"undefined fonts",
     "WINDOW 'A' 0 0 90 90 { FONT 1; LISTBOX 'L' 0 0 9 9 { LISTFONTS 0 1 }; TABORDER 'L' }",
     "a.tgs:3:6: error: no ADDFONT defines font 1; there is only font 0, the built-in one [no-font]\n"
     "a.tgs:6:13: error: no ADDFONT defines font 1; there is only font 0, the built-in one [no-font]\n"},
    {"fonts of the main script",
     "WINDOW 'A' 0 0 90 90 { FONT 1; FONT 2 }\n== script.tgs\nADDFONT 'none.ttf' '' 12",
     "a.tgs:3:1: warning: FONT is overridden by the same statement in line 4 [no-effect]\n"
     "a.tgs:4:6: error: no ADDFONT defines font 2; there are fonts 0 to 1 [no-font]\n"
     "script.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"},
    {"fonts of two main scripts, and of a library that both may use",
     "ADDFONT 'none.ttf' '' 12; ADDFONT 'none.ttf' '' 12\n== b.tgs\nADDFONT 'none.ttf' '' 12; WINDOW 'A' 0 0 "
     "90 90 { FONT 2 }\n== c.tgs\nWINDOW 'A' 0 0 90 90 { FONT 2 }",
     "a.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"
     "a.tgs:2:9: error: the font \"none.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"
     "b.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"
     "b.tgs:4:6: error: no ADDFONT defines font 2; there are fonts 0 to 1 [no-font]\n"},
    {"a font of an invalid size", "ADDFONT \"none.ttf\" \"\" 97",
     "a.tgs:1:9: error: the font \"none.ttf\" cannot be loaded at this size; expected 1 to 96; the built-in "
     "font is used instead [missing-font]\n"},
    {"more cells than columns, and columns after rows",
     "WINDOW 'A' 0 0 90 90 { LISTBOX 'L' 0 0 90 90 { ITEM 'a' 'b'; COLUMNS 40 }; TABORDER 'L' }",
     "a.tgs:5:10: error: this row has more cells than \"L\" had columns before its first row: 1 "
     "[missing-column]\n"
     "a.tgs:6:1: warning: \"L\" already has rows; COLUMNS must come before them [late-columns]\n"
     "a.tgs:6:1: warning: the columns of \"L\" take 150 pixels including the gaps before them, but it has 90 "
     "[wide-columns]\n"},
    {"missing icons",
     "WINDOW 'A' 0 0 90 90 { LISTBOX 'L' 0 0 90 90 { LISTICONS 'one.bmp'; COLUMNS 20; ITEM 'ICON0'; ITEM "
     "'ICON1' }; TABORDER 'L' }",
     "a.tgs:8:6: error: row 1 of \"L\" shows icon 1, but LISTICONS names 1 [missing-icon]\n"},
    {"a missing frame of an icon",
     "WINDOW 'A' 0 0 90 90 { LISTBOX 'L' 0 0 90 90 { LISTLOOK 10; LISTICONS 'three.bmp'; COLUMNS 20; ITEM "
     "'ICON0F2'; ITEM 'ICON0F3' }; TABORDER 'L' }",
     "a.tgs:9:6: error: \"three.bmp\" is 63 x 10 pixels and has no frame 3 of 20 x 10 for row 1 of \"L\" "
     "[strip-too-small]\n"},
    {"subroutines that execute too many lines", chain(30, 2),
     "a.tgs:144:1: error: reading \"W\" takes too long and is stopped here [limit-exceeded]\n"},
    {"subroutines nested too deeply", chain(70, 1),
     "a.tgs:255:6: error: calls of subroutines are nested more than 64 deep here [limit-exceeded]\n"},

    {"lists whose last row is not drawn, and whose columns do not fit",
     "WINDOW 'A' 0 0 400 90 { LISTBOX 'L' 0 0 90 60 { COLUMNS 40 40; LISTLOOK 20; ITEM 'a' }; LISTBOX 'M' "
     "100 0 90 60 { COLUMNS 40; LISTLOOK 20 }; TABORDER 'L' 'M' }",
     "a.tgs:5:1: warning: the columns of \"L\" take 100 pixels including the gaps before them, but it has 90 "
     "[wide-columns]\n"
     "a.tgs:9:1: warning: \"M\" has 60 pixels for rows of height 20, and the last row that fits is not "
     "drawn; make it 1 higher [hidden-last-row]\n"},
    {"a combo box at the edge of the screen, and controls with states, pages and texts that do not work",
     "SCREEN 'S' 0 0 640 480 '' { COMBOBOX 'C' 0 440 100 24 '' { COMBOBELOW 1; ITEM 'a'; ITEM 'b' }; "
     "CHECKBOX 'B' 0 0 90 24 '' { ENABLED 0; USERDEF 'RadioState' 0 0 9 9; CHECKBOXSTATE 0 0 20 10 "
     "'three.bmp' 20 10 1 }; TABCONTROL 'T' 200 0 90 90 { RADIOBUTTON 'R' 0 0 20 20 ''; WINDOW 'P' 0 20 9 9 "
     "{ VISIBLE 0 } }; EDITBOX 'E' 0 100 90 6 ''; TEXTWND 'X' 0 200 300 24 'a\\nb'; TABORDER 'C' 'B' 'R' 'E' "
     "}",
     "a.tgs:3:1: warning: the menu of \"C\" ends at 512, below the screen of 480 pixels, so its last items "
     "cannot be chosen; remove COMBOBELOW to open it above [menu-off-screen]\n"
     "a.tgs:11:1: warning: \"B\" enables itself when its screen opens; the game can disable it with "
     "setButtonState [no-effect]\n"
     "a.tgs:13:1: warning: the window \"RadioState\" of \"B\" shows the selection, so this state is not used "
     "[no-effect]\n"
     "a.tgs:15:1: error: all pages of \"T\" are hidden, so none is shown when it opens; make the first one "
     "visible [tab-pages]\n"
     "a.tgs:23:1: warning: the text typed into \"E\" is 13 pixels high in font 0, but its box has 6 "
     "[text-clipped]\n"
     "a.tgs:24:26: warning: the text of \"X\" has a line break but is drawn on one line; wrap it with "
     "TEXTWRAP 1 [line-break]\n"},
    {"unknown font styles",
     "ADDFONT \"a.ttf\" \"bald\" 12 0\nADDFONT \"a.ttf\" \"Bold #12345g\" 12 0\nADDFONT \"a.ttf\" \"shadow, "
     "#00ff7F\" 12 0",
     "a.tgs:1:9: error: the font \"a.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"
     "a.tgs:1:17: warning: \"bald\" is not a font style; expected bold, italic, shadow or a colour such as "
     "#2b3038; did you mean \"bold\"? [font-style]\n"
     "a.tgs:2:9: error: the font \"a.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"
     "a.tgs:2:17: warning: \"#12345g\" is not a colour; expected # and six hexadecimal digits [font-style]\n"
     "a.tgs:3:9: error: the font \"a.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"},
    {"a screen with the name of a window class, and without a block",
     "SCREEN 'Ship' 0 0 640 480 ''; WINDOW 'A' 0 0 90 90 { USERDEF 'S' 0 0 9 9 'Ship' }",
     "a.tgs:1:1: warning: this screen is empty, because no block follows it; put its windows between BEGIN "
     "and END after this line [empty-screen]\n"
     "a.tgs:1:8: warning: the game makes windows of the class \"Ship\", and would be asked for that class "
     "when this screen opens [class-name]\n"},
    {"screens and boxes that cannot be left",
     "SCREEN '' 0 0 640 480 '' { BUTTON 'GO' 0 0 90 24 ''; TABORDER 'GO' }; SCREEN 'B' 0 0 640 480 '' { "
     "TEXTWND 'T' 0 0 90 24 'b' }; WINDOW 'QUERYBOX' 0 0 200 100 { TEXTWND 'MESSAGEBOXTITEL' 0 0 90 24 ''; "
     "TEXTWND 'MESSAGEBOXTEXT' 0 24 90 24 ''; BUTTON 'OK' 0 60 90 24 ''; TABORDER 'OK' }",
     "a.tgs:1:1: warning: the first screen opens without a name, but nothing can return to it "
     "[unnamed-screen]\n"
     "a.tgs:6:1: warning: nothing in \"B\" can be clicked; a button TGX_BACK returns to the previous screen "
     "[no-way-out]\n"
     "a.tgs:10:1: warning: no button of \"QUERYBOX\" closes it; TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO and "
     "TGX_CLOSE do [no-close-button]\n"
     "a.tgs:10:1: warning: \"QUERYBOX\" has no window \"MESSAGEBOXTITLE\", so that text is not shown; did "
     "you mean \"MESSAGEBOXTITEL\"? [missing-box-part]\n"},
    {"missing pictures",
     "SCREEN 'A' 0 0 640 480 'none.bmp' { BITMAP 'static' 0 0 9 9 'text.png'; BITMAP 'B' 9 9 9 9 'ONE.BMP' }",
     "a.tgs:1:24: error: no picture \"none.bmp\" in the data directory; did you mean \"one.bmp\"? "
     "[missing-bitmap]\n"
     "a.tgs:3:25: error: \"text.png\" cannot be read as a picture [missing-bitmap]\n"},
    {"strips that are too small",
     "WINDOW 'A' 0 0 200 200 { BITMAP 'B' 0 0 20 10 'three.bmp' 20 10 1 4; BITMAP 'C' 30 0 20 10 'three.bmp' "
     "20 10 1 3; BUTTON 'D' 60 0 20 10 '' 0 0 'one.bmp'; BUTTON 'E' 90 0 20 10 '' 0 0 'three.bmp'; "
     "VSCROLLBAR 'F' 0 30 20 90 'three.bmp' 20 10; PROGRESSBAR 'G' 30 30 40 10 'one.bmp' 40 10; WINDOW 'H' "
     "30 60 99 99 { BORDER 'eight.bmp' 4 9 }; WINDOW 'I' 30 60 99 99 { BORDER 'eight.bmp' 4 8 }; TABORDER "
     "'D' 'E' 'F' }",
     "a.tgs:3:22: error: \"three.bmp\" is 63 x 10 pixels, too small for 4 frames of 20 x 10 that \"B\" uses; "
     "a row of them is 84 x 10 [strip-too-small]\n"
     "a.tgs:5:30: error: \"one.bmp\" is 20 x 10 pixels, too small for 3 frames of 20 x 10 that \"D\" uses; a "
     "row of them is 63 x 10 [strip-too-small]\n"
     "a.tgs:7:27: error: \"three.bmp\" is 63 x 10 pixels, too small for 6 frames of 20 x 10 that \"F\" uses; "
     "a row of them is 126 x 10 [strip-too-small]\n"
     "a.tgs:8:29: error: \"one.bmp\" is 20 x 10 pixels, too small for the frame of 40 x 10 that \"G\" uses; "
     "a row of them is 41 x 10 [strip-too-small]\n"
     "a.tgs:11:8: error: \"eight.bmp\" is 71 x 8 pixels, too small for 8 frames of 9 x 9 that \"H\" uses; a "
     "row of them is 80 x 9 [strip-too-small]\n"},
    {"tabs and pages",
     "WINDOW 'W' 0 0 400 400 { TABCONTROL 'T' 0 0 200 200 { RADIOBUTTON 'A' 0 0 50 20 ''; RADIOBUTTON 'B' 50 "
     "0 50 20 ''; WINDOW 'P' 0 20 200 180 }; TABCONTROL 'U' 0 200 200 200 { RADIOBUTTON 'C' 0 0 50 20 ''; "
     "WINDOW 'Q' 0 20 200 180; RADIOBUTTON 'D' 50 0 50 20 ''; WINDOW 'R' 0 20 200 180 }; TABORDER 'A' 'C' "
     "'D' }",
     "a.tgs:3:1: error: \"T\" has 2 tabs and 1 page [tab-pages]\n"
     "a.tgs:9:1: error: tabs and pages of \"U\" are mixed; put all tabs before or after all pages "
     "[tab-pages]\n"
     "a.tgs:13:1: warning: \"D\" starts a new group: \"Q\" of line 12 separates it from \"C\" "
     "[radio-group]\n"},
    {"a radio group with a window in it, and two groups side by side",
     "WINDOW 'W' 0 0 400 400 { RADIOBUTTON 'SKY_A' 0 0 50 20 ''; RADIOBUTTON 'SKY_B' 0 20 50 20 ''; WINDOW "
     "'static' 60 0 9 9; RADIOBUTTON 'SKY_C' 0 40 50 20 ''; WINDOW 'static' 200 0 9 9; RADIOBUTTON 'SEA_A' "
     "200 20 50 20 ''; RADIOBUTTON 'SEA_B' 200 40 50 20 ''; TABORDER 'SKY_A' 'SKY_C' 'SEA_A' }",
     "a.tgs:6:1: warning: \"SKY_C\" starts a new group: the plain window of line 5 separates it from "
     "\"SKY_B\" [radio-group]\n"},

    {"duplicate ids",
     "SCREEN 'A' 0 0 640 480 '' { BITMAP 'B' 0 0 9 9 ''; WINDOW 'C' 0 0 99 99 { BITMAP 'b' 0 0 9 9 ''; "
     "BITMAP 'static' 0 0 9 9 ''; BITMAP 'static' 0 0 9 9 '' } }; SCREEN 'C' 0 0 640 480 'wide.bmp'; SCREEN "
     "'A' 0 0 640 480 'wide.bmp'",
     "a.tgs:4:8: warning: reading the window \"C\", which is defined in line 11, starts here; use another "
     "name here [name-taken]\n"
     "a.tgs:6:1: warning: another window \"b\" is already in \"A\", in line 3, and is found first "
     "[duplicate-id]\n"
     "a.tgs:12:8: warning: \"A\" is already defined in line 1; reading it always uses that definition "
     "[duplicate-id]\n"},
    {"reserved ids",
     "WINDOW 'A' 0 0 90 90 { TEXTWND 'TGX_BACK' 0 0 90 20 ''; BITMAP 'TGX_OK' 0 20 90 20 ''; BUTTON "
     "'TGX_CLOSE' 0 40 90 20 ''; LISTBOX 'ComboMenu' 0 60 90 20; TABORDER 'ComboMenu' }",
     "a.tgs:3:9: warning: a click on \"TGX_BACK\" leaves the screen, but this is not a button; for "
     "decoration use the id \"static\" [reserved-id]\n"
     "a.tgs:4:8: warning: a click on \"TGX_OK\" closes the box, but this is not a button; for decoration use "
     "the id \"static\" [reserved-id]\n"
     "a.tgs:6:9: warning: \"ComboMenu\" is the id of a control's part; give this window another id "
     "[reserved-id]\n"},
    {"controls that no key reaches",
     "WINDOW 'A' 0 0 90 90 { BUTTON 'B' 0 0 90 20 '' }; WINDOW 'C' 0 0 90 90 { BUTTON 'D' 0 0 90 20 ''; "
     "EDITBOX 'E' 0 20 90 20 ''; BUTTON 'TGX_CLOSE' 0 40 90 20 ''; TABORDER 'D' }",
     "a.tgs:1:1: warning: no key reaches the control in \"A\", \"B\"; add them to a TABORDER at the end of "
     "its block [unreachable]\n"
     "a.tgs:8:1: warning: no key reaches \"E\": no TABORDER of \"C\" names it [unreachable]\n"},
    {"texts that do not fit",
     "WINDOW 'A' 0 0 400 400 { TEXTWND 'B' 0 0 40 20 'a long text'; TEXTWND 'C' 0 20 40 60 'a long text of "
     "many words that goes on' { TEXTWRAP 1 }; TEXTWND 'D' 0 80 40 60 'two lines' { TEXTWRAP 1 }; TEXTWND "
     "'E' 0 140 40 20 'a long text' { TEXTRAW 1 }; TEXTWND 'F' 0 160 90 4 'low'; COMBOBOX 'G' 0 180 40 20 '' "
     "{ ITEM 'short'; ITEM 'a long item' }; TABORDER 'G' }",
     "a.tgs:3:23: warning: the text of \"B\" is 54 pixels wide in font 0, but its box has 40 [text-clipped]\n"
     "a.tgs:4:24: warning: the text of \"C\" does not fit into 40 x 60 pixels in font 0: it is cut before "
     "\"that goes on\" [text-clipped]\n"
     "a.tgs:16:24: warning: the text of \"F\" is 13 pixels high in font 0, but its box has 4 [text-clipped]\n"
     "a.tgs:20:6: warning: the item \"a long item\" of \"G\" is 54 pixels wide in font 0, but its box has 40 "
     "[text-clipped]\n"},
    {"a cell that is wider than its column",
     "WINDOW 'A' 0 0 400 400 { LISTBOX 'L' 0 0 110 90 { COLUMNS 40 40; ITEM 'short' 'also'; ITEM 'short' 'a "
     "long text' }; TABORDER 'L' }",
     "a.tgs:7:14: warning: the text \"a long text\" in row 1 of \"L\" is 54 pixels wide in font 0, but "
     "column 1 has 40 [text-clipped]\n"},
    {"windows outside of their parents",
     "SCREEN 'A' 0 0 640 480 '' { BITMAP 'B' -20 0 40 40 ''; BITMAP 'C' 640 0 9 9 ''; BUTTON 'D' 600 470 80 "
     "20 ''; TEXTWND 'E' 0 -1 90 20 'text'; USERDEF 'F' 700 0 90 90 { TEXTWND 'G' 0 0 90 20 'text' }; "
     "TABORDER 'D' }; WINDOW 'POPUP' 0 0 641 100",
     "a.tgs:4:1: warning: \"C\" is outside \"A\" (640 x 480) [outside-parent]\n"
     "a.tgs:5:1: warning: \"D\" extends beyond \"A\" (640 x 480) by 40 pixels on the right and 10 below; the "
     "part outside takes no clicks [outside-parent]\n"
     "a.tgs:6:1: warning: \"E\" extends beyond \"A\" (640 x 480) by 1 pixel above [outside-parent]\n"
     "a.tgs:13:1: warning: \"POPUP\" is 641 x 100, larger than the screen of 640 x 480 [outside-parent]\n"},
    {"windows that others cover",
     "SCREEN 'A' 0 0 640 480 '' { BUTTON 'B' 0 0 90 20 ''; TEXTWND 'C' 0 0 90 20 'label'; BUTTON 'D' 0 20 90 "
     "20 ''; TEXTWND 'E' 0 20 90 20 'label' { ENABLED 0 }; TEXTWND 'F' 110 10 90 20 'note'; BITMAP 'G' 100 0 "
     "400 300 'wide.bmp'; TEXTWND 'H' 110 10 90 20 'note'; TEXTWND 'I' 0 400 90 20 'note'; BITMAP 'J' 0 390 "
     "400 40 'wide.bmp' { BMPBLITMODE 2 }; TABORDER 'B' 'D' }",
     "a.tgs:3:1: warning: \"B\" is completely covered by \"C\" of line 4, which takes its clicks [covered]\n"
     "a.tgs:10:1: warning: \"F\" cannot be seen: \"G\" of line 11 covers it [covered]\n"},
    {"sizes of 0",
     "WINDOW 'A' 0 0 90 90 { BORDER 'eight.bmp' 0 8; BUTTON 'B' 0 0 90 0 ''; BITMAP 'C' 0 0 9 9 'three.bmp' "
     "0 0 1 3; HSCROLLBAR 'D' 0 0 90 20 'three.bmp' 0 0; TABORDER 'B' 'D' }; WINDOW 'E' 0 0 90 90 { BORDER "
     "'eight.bmp' 8 0 }",
     "a.tgs:3:20: warning: with this width the border's pieces cover the picture [zero-size]\n"
     "a.tgs:4:19: warning: a control of this size cannot be clicked [zero-size]\n"
     "a.tgs:5:32: warning: a strip of several frames needs the size of one [zero-size]\n"
     "a.tgs:6:38: warning: a scroll bar's six frames need a size [zero-size]\n"
     "a.tgs:11:22: warning: a border with pieces of this size is not drawn [zero-size]\n"},
    {"overridden lines",
     "WINDOW 'A' 0 0 90 90 { TEXTRAW 1; BMPINFO 9 9 1 1; BMPFILE 'one.bmp'; FONT 0; TEXTWND 'B' 0 0 90 20 '' "
     "{ FONT 0 }; FONT 0; TEXTRAW 0 }",
     "a.tgs:3:1: warning: TEXTRAW is overridden by the same statement in line 12 [no-effect]\n"
     "a.tgs:4:1: warning: BMPINFO sets a frame size that is reset by the BMPFILE in line 5 [no-effect]\n"},
    {"a line without arguments", "WINDOW 'A' 0 0 90 90 { GRAPH 'G' 0 0 90 90 { GRAPHINFO } }",
     "a.tgs:5:1: warning: GRAPHINFO without arguments does nothing [no-effect]\n"},
    {"allowances",
     "# tgx: allow no-effect zero-size\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  # tgx: allow zero-size no-efect\n\n "
     " # why\n  BORDER \"eight.bmp\" 0 8\n  BORDER \"eight.bmp\" 0 8\nEND",
     "a.tgs:1:14: warning: nothing to allow: the next line has no finding no-effect [unused-allowance]\n"
     "a.tgs:1:24: warning: nothing to allow: the next line has no finding zero-size [unused-allowance]\n"
     "a.tgs:4:26: warning: there is no code no-efect; did you mean \"no-effect\"? [unknown-code]\n"
     "a.tgs:7:3: warning: BORDER is overridden by the same statement in line 8 [no-effect]\n"
     "a.tgs:8:22: warning: with this width the border's pieces cover the picture [zero-size]\n"},
    {"an allowance in an included file",
     "INCLUDE 'b.inc'; INCLUDE 'b.inc'\n== b.inc\nWINDOW 'static' 0 0 9 9 {\n# tgx: allow zero-size\nBORDER "
     "'eight.bmp' 0 8; LISTLOOK 0 }",
     "b.inc:5:1: error: LISTLOOK acts on a list box, but this is a plain window [wrong-window]\n"
     "b.inc:5:10: warning: rows of height 0 count as 1; a negative height keeps the current one "
     "[zero-size]\n"},
    {"nested blocks without END",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\n    WINDOW \"C\" 0 0 9 9\n    BEGIN\nEND",
     "a.tgs:4:3: error: this block has no END of its own: it is closed by the one in line 7, which is "
     "further to the left [begin-without-end]\na.tgs:6:5: error: this block has no END of its own: it is "
     "closed by the one in line 7, which is further to the left [begin-without-end]\n"},
    {"unchecked lines", "@ WINDOW \"A\" 1 2\nFONT 9\n@65\n#! unfinished: 71 04",
     "a.tgs:1:3: error: WINDOW takes 5 arguments, this line has 3; expected: WINDOW \"name\" x y width "
     "height [argument-count]\na.tgs:3:1: error: no statement begins like this; expected a keyword "
     "[unknown-keyword]\na.tgs:4:1: error: the script ends in the middle of a line, which the toolkit "
     "ignores [unfinished]\n"},
    {"a body of one line, followed by a block or by more lines",
     "SUBROUTINE \"P\"\nWINDOW \"PANEL\" 0 0 9 9\nBEGIN\n  TEXTRAW 1\nEND\nSUBROUTINE \"Q\"\nTEXTRAW "
     "1\nBUTTON \"B\" 0 0 20 20 \"\"\nWINDOW \"W\" 0 0 99 99\nBEGIN\n  GOTO \"P\"\n  GOTO \"Q\"\nEND",
     "a.tgs:3:1: warning: the subroutine \"P\" ends with line 2, and this is not part of it; a body of "
     "several lines needs BEGIN and END [after-body]\na.tgs:8:1: warning: the subroutine \"Q\" ends with "
     "line 7, and this is not part of it; a body of several lines needs BEGIN and END [after-body]\n"},
    {"windows without a block that are read one by one",
     "WINDOW 'W' 0 0 90 90 { POINTER 'A' 'b.tgx' }\n== b.tgs\nWINDOW 'A' 0 0 90 90; WINDOW 'B' 0 0 90 90 {  "
     "}\n== c.tgs\nSUBROUTINE 'S'; TEXTRAW 1; WINDOW 'C' 0 0 90 90; GOTO 'S'",
     "b.tgs:1:8: warning: reading \"A\" also executes line 2, which does not belong to it; add BEGIN and END "
     "after this line [missing-block]\n"
     "c.tgs:3:8: warning: reading \"C\" also executes line 4, which does not belong to it; add BEGIN and END "
     "after this line [missing-block]\n"},
    {"several invalid names in one tab list",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"OK\" 10 10 80 24 \"\"\n  TABORDER \"NOPE\" \"OKK\" "
     "\"LATER\"\n  BUTTON \"LATER\" 10 40 80 24 \"\"\nEND",
     "a.tgs:4:12: error: no window \"NOPE\" in \"A\" at this point [missing-window]\na.tgs:4:19: error: no "
     "window \"OKK\" in \"A\" at this point; did you mean \"OK\"? [missing-window]\na.tgs:4:25: error: no "
     "window \"LATER\" in \"A\" at this point; it is defined later, in line 5 [missing-window]\n"},
    {"a recursive subroutine, and others nested too deeply",
     chain(70, 1) +
         "\nSUBROUTINE \"R\"\nBEGIN\nGOTO \"R\"\nEND\nWINDOW \"V\" 0 0 9 9\nBEGIN\nGOTO \"R\"\nEND",
     "a.tgs:255:6: error: calls of subroutines are nested more than 64 deep here [limit-exceeded]\n"
     "a.tgs:287:6: error: the subroutine calls itself: \"R\" -> \"R\" [recursive-subroutine]\n"},
    {"a font in too many blocks",
     repeated(21, "WINDOW \"static\" 0 0 9 9\nBEGIN\n") + "ADDFONT \"\" \"\" 9\n" + repeated(21, "END\n"),
     "a.tgs:41:1: error: WINDOW is inside 20 blocks; at most 19 are allowed [too-deep]\n"},
    {"children of a window that extends beyond the screen",
     "SCREEN 'A' 0 0 640 480 '' { WINDOW 'P' 600 0 200 90 { BUTTON 'B' 100 0 90 20 ''; BUTTON 'C' 0 30 90 20 "
     "'' }; WINDOW 'Q' 700 0 90 90 { BUTTON 'D' 0 0 90 20 '' }; TABORDER 'B' 'C' 'D' }",
     "a.tgs:5:1: warning: \"B\" is outside \"A\" (640 x 480) [outside-parent]\n"
     "a.tgs:6:1: warning: \"C\" extends beyond \"A\" (640 x 480) by 50 pixels on the right; the part outside "
     "takes no clicks [outside-parent]\n"
     "a.tgs:8:1: warning: \"Q\" is outside \"A\" (640 x 480) [outside-parent]\n"},
    {"invalid allowances", "# tgx: allow\nFONT 0 # tgx: allow no-font\n# tgx: allow unknown-keyword\nFRAME 1",
     "a.tgs:1:1: warning: expected codes after allow; --explain lists all codes [unknown-code]\na.tgs:2:8: "
     "warning: this allows nothing: an allowance must be on a line of its own, before the line that it "
     "applies to [unused-allowance]\na.tgs:3:14: warning: unknown-keyword cannot be allowed: the script does "
     "not build with this error [unused-allowance]\na.tgs:4:1: error: unknown keyword FRAME "
     "[unknown-keyword]\n"},
    {"a broken script, and one that uses it",
     "FRAME 1; SUBROUTINE 'S' { }\n== b.tgs\nWINDOW 'W' 0 0 9 9 { GOTO 'T' 'a.tgx'; TABORDER 'MADE_BY_T' }",
     "a.tgs:1:1: error: unknown keyword FRAME [unknown-keyword]\n"},
};

TEST_F(Check, ReportsEachMistakeWithItsPlaceAndReason)
{
    for (const CheckRow& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(row.text), row.findings);
    }
}

TEST_F(Check, HasARowForEveryCode)
{
    std::string all;
    for (const CheckRow& row : rows)
        all += row.findings;
    // "unfinished" and "unused-file" have their own tests; "line-fails" is for failures that no rule expects.
    for (const tgx::script_check::Code& code : tgx::script_check::codes())
        if (const std::string name = code.name;
            name != "unfinished" && name != "unused-file" && name != "line-fails") {
            EXPECT_NE(all.find('[' + name + ']'), std::string::npos) << name << " has no row above";
        }
}

/// Returns the codes at the ends of the headlines.
std::set<std::string> codesIn(const std::string& headlines)
{
    std::set<std::string> out;
    for (std::size_t open = 0; (open = headlines.find('[', open)) != std::string::npos; ++open)
        out.insert(headlines.substr(open + 1, headlines.find(']', open) - open - 1));
    return out;
}

TEST_F(Check, ExamplesOfEachCodeHaveAndAvoidTheFinding)
{
    options.dataDirectory.clear(); // their pictures and fonts do not exist
    const std::string others = "\n== parts.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\nEND\nWINDOW \"X\" 0 0 9 "
                               "9\nBEGIN\n  GOTO \"PANEL\"\nEND\n== panels.tgs\nWINDOW \"MAP\" 0 0 9 "
                               "9\nBEGIN\nEND\n== buttons.tgs\nFONT 0";
    for (const tgx::script_check::Code& code : tgx::script_check::codes()) {
        SCOPED_TRACE(code.name);
        const bool isOfMain = std::string(code.wrong).starts_with("# script.tgs");
        if (*code.wrong) {
            EXPECT_TRUE(codesIn(found(code.wrong + others + (isOfMain ? "" : "\n== script.tgs\nFONT 0"),
                                      isOfMain ? "script.tgs" : "a.tgs"))
                            .contains(code.name))
                << code.wrong;
        }
        EXPECT_FALSE(codesIn(found(code.right + others)).contains(code.name)) << code.right;
    }
}

TEST_F(Check, ReportsACompiledScriptByTheLinesOfItsDump)
{
    const std::string script = emit(parse("WINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 7\nEND")).bytes;
    const struct {
        const char* name;
        std::string bytes;
        const char* findings;
    } compiled[] = {
        {"a line that fails", script,
         "a.tgx:3:10: error: no ADDFONT defines font 7; there is only font 0, the built-in one [no-font]\n"},
        {"invalid lines", "\x41\x03\x01\0\x07\x71\x07"s + script,
         "a.tgx:1:1: error: no statement begins like this; expected a keyword [unknown-keyword]\n"
         "a.tgx:2:3: error: WINDOW takes 5 arguments, this line has 0; expected: WINDOW \"name\" x y width "
         "height [argument-count]\n"},
        {"an incomplete last line",
         script + "\x71\x04"
                  "A",
         "a.tgx:3:10: error: no ADDFONT defines font 7; there is only font 0, the built-in one [no-font]\n"
         "a.tgx:5:1: error: the script ends in the middle of a line, which the toolkit ignores "
         "[unfinished]\n"},
    };
    for (const auto& row : compiled) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(row.bytes, "a.tgx"), row.findings);
    }
}

TEST_F(Check, DoesNotMeasureTheFontsThatTheGameAdds)
{
    const char* const text =
        "WINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 2\n  TEXTWND \"T\" 0 0 9 24 \"too long\"\nEND";
    options.fonts = 2; // their widths are unknown
    EXPECT_EQ(found(text), "");
}

TEST_F(Check, IgnoresPicturesWithoutADataDirectory)
{
    options.dataDirectory.clear();
    EXPECT_EQ(
        found("ADDFONT \"a.ttf\" \"\" 200\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  BORDER \"none.bmp\" 4 8\n  "
              "TEXTWND \"T\" 0 0 9 24 \"in a font that does not exist\"\n  BEGIN\n    FONT 1\n  END\nEND"),
        "");
}

TEST_F(Check, ComparesScreensWithTheGivenSize)
{
    options.screenWidth = 640;
    options.screenHeight = 480;
    EXPECT_EQ(
        found("SCREEN \"A\" 0 0 800 600 \"wide.bmp\""),
        "a.tgs:1:1: warning: \"A\" is 800 x 600, larger than the screen of 640 x 480 [outside-parent]\n");
}

TEST_F(Check, FindsUnusedPictures)
{
    options.unusedFiles = true;
    EXPECT_EQ(found("BITMAP \"A\" 0 0 9 9 \"ONE.bmp\""),
              "a.tgs:1:1: warning: no script uses the file eight.bmp [unused-file]\n"
              "a.tgs:1:1: warning: no script uses the file text.png [unused-file]\n"
              "a.tgs:1:1: warning: no script uses the file three.bmp [unused-file]\n"
              "a.tgs:1:1: warning: no script uses the file wide.bmp [unused-file]\n");
    EXPECT_EQ(found("# tgx: allow unused-file\nFONT 0"), "");
}

TEST_F(Check, PrintsJsonForEditors)
{
    const CheckReport report =
        run({{{"menu.tgs", "# é\n\n  INCLUDE \"b.inc\""}, {"b.inc", "TEXT \"é\" FONT"}}});
    std::vector<const tgx::script_text::Diagnostic*> findings;
    for (const auto& each : report.findings)
        findings.push_back(&each);
    EXPECT_EQ(nlohmann::json::parse(tgx::script_check::asJson(findings)), nlohmann::json::parse(R"([{
        "file": "b.inc", "line": 1, "column": 1, "endColumn": 5, "severity": "error", "code": "argument-count",
        "message": "TEXT takes 1 argument, this line has 2; expected: TEXT \"text\"",
        "includedFrom": [{"file": "menu.tgs", "line": 3, "column": 11}]
    }])"));
    EXPECT_EQ(tgx::script_check::asJson({}), "[]\n");
}

} // namespace

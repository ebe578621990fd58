#include "tests/unit/language/check_fixture.h"

#include "language/check/codes.h"
#include "language/check/output.h"
#include "language/text/emit.h"

#include <nlohmann/json.hpp>

#include <set>

using namespace std::string_literals;

namespace {

using script_check::CheckReport;

/// Subroutines "S0" to below count, each with so many calls of the next one.
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

// Each in a.tgs, where no other file is named.
const CheckRow rows[] = {
    {"a string without an end", "TEXT \"a",
     "a.tgs:1:6: error: this string has no end; expected \" before the end of the line [syntax]\n"},
    {"a keyword mistyped", "WINDOWW \"A\" 0 0 9 9",
     "a.tgs:1:1: error: unknown keyword WINDOWW; did you mean WINDOW? [unknown-keyword]\n"},
    {"a name without a value", "FONT SMALL",
     "a.tgs:1:6: error: unknown name SMALL; expected: FONT font [unknown-name]\n"},
    {"a DEFINE of a keyword", "DEFINE TEXT 1",
     "a.tgs:1:8: error: TEXT is a keyword and cannot be a name [define]\n"},
    {"a DEFINE that nothing uses", "DEFINE A 1\nFONT 0",
     "a.tgs:1:8: warning: nothing uses A [unused-define]\n"},
    {"an INCLUDE of nothing", "INCLUDE \"b.inc\"",
     "a.tgs:1:9: error: cannot read b.inc: there is none [include]\n"},
    {"a wrong count", "WINDOW \"A\" 0 0 9",
     "a.tgs:1:1: error: WINDOW takes 5 arguments, this line has 4; expected: WINDOW \"name\" x y width "
     "height [argument-count]\n"},
    {"a wrong kind", "FONT \"0\"", "a.tgs:1:6: error: expected a number here: FONT font [argument-kind]\n"},
    {"a word without a width",
     "LISTBOX \"L\" 0 0 90 90\nBEGIN\n  COLUMNS 20 LEFT RIGHT 30\n  COLUMNS LEFT\nEND",
     "a.tgs:3:19: error: this word has no width in front of it, and counts as a column of width 0 "
     "[argument-kind]\n"
     "a.tgs:4:11: error: this word has no width in front of it, and counts as a column of width 0 "
     "[argument-kind]\n"},
    {"31 parts", "TABORDER 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0",
     "a.tgs:1:68: error: a line has at most 29 arguments, this one has 30 [too-many-arguments]\n"},
    {"an END too many", "WINDOW \"A\" 0 0 9 9\nBEGIN\nEND\nEND",
     "a.tgs:4:1: error: no block is open here; expected BEGIN first [end-without-begin]\n"},
    {"a BEGIN too many", "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\n  END",
     "a.tgs:2:1: error: no END closes this block [begin-without-end]\n"},
    {"an END too few, where the indentation tells",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\nEND",
     "a.tgs:4:3: error: no END of its own closes this block: the one in line 5 does, and stands further to "
     "the left [begin-without-end]\n"},
    {"windows too deep in each other",
     repeated(21, "WINDOW \"static\" 0 0 9 9\nBEGIN\n") + "FONT 0\n" + repeated(21, "END\n"),
     "a.tgs:41:1: error: WINDOW stands inside 20 blocks; it may stand inside 19 [too-deep]\n"},
    {"a subroutine in a block", "WINDOW \"A\" 0 0 9 9\nBEGIN\n  SUBROUTINE \"S\"\n  BEGIN\n  END\nEND",
     "a.tgs:3:3: error: SUBROUTINE inside a block; it stands at the top level, best in a script of its own "
     "[nested-subroutine]\n"},
    {"a subroutine in the main script", "== script.tgs\nSUBROUTINE \"S\"\nBEGIN\nEND\nGOTO \"S\"",
     "script.tgs:1:1: error: the game reads this script from top to bottom, and that fails here; keep "
     "subroutines in a script of their own [subroutine-in-main]\n"},
    {"a block of nobody", "WINDOW \"A\" 0 0 9 9\nBEGIN\n  TEXT \"\"\n  BEGIN\n    TEXTRAW 1\n  END\nEND",
     "a.tgs:4:3: warning: no window stands in front of this block, so its lines act on the root of all "
     "windows [block-without-window]\n"},
    {"an attribute outside", "FONT 0\nWINDOW \"A\" 0 0 9 9\nTEXTRAW 1",
     "a.tgs:3:1: warning: TEXTRAW outside of all blocks acts on the root of all windows; for \"A\" it stands "
     "between BEGIN and END [outside-block]\n"},
    {"an attribute that misses its window",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"B\" 0 0 90 20 \"b\"\n  JUSTIFY CENTRE\nEND",
     "a.tgs:4:3: warning: JUSTIFY acts on \"A\" here; for \"B\" it stands between BEGIN and END "
     "[attribute-on-parent]\n"},
    {"a screen in a block", "SCREEN \"A\" 0 0 9 9 \"\"\nBEGIN\n  SCREEN \"B\" 0 0 9 9 \"\"\nEND",
     "a.tgs:3:3: warning: a SCREEN inside the block that begins in line 2; it goes to the top level all the "
     "same. Is an END missing? [nested-screen]\n"},

    {"a script that is not there",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  GOTO \"S\" \"part.tgx\"\n  GOTO \"S\" \"150\"\nEND\n== "
     "parts.tgs\nWINDOW "
     "\"B\" 0 0 9 9",
     "a.tgs:3:12: error: no script \"part.tgx\"; did you mean \"parts.tgx\"? [missing-script]\n"},
    {"a subroutine that is not there",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  GOTO \"s1\" \"parts.tgx\"\n  GOTO \"S1\"\nEND\n== parts.tgs\nSUBROUTINE "
     "\"S1\"\nBEGIN\nEND\nWINDOW \"B\" 0 0 9 9\nBEGIN\n  GOTO \"S1\"\nEND",
     "a.tgs:3:8: error: no SUBROUTINE \"s1\" in parts.tgx; did you mean \"S1\"? [missing-subroutine]\n"
     "a.tgs:4:8: error: no SUBROUTINE \"S1\" in a.tgx; parts.tgx has one [missing-subroutine]\n"},
    {"subroutines that reach themselves, over two scripts",
     "SUBROUTINE \"S\"\nBEGIN\n  GOTO \"T\" \"b.tgx\"\nEND\n== b.tgs\nSUBROUTINE \"T\"\nGOTO \"S\" "
     "\"a.tgx\"\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO \"T\"\nEND",
     "b.tgs:2:6: error: the subroutine reaches itself: \"S\" -> \"T\" -> \"S\" [subroutine-ring]\n"},
    {"subroutines of no use",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  GOTO \"S\" \"b.tgx\"\nEND\n== b.tgs\nSUBROUTINE \"S\"\nBEGIN\nEND\n"
     "SUBROUTINE \"S\"\nBEGIN\nEND\nSUBROUTINE \"T\"\nSUBROUTINE \"U\"\nTEXTRAW 1\n== c.tgs\nSUBROUTINE "
     "\"V\"\nBEGIN\nEND",
     "b.tgs:4:12: warning: a SUBROUTINE \"S\" stands in line 1 already, and GOTO finds that one "
     "[duplicate-subroutine]\n"
     "b.tgs:7:12: warning: \"T\" has no body; expected a statement or a block behind it [empty-subroutine]\n"
     "b.tgs:7:12: warning: no GOTO names \"T\" [unused-subroutine]\n"
     "b.tgs:8:12: warning: no GOTO names \"U\" [unused-subroutine]\n"
     "c.tgs:1:1: warning: no GOTO names a subroutine of this script, and it holds nothing else "
     "[unused-script]\n"},

    {"statements on the wrong kind of window",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  ITEM \"a\"\n  COMBOWRAP 1\n  BORDER \"eight.bmp\" 4 8 "
     "\"eight.bmp\"\n  USERDEF \"G\" 0 0 90 90\n  BEGIN\n    ITEM \"a\"\n  END\nEND\nGRAPHINFO \"\"",
     "a.tgs:3:3: error: ITEM acts on a list box or a combo box, and \"A\" is a plain window [wrong-window]\n"
     "a.tgs:4:3: warning: COMBOWRAP does nothing on \"A\" [no-effect]\n"
     "a.tgs:5:26: warning: the second bitmap of a BORDER is for list boxes; \"A\" does not read it "
     "[no-effect]\n"
     "a.tgs:11:1: error: GRAPHINFO acts on a graph, and no window's block is around it [wrong-window]\n"},
    {"a statement of a subroutine on the wrong kind of window, told once",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  GOTO \"S\"\nEND\nWINDOW \"B\" 0 0 9 9\nBEGIN\n  GOTO "
     "\"S\"\nEND\nSUBROUTINE \"S\"\nBUTTONCHECK 1",
     "a.tgs:10:1: error: BUTTONCHECK acts on a button, a combo box or a radio button, and \"A\" is a plain "
     "window [wrong-window]\n"},
    {"tab lists before their windows",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  TABORDER \"OK\"\n  BUTTON \"OK\" 10 10 80 24 \"\"\n  TABORDER "
     "\"ok\" \"QUIT\"\n  TABLIST1 \"OKK\"\nEND",
     "a.tgs:3:12: error: no window \"OK\" in \"A\" at this point; it comes in line 4 [missing-window]\n"
     "a.tgs:5:17: error: no window \"QUIT\" in \"A\" at this point [missing-window]\n"
     "a.tgs:6:12: error: no window \"OKK\" in \"A\" at this point; did you mean \"OK\"? [missing-window]\n"},
    {"pointers to nothing",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  POINTER \"MAP\" \"c.tgx\"\n  POINTER \"A\" \"c.tgx\"\nEND\n== "
     "b.tgs\nWINDOW \"MAP\" 0 0 9 9\n== c.tgs\nWINDOW \"NONE\" 0 0 9 9",
     "a.tgs:3:11: error: no window \"MAP\" exists here, nor at the top level of c.tgx; b.tgx defines it: "
     "name that script [missing-pointer]\n"
     "a.tgs:4:11: error: \"A\" cannot be shown here: this is inside itself, or too deep [pointer-inside]\n"},
    {"a pointer to a window of the main script",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  POINTER \"MAP\"\nEND\n== script.tgs\nWINDOW \"MAP\" 0 0 9 9\nBEGIN\n  "
     "TEXTWND \"T\" 0 0 3 24 \"long\"\nEND",
     "script.tgs:3:3: warning: \"T\" sticks out of \"MAP\" (9 x 9) by 15 pixels below [sticks-out]\n"
     "script.tgs:3:24: warning: the text of \"T\" is 20 pixels wide in font 0, and its box has 3 "
     "[text-clipped]\n"},
    {"fonts that are not there",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 1\n  LISTBOX \"L\" 0 0 9 9\n  BEGIN\n    LISTFONTS 0 1\n  END\n  "
     "TABORDER \"L\"\nEND",
     "a.tgs:3:8: error: no ADDFONT fills font 1; there is only 0, the built-in one [no-font]\n"
     "a.tgs:6:17: error: no ADDFONT fills font 1; there is only 0, the built-in one [no-font]\n"},
    {"fonts of the main script",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 1\n  FONT 2\nEND\n== script.tgs\nADDFONT \"none.ttf\" \"\" 12",
     "a.tgs:3:3: warning: FONT is undone by the same statement in line 4 [no-effect]\n"
     "a.tgs:4:8: error: no ADDFONT fills font 2; there are 0 to 1 [no-font]\n"
     "script.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"},
    {"fonts of two mains side by side, and of a library that both may use",
     "ADDFONT \"none.ttf\" \"\" 12\nADDFONT \"none.ttf\" \"\" 12\n== b.tgs\nADDFONT \"none.ttf\" \"\" "
     "12\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 2\nEND\n== c.tgs\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT "
     "2\nEND",
     "a.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"
     "a.tgs:2:9: error: the font \"none.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"
     "b.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"
     "b.tgs:4:8: error: no ADDFONT fills font 2; there are 0 to 1 [no-font]\n"},
    {"a font of no size", "ADDFONT \"none.ttf\" \"\" 97",
     "a.tgs:1:9: error: the font \"none.ttf\" cannot be loaded at this size; 1 to 96 fit; the built-in one "
     "takes its place [missing-font]\n"},
    {"more cells than columns, and columns behind rows",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  LISTBOX \"L\" 0 0 90 90\n  BEGIN\n    ITEM \"a\" \"b\"\n    COLUMNS "
     "40\n  END\n  TABORDER \"L\"\nEND",
     "a.tgs:5:14: error: this row has more cells than \"L\" had columns when its rows began: 1 "
     "[missing-column]\n"
     "a.tgs:6:5: warning: \"L\" has rows already; COLUMNS belongs in front of them [late-columns]\n"
     "a.tgs:6:5: warning: the columns of \"L\" take 150 pixels with the gaps before them, and it has 90 "
     "[wide-columns]\n"},
    {"icons that are not there",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  LISTBOX \"L\" 0 0 90 90\n  BEGIN\n    LISTICONS \"one.bmp\"\n    "
     "COLUMNS 20\n    ITEM \"ICON0\"\n    ITEM \"ICON1\"\n  END\n  TABORDER \"L\"\nEND",
     "a.tgs:8:10: error: row 1 of \"L\" shows icon 1, and LISTICONS names 1 [missing-icon]\n"},
    {"a frame of an icon that is not there",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  LISTBOX \"L\" 0 0 90 90\n  BEGIN\n    LISTLOOK 10\n    LISTICONS "
     "\"three.bmp\"\n    COLUMNS 20\n    ITEM \"ICON0F2\"\n    ITEM \"ICON0F3\"\n  END\n  TABORDER "
     "\"L\"\nEND",
     "a.tgs:9:10: error: \"three.bmp\" is 63 x 10 pixels and has no frame 3 of 20 x 10 for row 1 of \"L\" "
     "[strip-too-small]\n"},
    {"subroutines without end, by lines", chain(30, 2),
     "a.tgs:144:1: error: the read of \"W\" runs too long and is ended here [budget]\n"},
    {"subroutines too deep", chain(70, 1),
     "a.tgs:255:6: error: subroutines call each other more than 64 deep here [budget]\n"},

    {"lists whose last row does not show, and whose columns do not fit",
     "WINDOW \"A\" 0 0 400 90\nBEGIN\n  LISTBOX \"L\" 0 0 90 60\n  BEGIN\n    COLUMNS 40 40\n    LISTLOOK "
     "20\n    ITEM \"a\"\n  END\n  LISTBOX \"M\" 100 0 90 60\n  BEGIN\n    COLUMNS 40\n    LISTLOOK 20\n  "
     "END\n  TABORDER \"L\" \"M\"\nEND",
     "a.tgs:5:5: warning: the columns of \"L\" take 100 pixels with the gaps before them, and it has 90 "
     "[wide-columns]\n"
     "a.tgs:9:3: warning: \"M\" has 60 pixels for rows of 20, and the last one that fits is not drawn; make "
     "it 1 higher [hidden-last-row]\n"},
    {"a combo box at the edge of the screen, and controls that are as they should not be",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  COMBOBOX \"C\" 0 440 100 24 \"\"\n  BEGIN\n    COMBOBELOW 1\n  "
     "  "
     "ITEM \"a\"\n    ITEM \"b\"\n  END\n  CHECKBOX \"B\" 0 0 90 24 \"\"\n  BEGIN\n    ENABLED 0\n    "
     "USERDEF \"RadioState\" 0 0 9 9\n    CHECKBOXSTATE 0 0 20 10 \"three.bmp\" 20 10 1\n  END\n  TABCONTROL "
     "\"T\" 200 0 "
     "90 90\n  BEGIN\n    RADIOBUTTON \"R\" 0 0 20 20 \"\"\n    WINDOW \"P\" 0 20 9 9\n    BEGIN\n      "
     "VISIBLE 0\n    END\n  END\n  EDITBOX \"E\" 0 100 90 6 \"\"\n  TEXTWND \"X\" 0 200 300 24 \"a\\nb\"\n  "
     "TABORDER \"C\" \"B\" \"R\" \"E\"\nEND",
     "a.tgs:3:3: warning: the menu of \"C\" ends at 512, below the screen of 480 pixels, and its last items "
     "cannot be chosen; let it open above, without COMBOBELOW [menu-off-screen]\n"
     "a.tgs:11:5: warning: \"B\" enables itself when its screen opens; the game disables it with "
     "setButtonState [no-effect]\n"
     "a.tgs:13:5: warning: the window \"RadioState\" of \"B\" carries its selection, and this state is left "
     "alone [no-effect]\n"
     "a.tgs:15:3: error: all pages of \"T\" are hidden, so that none shows when it opens; leave the first "
     "one visible [tab-pages]\n"
     "a.tgs:23:3: warning: what is typed into \"E\" is 13 pixels high in font 0, and its box has 6 "
     "[text-clipped]\n"
     "a.tgs:24:28: warning: the text of \"X\" has a line break and stands on one line; let it wrap with "
     "TEXTWRAP 1 [line-break]\n"},
    {"styles that mean nothing",
     "ADDFONT \"a.ttf\" \"bald\" 12 0\nADDFONT \"a.ttf\" \"Bold #12345g\" 12 0\nADDFONT \"a.ttf\" \"shadow, "
     "#00ff7F\" 12 0",
     "a.tgs:1:9: error: the font \"a.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"
     "a.tgs:1:17: warning: \"bald\" is no word of a style; expected bold, italic, shadow or a colour such as "
     "#2b3038; did you mean \"bold\"? [font-style]\n"
     "a.tgs:2:9: error: the font \"a.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"
     "a.tgs:2:17: warning: \"#12345g\" is no colour; expected # and six hexadecimal digits [font-style]\n"
     "a.tgs:3:9: error: the font \"a.ttf\" cannot be loaded; the built-in one takes its place "
     "[missing-font]\n"},
    {"a screen called as a class of windows, and without a block",
     "SCREEN \"Ship\" 0 0 640 480 \"\"\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 9 9 \"Ship\"\nEND",
     "a.tgs:1:1: warning: nothing is in this screen, as no block follows; its windows stand between BEGIN "
     "and "
     "END below this line [empty-screen]\na.tgs:1:8: warning: the game makes windows of the class \"Ship\", "
     "and is asked for that class when this screen is opened [class-name]\n"},
    {"screens and boxes that lead nowhere",
     "SCREEN \"\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO\" 0 0 90 24 \"\"\n  TABORDER \"GO\"\nEND\nSCREEN "
     "\"B\" 0 0 "
     "640 480 \"\"\nBEGIN\n  TEXTWND \"T\" 0 0 90 24 \"b\"\nEND\nWINDOW \"QUERYBOX\" 0 0 200 100\nBEGIN\n  "
     "TEXTWND "
     "\"MESSAGEBOXTITEL\" 0 0 90 24 \"\"\n  TEXTWND \"MESSAGEBOXTEXT\" 0 24 90 24 \"\"\n  BUTTON \"OK\" 0 60 "
     "90 24 "
     "\"\"\n  TABORDER \"OK\"\nEND",
     "a.tgs:1:1: warning: the first screen opens without a name too, but nothing can come back to it "
     "[unnamed-screen]\n"
     "a.tgs:6:1: warning: nothing in \"B\" can be clicked; a button TGX_BACK leads back to the screen before "
     "[no-way-out]\n"
     "a.tgs:10:1: warning: no button of \"QUERYBOX\" closes it; TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO and "
     "TGX_CLOSE do [stuck-box]\n"
     "a.tgs:10:1: warning: \"QUERYBOX\" has no window \"MESSAGEBOXTITLE\", so that text does not show; did "
     "you mean \"MESSAGEBOXTITEL\"? [box-part]\n"},
    {"pictures that are not there",
     "SCREEN \"A\" 0 0 640 480 \"none.bmp\"\nBEGIN\n  BITMAP \"static\" 0 0 9 9 \"text.png\"\n  BITMAP \"B\" "
     "9 "
     "9 9 9 \"ONE.BMP\"\nEND",
     "a.tgs:1:24: error: no picture \"none.bmp\" in the data directory; did you mean "
     "\"one.bmp\"? [missing-bitmap]\n"
     "a.tgs:3:27: error: \"text.png\" cannot be read as a picture [missing-bitmap]\n"},
    {"strips too small",
     "WINDOW \"A\" 0 0 200 200\nBEGIN\n  BITMAP \"B\" 0 0 20 10 \"three.bmp\" 20 10 1 4\n  BITMAP \"C\" 30 0 "
     "20 "
     "10 \"three.bmp\" 20 10 1 3\n  BUTTON \"D\" 60 0 20 10 \"\" 0 0 \"one.bmp\"\n  BUTTON \"E\" 90 0 20 10 "
     "\"\" "
     "0 0 \"three.bmp\"\n  VSCROLLBAR \"F\" 0 30 20 90 \"three.bmp\" 20 10\n  PROGRESSBAR \"G\" 30 30 40 10 "
     "\"one.bmp\" 40 10\n  WINDOW \"H\" 30 60 99 99\n  BEGIN\n    BORDER \"eight.bmp\" 4 9\n  END\n  WINDOW "
     "\"I\" 30 60 99 99\n  BEGIN\n    BORDER \"eight.bmp\" 4 8\n  END\n  TABORDER \"D\" \"E\" \"F\"\nEND",
     "a.tgs:3:24: error: \"three.bmp\" is 63 x 10 pixels, too small for 4 frames of 20 x 10 that \"B\" takes "
     "from it; a row of them is 84 x 10 [strip-too-small]\n"
     "a.tgs:5:32: error: \"one.bmp\" is 20 x 10 pixels, too small for 3 frames of 20 x 10 that \"D\" takes "
     "from it; a row of them is 63 x 10 [strip-too-small]\n"
     "a.tgs:7:29: error: \"three.bmp\" is 63 x 10 pixels, too small for 6 frames of 20 x 10 that \"F\" takes "
     "from it; a row of them is 126 x 10 [strip-too-small]\n"
     "a.tgs:8:31: error: \"one.bmp\" is 20 x 10 pixels, too small for the frame of 40 x 10 that \"G\" takes "
     "from it; a row of them is 41 x 10 [strip-too-small]\n"
     "a.tgs:11:12: error: \"eight.bmp\" is 71 x 8 pixels, too small for 8 frames of 9 x 9 that \"H\" takes "
     "from it; a row of them is 80 x 9 [strip-too-small]\n"},
    {"tabs and pages",
     "WINDOW \"W\" 0 0 400 400\nBEGIN\n  TABCONTROL \"T\" 0 0 200 200\n  BEGIN\n    RADIOBUTTON \"A\" 0 0 50 "
     "20 "
     "\"\"\n    RADIOBUTTON \"B\" 50 0 50 20 \"\"\n    WINDOW \"P\" 0 20 200 180\n  END\n  TABCONTROL \"U\" "
     "0 200 "
     "200 200\n  BEGIN\n    RADIOBUTTON \"C\" 0 0 50 20 \"\"\n    WINDOW \"Q\" 0 20 200 180\n    RADIOBUTTON "
     "\"D\" 50 0 50 20 \"\"\n    WINDOW \"R\" 0 20 200 180\n  END\n  TABORDER \"A\" \"C\" \"D\"\nEND",
     "a.tgs:3:3: error: \"T\" has 2 tabs and 1 page [tab-pages]\n"
     "a.tgs:9:3: error: tabs and pages of \"U\" are mixed; first stand all of the ones, then all of the "
     "others [tab-pages]\n"
     "a.tgs:13:5: warning: \"D\" begins a group of its own: \"Q\" of line 12 parts it from \"C\" "
     "[radio-group]\n"},
    {"a radio group with a label in it, and two side by side",
     "WINDOW \"W\" 0 0 400 400\nBEGIN\n  RADIOBUTTON \"SKY_A\" 0 0 50 20 \"\"\n  RADIOBUTTON \"SKY_B\" 0 20 "
     "50 20 "
     "\"\"\n  WINDOW \"static\" 60 0 9 9\n  RADIOBUTTON \"SKY_C\" 0 40 50 20 \"\"\n  WINDOW \"static\" 200 0 "
     "9 "
     "9\n  RADIOBUTTON \"SEA_A\" 200 20 50 20 \"\"\n  RADIOBUTTON \"SEA_B\" 200 40 50 20 \"\"\n  TABORDER "
     "\"SKY_A\" \"SKY_C\" \"SEA_A\"\nEND",
     "a.tgs:6:3: warning: \"SKY_C\" begins a group of its own: the plain window of line 5 parts it from "
     "\"SKY_B\" [radio-group]\n"},

    {"ids that are taken",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BITMAP \"B\" 0 0 9 9 \"\"\n  WINDOW \"C\" 0 0 99 99\n  BEGIN\n "
     "   "
     "BITMAP \"b\" 0 0 9 9 \"\"\n    BITMAP \"static\" 0 0 9 9 \"\"\n    BITMAP \"static\" 0 0 9 9 \"\"\n  "
     "END\nEND\nSCREEN \"C\" 0 0 640 480 \"wide.bmp\"\nSCREEN \"A\" 0 0 640 480 \"wide.bmp\"",
     "a.tgs:4:10: warning: a read of the window \"C\", which is defined in line 11, begins here; give this "
     "another name [name-taken]\n"
     "a.tgs:6:5: warning: a window \"b\" stands in \"A\" already, in line 3, and is found first "
     "[duplicate-id]\n"
     "a.tgs:12:8: warning: \"A\" is defined already, in line 1; a read of it takes that one "
     "[duplicate-id]\n"},
    {"ids of the toolkit",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"TGX_BACK\" 0 0 90 20 \"\"\n  BITMAP \"TGX_OK\" 0 20 90 20 "
     "\"\"\n  BUTTON \"TGX_CLOSE\" 0 40 90 20 \"\"\n  LISTBOX \"ComboMenu\" 0 60 90 20\n  TABORDER "
     "\"ComboMenu\"\nEND",
     "a.tgs:3:11: warning: a click on \"TGX_BACK\" leaves the screen, and this is no button; for decoration "
     "write \"static\" [reserved-id]\n"
     "a.tgs:4:10: warning: a click on \"TGX_OK\" closes the box, and this is no button; for decoration write "
     "\"static\" [reserved-id]\n"
     "a.tgs:6:11: warning: controls look for their parts by \"ComboMenu\"; give this window another id "
     "[reserved-id]\n"},
    {"controls that no key reaches",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  BUTTON \"B\" 0 0 90 20 \"\"\nEND\nWINDOW \"C\" 0 0 90 90\nBEGIN\n  "
     "BUTTON "
     "\"D\" 0 0 90 20 \"\"\n  EDITBOX \"E\" 0 20 90 20 \"\"\n  BUTTON \"TGX_CLOSE\" 0 40 90 20 \"\"\n  "
     "TABORDER "
     "\"D\"\nEND",
     "a.tgs:1:1: warning: no key reaches the control in \"A\", \"B\"; name them in a TABORDER at the end of "
     "its block [unreachable]\n"
     "a.tgs:8:3: warning: no key reaches \"E\": no TABORDER of \"C\" names it "
     "[unreachable]\n"},
    {"texts that do not fit",
     "WINDOW \"A\" 0 0 400 400\nBEGIN\n  TEXTWND \"B\" 0 0 40 20 \"a long text\"\n  TEXTWND \"C\" 0 20 40 60 "
     "\"a "
     "long text of many words that goes on\"\n  BEGIN\n    TEXTWRAP 1\n  END\n  TEXTWND \"D\" 0 80 40 60 "
     "\"two "
     "lines\"\n  BEGIN\n    TEXTWRAP 1\n  END\n  TEXTWND \"E\" 0 140 40 20 \"a long text\"\n  BEGIN\n    "
     "TEXTRAW "
     "1\n  END\n  TEXTWND \"F\" 0 160 90 4 \"low\"\n  COMBOBOX \"G\" 0 180 40 20 \"\"\n  BEGIN\n    ITEM "
     "\"short\"\n    ITEM \"a long item\"\n  END\n  TABORDER \"G\"\nEND",
     "a.tgs:3:25: warning: the text of \"B\" is 54 pixels wide in font 0, and its box has 40 [text-clipped]\n"
     "a.tgs:4:26: warning: the text of \"C\" has no room in 40 x 60 pixels in font 0 from \"that goes on\" "
     "on [text-clipped]\n"
     "a.tgs:16:26: warning: the text of \"F\" is 13 pixels high in font 0, and its box has 4 [text-clipped]\n"
     "a.tgs:20:10: warning: the item \"a long item\" of \"G\" is 54 pixels wide in font 0, and its box has "
     "40 "
     "[text-clipped]\n"},
    {"a text of a list that is wider than its column",
     "WINDOW \"A\" 0 0 400 400\nBEGIN\n  LISTBOX \"L\" 0 0 110 90\n  BEGIN\n    COLUMNS 40 40\n    ITEM "
     "\"short\" "
     "\"also\"\n    ITEM \"short\" \"a long text\"\n  END\n  TABORDER \"L\"\nEND",
     "a.tgs:7:18: warning: the text \"a long text\" in row 1 of \"L\" is 54 pixels wide in font 0, and "
     "column "
     "1 has 40 [text-clipped]\n"},
    {"windows outside of others",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BITMAP \"B\" -20 0 40 40 \"\"\n  BITMAP \"C\" 640 0 9 9 \"\"\n "
     " "
     "BUTTON \"D\" 600 470 80 20 \"\"\n  TEXTWND \"E\" 0 -1 90 20 \"text\"\n  USERDEF \"F\" 700 0 90 90\n  "
     "BEGIN\n "
     "   TEXTWND \"G\" 0 0 90 20 \"text\"\n  END\n  TABORDER \"D\"\nEND\nWINDOW \"POPUP\" 0 0 641 100",
     "a.tgs:4:3: warning: \"C\" lies outside of \"A\" (640 x 480) [sticks-out]\n"
     "a.tgs:5:3: warning: \"D\" sticks out of \"A\" (640 x 480) by 40 pixels on the right and 10 below; what "
     "lies outside takes no clicks [sticks-out]\n"
     "a.tgs:6:3: warning: \"E\" sticks out of \"A\" (640 x 480) by 1 pixel above [sticks-out]\n"
     "a.tgs:13:1: warning: \"POPUP\" is 641 x 100, larger than the screen of 640 x 480 [sticks-out]\n"},
    {"windows behind others",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"B\" 0 0 90 20 \"\"\n  TEXTWND \"C\" 0 0 90 20 "
     "\"label\"\n  "
     "BUTTON \"D\" 0 20 90 20 \"\"\n  TEXTWND \"E\" 0 20 90 20 \"label\"\n  BEGIN\n    ENABLED 0\n  END\n  "
     "TEXTWND "
     "\"F\" 110 10 90 20 \"note\"\n  BITMAP \"G\" 100 0 400 300 \"wide.bmp\"\n  TEXTWND \"H\" 110 10 90 20 "
     "\"note\"\n  TEXTWND \"I\" 0 400 90 20 \"note\"\n  BITMAP \"J\" 0 390 400 40 \"wide.bmp\"\n  BEGIN\n    "
     "BMPBLITMODE 2\n  END\n  TABORDER \"B\" \"D\"\nEND",
     "a.tgs:3:3: warning: \"B\" lies wholly behind \"C\" of line 4, which takes its clicks [covered]\n"
     "a.tgs:10:3: warning: \"F\" cannot be seen: \"G\" of line 11 lies over it [covered]\n"},
    {"sizes of 0",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  BORDER \"eight.bmp\" 0 8\n  BUTTON \"B\" 0 0 90 0 \"\"\n  BITMAP "
     "\"C\" 0 0 9 "
     "9 \"three.bmp\" 0 0 1 3\n  HSCROLLBAR \"D\" 0 0 90 20 \"three.bmp\" 0 0\n  TABORDER \"B\" "
     "\"D\"\nEND\nWINDOW "
     "\"E\" 0 0 90 90\nBEGIN\n  BORDER \"eight.bmp\" 8 0\nEND",
     "a.tgs:3:22: warning: with this width the picture lies under the border's pieces [zero-size]\n"
     "a.tgs:4:21: warning: a control of this size cannot be hit [zero-size]\n"
     "a.tgs:5:34: warning: a strip of several frames needs the size of one [zero-size]\n"
     "a.tgs:6:40: warning: a scroll bar's six frames need a size [zero-size]\n"
     "a.tgs:11:24: warning: a border with pieces of this size is not drawn [zero-size]\n"},
    {"lines that are undone",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTRAW 1\n  BMPINFO 9 9 1 1\n  BMPFILE \"one.bmp\"\n  FONT 0\n  "
     "TEXTWND "
     "\"B\" 0 0 90 20 \"\"\n  BEGIN\n    FONT 0\n  END\n  FONT 0\n  TEXTRAW 0\nEND",
     "a.tgs:3:3: warning: TEXTRAW is undone by the same statement in line 12 [no-effect]\n"
     "a.tgs:4:3: warning: BMPINFO sets a frame size that is taken back by the BMPFILE in line 5 "
     "[no-effect]\n"},
    {"a line without arguments",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  GRAPH \"G\" 0 0 90 90\n  BEGIN\n    "
     "GRAPHINFO\n  END\nEND",
     "a.tgs:5:5: warning: GRAPHINFO without arguments does nothing [no-effect]\n"},
    {"allowances",
     "# tgx: allow no-effect zero-size\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  # tgx: allow zero-size no-efect\n\n "
     " # "
     "why\n  BORDER \"eight.bmp\" 0 8\n  BORDER \"eight.bmp\" 0 8\nEND",
     "a.tgs:1:14: warning: nothing to allow: the line behind has no finding no-effect [unused-allowance]\n"
     "a.tgs:1:24: warning: nothing to allow: the line behind has no finding zero-size [unused-allowance]\n"
     "a.tgs:4:26: warning: there is no code no-efect; did you mean \"no-effect\"? [unknown-code]\n"
     "a.tgs:7:3: warning: BORDER is undone by the same statement in line 8 [no-effect]\n"
     "a.tgs:8:22: warning: with this width the picture lies under the border's pieces [zero-size]\n"},
    {"an allowance in a file that is included",
     "INCLUDE \"b.inc\"\nINCLUDE \"b.inc\"\n== b.inc\nWINDOW \"static\" 0 0 9 9\nBEGIN\n  # tgx: allow "
     "zero-size\n  "
     "BORDER \"eight.bmp\" 0 8\n  LISTLOOK 0\nEND",
     "b.inc:5:3: error: LISTLOOK acts on a list box, and this is a plain window [wrong-window]\n"
     "b.inc:5:12: warning: rows of height 0 count as 1; a negative height keeps the one that there is "
     "[zero-size]\n"},
    {"blocks that are open one in the other",
     "WINDOW \"A\" 0 0 9 9\nBEGIN\n  WINDOW \"B\" 0 0 9 9\n  BEGIN\n    WINDOW \"C\" 0 0 9 9\n    BEGIN\nEND",
     "a.tgs:4:3: error: no END of its own closes this block: the one in line 7 does, and stands further to "
     "the left [begin-without-end]\na.tgs:6:5: error: no END of its own closes this block: the one in line 7 "
     "does, and stands further to the left [begin-without-end]\n"},
    {"lines that are built as they stand", "@ WINDOW \"A\" 1 2\nFONT 9\n@65\n#! unfinished: 71 04",
     "a.tgs:1:3: error: WINDOW takes 5 arguments, this line has 3; expected: WINDOW \"name\" x y width "
     "height [argument-count]\na.tgs:3:1: error: no statement begins so; expected a keyword "
     "[unknown-keyword]\na.tgs:4:1: error: the script ends inside a line, which the toolkit drops "
     "[unfinished]\n"},
    {"a body of one line with a block behind it, and with more lines",
     "SUBROUTINE \"P\"\nWINDOW \"PANEL\" 0 0 9 9\nBEGIN\n  TEXTRAW 1\nEND\nSUBROUTINE \"Q\"\nTEXTRAW "
     "1\nBUTTON \"B\" 0 0 20 20 \"\"\nWINDOW \"W\" 0 0 99 99\nBEGIN\n  GOTO \"P\"\n  GOTO \"Q\"\nEND",
     "a.tgs:3:1: warning: the subroutine \"P\" ends with line 2, and this is no part of it; a body of "
     "several lines stands between BEGIN and END [behind-body]\na.tgs:8:1: warning: the subroutine \"Q\" "
     "ends with line 7, and this is no part of it; a body of several lines stands between BEGIN and END "
     "[behind-body]\n"},
    {"windows without a block that are read one by one",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  POINTER \"A\" \"b.tgx\"\nEND\n== b.tgs\nWINDOW \"A\" 0 0 90 "
     "90\nWINDOW \"B\" 0 0 90 90\nBEGIN\nEND\n== c.tgs\nSUBROUTINE \"S\"\nTEXTRAW 1\nWINDOW \"C\" 0 0 90 "
     "90\nGOTO \"S\"",
     "b.tgs:1:8: warning: a read of \"A\" carries out line 2 too, which is none of it; write BEGIN and END "
     "behind this line [without-block]\nc.tgs:3:8: warning: a read of \"C\" carries out line 4 too, which is "
     "none of it; write BEGIN and END behind this line [without-block]\n"},
    {"several names of one tab list",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"OK\" 10 10 80 24 \"\"\n  TABORDER \"NOPE\" \"OKK\" "
     "\"LATER\"\n  BUTTON \"LATER\" 10 40 80 24 \"\"\nEND",
     "a.tgs:4:12: error: no window \"NOPE\" in \"A\" at this point [missing-window]\na.tgs:4:19: error: no "
     "window \"OKK\" in \"A\" at this point; did you mean \"OK\"? [missing-window]\na.tgs:4:25: error: no "
     "window \"LATER\" in \"A\" at this point; it comes in line 5 [missing-window]\n"},
    {"a ring, and other subroutines too deep",
     chain(70, 1) +
         "\nSUBROUTINE \"R\"\nBEGIN\nGOTO \"R\"\nEND\nWINDOW \"V\" 0 0 9 9\nBEGIN\nGOTO \"R\"\nEND",
     "a.tgs:255:6: error: subroutines call each other more than 64 deep here [budget]\na.tgs:287:6: error: "
     "the subroutine reaches itself: \"R\" -> \"R\" [subroutine-ring]\n"},
    {"a font in too many blocks",
     repeated(21, "WINDOW \"static\" 0 0 9 9\nBEGIN\n") + "ADDFONT \"\" \"\" 9\n" + repeated(21, "END\n"),
     "a.tgs:41:1: error: WINDOW stands inside 20 blocks; it may stand inside 19 [too-deep]\n"},
    {"what its holder shows outside of the screen",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  WINDOW \"P\" 600 0 200 90\n  BEGIN\n    BUTTON \"B\" 100 0 90 "
     "20 \"\"\n    BUTTON \"C\" 0 30 90 20 \"\"\n  END\n  WINDOW \"Q\" 700 0 90 90\n  BEGIN\n    BUTTON "
     "\"D\" 0 0 90 20 \"\"\n  END\n  TABORDER \"B\" \"C\" \"D\"\nEND",
     "a.tgs:5:5: warning: \"B\" lies outside of \"A\" (640 x 480) [sticks-out]\na.tgs:6:5: warning: \"C\" "
     "sticks out of \"A\" (640 x 480) by 50 pixels on the right; what lies outside takes no clicks "
     "[sticks-out]\na.tgs:8:3: warning: \"Q\" lies outside of \"A\" (640 x 480) [sticks-out]\n"},
    {"allowances that can be none",
     "# tgx: allow\nFONT 0 # tgx: allow no-font\n# tgx: allow unknown-keyword\nFRAME 1",
     "a.tgs:1:1: warning: expected codes behind allow; --explain lists them all [unknown-code]\na.tgs:2:8: "
     "warning: this allows nothing: an allowance stands in a line of its own, in front of the one that it is "
     "for [unused-allowance]\na.tgs:3:14: warning: unknown-keyword cannot be allowed here: the script cannot "
     "be built with it [unused-allowance]\na.tgs:4:1: error: unknown keyword FRAME [unknown-keyword]\n"},
    {"a broken script, and one that uses it",
     "FRAME 1\nSUBROUTINE \"S\"\nBEGIN\nEND\n== b.tgs\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO \"T\" \"a.tgx\"\n "
     " "
     "TABORDER \"MADE_BY_T\"\nEND",
     "a.tgs:1:1: error: unknown keyword FRAME [unknown-keyword]\n"},
};

TEST_F(Check, TellsEachFaultWithItsPlaceAndReason)
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
    // "unfinished" and "unused-file" have tests of their own; "line-fails" is for what no rule foresees.
    for (const script_check::Code& code : script_check::codes())
        if (const std::string name = code.name;
            name != "unfinished" && name != "unused-file" && name != "line-fails") {
            EXPECT_NE(all.find('[' + name + ']'), std::string::npos) << name << " has no row above";
        }
}

/// A line each, without place and text.
std::set<std::string> codesIn(const std::string& headlines)
{
    std::set<std::string> out;
    for (std::size_t open = 0; (open = headlines.find('[', open)) != std::string::npos; ++open)
        out.insert(headlines.substr(open + 1, headlines.find(']', open) - open - 1));
    return out;
}

TEST_F(Check, ExplainsEachCodeWithExamplesThatAreTrue)
{
    options.dataDirectory.clear(); // their pictures and fonts are nowhere
    const std::string others = "\n== parts.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\nEND\nWINDOW \"X\" 0 0 9 "
                               "9\nBEGIN\n  GOTO \"PANEL\"\nEND\n== panels.tgs\nWINDOW \"MAP\" 0 0 9 "
                               "9\nBEGIN\nEND\n== buttons.tgs\nFONT 0";
    for (const script_check::Code& code : script_check::codes()) {
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

TEST_F(Check, TellsOfACompiledScriptByTheLinesOfItsDump)
{
    const std::string script = emit(parse("WINDOW \"A\" 0 0 90 90\nBEGIN\n  FONT 7\nEND")).bytes;
    const struct {
        const char* name;
        std::string bytes;
        const char* findings;
    } compiled[] = {
        {"a line that fails", script,
         "a.tgx:3:10: error: no ADDFONT fills font 7; there is only 0, the built-in one [no-font]\n"},
        {"lines that are none", "\x41\x03\x01\0\x07\x71\x07"s + script,
         "a.tgx:1:1: error: no statement begins so; expected a keyword [unknown-keyword]\n"
         "a.tgx:2:3: error: WINDOW takes 5 arguments, this line has 0; expected: WINDOW \"name\" x y width "
         "height "
         "[argument-count]\n"},
        {"a line without an end",
         script + "\x71\x04"
                  "A",
         "a.tgx:3:10: error: no ADDFONT fills font 7; there is only 0, the built-in one [no-font]\n"
         "a.tgx:5:1: error: the script ends inside a line, which the toolkit drops [unfinished]\n"},
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
    options.fonts = 2; // how wide those are nobody knows
    EXPECT_EQ(found(text), "");
}

TEST_F(Check, LeavesPicturesAloneWithoutADataDirectory)
{
    options.dataDirectory.clear();
    EXPECT_EQ(
        found(
            "ADDFONT \"a.ttf\" \"\" 200\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  BORDER \"none.bmp\" 4 8\n  TEXTWND "
            "\"T\" 0 0 9 24 \"in a font that is not there\"\n  BEGIN\n    FONT 1\n  END\nEND"),
        "");
}

TEST_F(Check, ComparesScreensWithTheSizeOfTheCall)
{
    options.screenWidth = 640;
    options.screenHeight = 480;
    EXPECT_EQ(found("SCREEN \"A\" 0 0 800 600 \"wide.bmp\""),
              "a.tgs:1:1: warning: \"A\" is 800 x 600, larger than the screen of 640 x 480 [sticks-out]\n");
}

TEST_F(Check, FindsPicturesThatNothingNames)
{
    options.unusedFiles = true;
    EXPECT_EQ(found("BITMAP \"A\" 0 0 9 9 \"ONE.bmp\""),
              "a.tgs:1:1: warning: no script names the file eight.bmp [unused-file]\n"
              "a.tgs:1:1: warning: no script names the file text.png [unused-file]\n"
              "a.tgs:1:1: warning: no script names the file three.bmp [unused-file]\n"
              "a.tgs:1:1: warning: no script names the file wide.bmp [unused-file]\n");
    EXPECT_EQ(found("# tgx: allow unused-file\nFONT 0"), "");
}

TEST_F(Check, GivesEditorsJson)
{
    const CheckReport report =
        run({{{"menu.tgs", "# é\n\n  INCLUDE \"b.inc\""}, {"b.inc", "TEXT \"é\" FONT"}}});
    std::vector<const script_text::Diagnostic*> findings;
    for (const auto& each : report.findings)
        findings.push_back(&each);
    EXPECT_EQ(nlohmann::json::parse(script_check::asJson(findings)), nlohmann::json::parse(R"([{
        "file": "b.inc", "line": 1, "column": 1, "endColumn": 5, "severity": "error", "code": "argument-count",
        "message": "TEXT takes 1 argument, this line has 2; expected: TEXT \"text\"",
        "includedFrom": [{"file": "menu.tgs", "line": 3, "column": 11}]
    }])"));
    EXPECT_EQ(script_check::asJson({}), "[]\n");
}

} // namespace

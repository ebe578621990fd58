// Rules for panels and pointers, keys, tabs and pages, radio groups, lists and their rows, and for unread
// arguments.

#include "tests/unit/language/check_fixture.h"

namespace {

/// Each script is a.tgs, unless another file is named. None has findings.
const struct {
    const char* name;
    const char* text;
} correctScripts[] = {
    {"a panel of another script, with its tab stops in the screen that shows it",
     R"(SCREEN 'S' 0 0 640 480 '' { POINTER 'PANEL' 'panel.tgx'; TABORDER 'GO' }
        == panel.tgs
        WINDOW 'PANEL' 0 0 90 90 { BUTTON 'GO' 0 0 80 24 '' })"},
    {"a panel that a POINTER to an embedded script may show",
     R"(SCREEN 'S' 0 0 640 480 '' { POINTER 'PANEL' '150' }
        == panel.tgs
        WINDOW 'PANEL' 0 0 90 90 { BUTTON 'GO' 0 0 80 24 '' })"},
    {"tabs or pages of the game's classes", R"(WINDOW 'A' 0 0 200 200 {
          TABCONTROL 'T' 0 0 200 90 {
            USERDEF 'TAB1' 0 0 50 20 'Tab'; USERDEF 'TAB2' 50 0 50 20 'Tab'; WINDOW 'PAGE1' 0 20 200 70
            WINDOW 'PAGE2' 0 20 200 70
          }
          TABCONTROL 'U' 0 90 200 90 {
            RADIOBUTTON 'TAB3' 0 0 50 20 ''; USERDEF 'PAGE3' 0 20 200 70 'Map'
          }
          TABORDER 'TAB3'
        })"},
    {"two groups with a common stem of ids, in two columns", R"(WINDOW 'A' 0 0 400 90 {
          RADIOBUTTON 'RADIO1' 10 0 90 20 ''; RADIOBUTTON 'RADIO2' 10 20 90 20 ''
          TEXTWND 'static' 300 0 50 20 'Sound'; RADIOBUTTON 'RADIO3' 300 20 90 20 ''
          RADIOBUTTON 'RADIO4' 300 40 90 20 ''; TABORDER 'RADIO1' 'RADIO3'
        })"},
    {"two groups in two columns without a heading", R"(WINDOW 'A' 0 0 400 90 {
          RADIOBUTTON 'OPT_EASY' 10 0 90 20 ''; RADIOBUTTON 'OPT_HARD' 10 20 90 20 ''
          BITMAP 'static' 150 0 9 9 ''; RADIOBUTTON 'OPT_ON' 300 0 90 20 ''
          RADIOBUTTON 'OPT_OFF' 300 20 90 20 ''; TABORDER 'OPT_EASY' 'OPT_ON'
        })"},
    {"two groups in one column, with their headings on the left", R"(WINDOW 'A' 0 0 400 90 {
          TEXTWND 'static' 0 0 80 20 'Level'; RADIOBUTTON 'EASY' 100 0 90 20 ''
          RADIOBUTTON 'HARD' 100 20 90 20 ''; TEXTWND 'static' 0 40 80 20 'Sound'
          RADIOBUTTON 'ON' 100 40 90 20 ''; RADIOBUTTON 'OFF' 100 60 90 20 ''; TABORDER 'EASY' 'ON'
        })"},
    {"two groups in one row, the second in a frame", R"(WINDOW 'A' 0 0 400 90 {
          RADIOBUTTON 'EASY' 0 0 90 20 ''; RADIOBUTTON 'HARD' 100 0 90 20 ''
          WINDOW 'static' 195 0 200 20 { ENABLED 0 }; RADIOBUTTON 'ON' 200 0 90 20 ''
          RADIOBUTTON 'OFF' 300 0 90 20 ''; TABORDER 'EASY' 'ON'
        })"},
    {"two radio buttons around a window of the game's class", R"(WINDOW 'A' 0 0 90 90 {
          RADIOBUTTON 'A1' 0 0 90 20 ''; USERDEF 'A2' 0 20 90 20 'Choice'
          RADIOBUTTON 'A3' 0 40 90 20 ''; TABORDER 'A1' 'A3'
        })"},
    {"keys that go to a combo box, and to radio buttons", R"(WINDOW 'A' 0 0 90 90 {
          COMBOBOX 'B' 0 0 90 20 ''; RADIOBUTTON 'C1' 0 20 40 20 ''; RADIOBUTTON 'C2' 0 40 40 20 ''
          BITMAP 'static' 0 60 9 9 ''; RADIOBUTTON 'D1' 50 20 40 20 ''; RADIOBUTTON 'D2' 50 40 40 20 ''
          TABLIST1 'B'; TABLIST2 'C1' 'D1'
        })"},
    {"a hidden window with its own tab stops, which the game may open as a popup",
     R"(SCREEN 'S' 0 0 640 480 '' {
          BUTTON 'ASK' 0 0 80 24 ''
          WINDOW 'BOX' 200 100 200 90 { VISIBLE 0; BUTTON 'SURE' 0 0 80 24 ''; TABORDER 'SURE' }
          TABORDER 'ASK'
        })"},
    {"titles that continue over columns without a title", R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 200 90 { COLUMNS 20 60 30 CENTRE; TITLES 'a long text' '' 'short' }
          TABORDER 'L'
        })"},
    {"words that wrap at blanks and at line breaks",
     "WINDOW 'A' 0 0 400 90 { TEXTWND 'B' 0 0 60 90 'a text of\\nshort  words' { TEXTWRAP 1 } }"},
    {"icons whose files the game adds",
     "WINDOW 'A' 0 0 400 90 { LISTBOX 'L' 0 0 200 90 { ITEM 'ICON7F12' }; TABORDER 'L' }"},
    {"statements with all their arguments", R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 400 90 {
            LISTLOOK 20 1 1; LISTOPTIONS 1 1; LISTFONTS 0 0 0 0
            COLUMNS 9 9 9 9 9 9 9 9 9 9 LEFT 9 9 9 9 9 9 9 9 9 9 CENTRE; LISTFIXEDCOLUMNS 0 19
            BMPBLITMODE -1
          }
          COMBOBOX 'C' 200 0 90 20 '' { COMBOMENU 0 0 90 90 ''; ITEM 'a' }
          GRAPH 'G' 200 20 90 20 { GRAPHINFO '' '' 1 2 3 4 5 }; TABORDER 'L' 'C'
        })"},
    {"a FONT at the top of the main script", R"(FONT 0; WINDOW 'A' 0 0 90 90 { GOTO 'S' 'parts.tgx' }
        == parts.tgs
        SUBROUTINE 'S' { FONT 0 })"},
};

TEST_F(Check, FindsNothingInCorrectControls)
{
    for (const auto& row : correctScripts) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(scriptLines(row.text)), "");
    }
}

const CheckRow wrongScripts[] = {
    {"a panel with the POINTER's name in another script",
     R"(SCREEN 'S' 0 0 640 480 '' { POINTER 'PANEL' 'panel.tgx'; TABORDER 'GO' }
        == other.tgs
        WINDOW 'PANEL' 0 0 90 90 { BUTTON 'GO' 0 0 80 24 '' }
        == panel.tgs
        WINDOW 'PANEL' 0 0 90 90 { BUTTON 'GO' 0 0 80 24 '' })",
     "other.tgs:1:1: warning: no key reaches the control in \"PANEL\", \"GO\"; add them to a TABORDER at the "
     "end of its block [unreachable]\n"},
    {"tab orders of inner windows, and keys without a target",
     R"(SCREEN 'S' 0 0 640 480 '' {
          WINDOW 'INNER' 0 0 200 90 {
            BUTTON 'A' 0 0 80 24 ''; BUTTON 'B' 0 24 80 24 ''; TABORDER 'A' 'B'
          }
          BUTTON 'C' 300 0 80 24 ''; COMBOBOX 'D' 300 24 80 24 ''; RADIOBUTTON 'E' 300 48 80 24 ''
          TABORDER 'A'; TABLIST1 'C' 'E'; TABLIST2 'D' 'C'
        })",
     "a.tgs:6:1: warning: no key reaches \"B\": it is in the TABORDER of \"INNER\", but Tab only follows "
     "that of \"S\" [unreachable]\n"
     "a.tgs:9:1: warning: no key reaches \"C\": no TABORDER of \"S\" names it [unreachable]\n"
     "a.tgs:11:1: warning: no key reaches \"E\": no TABORDER of \"S\" names it [unreachable]\n"
     "a.tgs:13:10: warning: Insert and Delete do not reach a list that begins with a button; it must begin "
     "with a combo box or a radio button [no-effect]\n"},
    {"buttons among the tabs, and more pages than tabs of the game's class",
     R"(WINDOW 'A' 0 0 200 200 {
          TABCONTROL 'T' 0 0 200 90 {
            RADIOBUTTON 'T1' 0 0 50 20 ''; RADIOBUTTON 'T2' 50 0 50 20 ''; BUTTON 'T3' 100 0 50 20 ''
            WINDOW 'P1' 0 20 200 70; WINDOW 'P2' 0 20 200 70; WINDOW 'P3' 0 20 200 70
          }
          TABCONTROL 'U' 0 90 200 90 {
            USERDEF 'T4' 0 0 50 20 'Tab'; WINDOW 'P4' 0 20 200 70; WINDOW 'P5' 0 20 200 70
          }
          TABORDER 'T1' 'T3'
        })",
     "a.tgs:7:1: error: \"T3\" is among the tabs of \"T\" but not in their group: a click on it also "
     "switches the pages, but it has no page of its own. Tabs must be radio buttons; put other buttons into "
     "a page [tab-pages]\n"
     "a.tgs:12:1: error: \"U\" has 0 tabs and 2 pages [tab-pages]\n"},
    {"a group that continues in its column at another distance, and one with a note beside it",
     R"(WINDOW 'A' 0 0 400 90 {
          RADIOBUTTON 'RED' 0 0 90 20 ''; RADIOBUTTON 'BLUE' 0 20 90 20 ''; BITMAP 'static' 100 0 9 9 ''
          RADIOBUTTON 'GREEN' 0 45 90 20 ''; RADIOBUTTON 'BLACK' 0 65 90 20 ''
          WINDOW 'static' 150 0 9 9; RADIOBUTTON 'P_1' 200 0 60 20 ''; RADIOBUTTON 'P_2' 260 0 60 20 ''
          TEXTWND 'static' 260 20 60 20 'usual'; RADIOBUTTON 'P_3' 340 0 20 20 ''
          RADIOBUTTON 'P_4' 380 0 20 20 ''; TABORDER 'RED' 'GREEN' 'P_1' 'P_3'
        })",
     "a.tgs:6:1: warning: \"GREEN\" starts a new group: the plain window of line 5 separates it from "
     "\"BLUE\" [radio-group]\n"
     "a.tgs:12:1: warning: \"P_3\" starts a new group: the plain window of line 11 separates it from \"P_2\" "
     "[radio-group]\n"},
    {"rows, titles and items that are cut",
     R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 200 90 {
            LISTLOOK 15; LISTFONTS 0 0 0 0; COLUMNS 40 40 CENTRE
            TITLES 'a title that is long' 'another title'; ITEM 'a long text' 'short'
            # tgx: allow text-clipped
            ITEM 'a long text' 'short'; ITEM 'short' 'a long text'
          }
          COMBOBOX 'C' 200 0 40 20 'short' { ITEM 'a long item'; ITEM 'another item' }; TABORDER 'L' 'C'
        })",
     "a.tgs:8:8: warning: the title \"a title that is long\" of \"L\" is 87 pixels wide in font 0, but "
     "column 0 has 40 [text-clipped]\n"
     "a.tgs:8:31: warning: the title \"another title\" of \"L\" is 60 pixels wide in font 0, but column 1 "
     "has 40 [text-clipped]\n"
     "a.tgs:9:6: warning: the text \"a long text\" in row 0 of \"L\" is 54 pixels wide in font 0, but column "
     "0 has 40 [text-clipped]\n"
     "a.tgs:12:14: warning: the text \"a long text\" in row 2 of \"L\" is 54 pixels wide in font 0, but "
     "column 1 has 40 [text-clipped]\n"
     "a.tgs:16:6: warning: the item \"a long item\" of \"C\" is 54 pixels wide in font 0, but its box has 40 "
     "[text-clipped]\n"
     "a.tgs:17:6: warning: the item \"another item\" of \"C\" is 62 pixels wide in font 0, but its box has "
     "40 [text-clipped]\n"},
    {"a text in a font that the game may use for any row",
     R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 200 90 { LISTFONTS 1; COLUMNS 20; ITEM 'a long text' }; TABORDER 'L'
        }
        == script.tgs
        ADDFONT 'none.ttf' '' 12)",
     "script.tgs:1:9: error: the font \"none.ttf\" cannot be loaded; the built-in font is used instead "
     "[missing-font]\n"},
    {"words that lose letters, and wrapped lines in a box that is too low",
     R"(WINDOW 'A' 0 0 400 90 {
          TEXTWND 'B' 0 0 40 90 'so Unbelievablyincomprehensible' { TEXTWRAP 1 }
          TEXTWND 'C' 200 0 40 8 'low' { TEXTWRAP 1 }
        })",
     "a.tgs:3:23: warning: the text of \"B\" loses letters: \"Unbelievablyincomprehensible\" is 143 pixels "
     "wide in font 0, but a line has 40 [text-clipped]\n"
     "a.tgs:7:24: warning: the text of \"C\" is 13 pixels high in font 0, but its box has 8 "
     "[text-clipped]\n"},
    {"words that are read as icons",
     R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 200 90 {
            COLUMNS 40 40 40; ITEM 'ICONIC' 'Iconic' 'ICON0F'; ITEM 'ICON' 'ICON1F2' 'ICON1 F2'
          }
          TABORDER 'L'
        })",
     "a.tgs:6:6: error: \"ICONIC\" is read as an icon, because it begins with ICON; expected a number after "
     "that, as in ICON0 or ICON0F2 [missing-icon]\n"
     "a.tgs:6:24: error: \"ICON0F\" is read as an icon, because it begins with ICON; expected a number after "
     "that, as in ICON0 or ICON0F2 [missing-icon]\n"
     "a.tgs:7:6: error: \"ICON\" is read as an icon, because it begins with ICON; expected a number after "
     "that, as in ICON0 or ICON0F2 [missing-icon]\n"
     "a.tgs:7:23: error: \"ICON1 F2\" is read as an icon, because it begins with ICON; expected a number "
     "after that, as in ICON0 or ICON0F2 [missing-icon]\n"},
    {"rows that need a scroll bar without a picture",
     R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 200 42 { LISTLOOK 20; ITEM 'a'; ITEM 'b'; ITEM 'c' }; TABORDER 'L'
        })",
     "a.tgs:3:1: error: \"L\" has more rows than fit and creates a scroll bar, but there is no picture "
     "\"uig\\scroll1.bmp\" in the data directory [missing-bitmap]\n"},
    {"arguments that nothing reads",
     R"(WINDOW 'A' 0 0 400 90 {
          LISTBOX 'L' 0 0 400 90 {
            LISTLOOK 20 1 1 1; LISTOPTIONS 1 1 1; LISTFONTS 0 0 0 0 0
            COLUMNS 9 9 9 9 9 9 9 9 9 9 LEFT 9 9 9 9 9 9 9 9 9; COLUMNS 9 9 9; TITLES 'a'
            LISTFIXEDCOLUMNS 19 20 -1; BMPBLITMODE 77
          }
          LISTBOX 'M' 200 0 90 20 { COLUMNS 40; TITLES 'a' 'b' 'c' }
          COMBOBOX 'C' 200 20 90 20 '' { ITEM 'a' 'b' }
          GRAPH 'G' 200 40 90 20 { GRAPHINFO '' '' 1 2 3 4 5 6 }; COMBOMENU 0 0 90 20 ''
          GOTO 'S' 'parts.tgx' 'x'; TABORDER 'L' 'M' 'C'
        }
        == parts.tgs
        FONT 0; SUBROUTINE 'S' { BORDER '' 4 8 })",
     "a.tgs:5:17: warning: LISTLOOK reads 3 arguments; it ignores the rest [no-effect]\n"
     "a.tgs:6:17: warning: LISTOPTIONS reads 2 arguments; it ignores the rest [no-effect]\n"
     "a.tgs:7:19: warning: LISTFONTS reads 4 arguments; it ignores the rest [no-effect]\n"
     "a.tgs:9:11: warning: a list has at most 20 columns; it ignores the rest [no-effect]\n"
     "a.tgs:11:21: warning: \"L\" has 20 columns, counted from 0; there is no column 20 [no-effect]\n"
     "a.tgs:11:24: warning: \"L\" has 20 columns, counted from 0; there is no column -1 [no-effect]\n"
     "a.tgs:12:13: warning: there is no mode 77; 0 is normal, 1 opaque, 2 half, 3 additive [no-effect]\n"
     "a.tgs:17:12: warning: \"M\" has 1 column; a title after the last column is not shown [no-effect]\n"
     "a.tgs:21:10: warning: an item of a combo box is one text; the rest is ignored [no-effect]\n"
     "a.tgs:25:27: warning: GRAPHINFO reads 7 arguments; it ignores the rest [no-effect]\n"
     "a.tgs:27:1: warning: this menu is not inside a combo box, so nothing opens it [no-effect]\n"
     "a.tgs:28:22: warning: GOTO reads 2 arguments; it ignores the rest [no-effect]\n"
     "parts.tgs:1:1: warning: windows are read one by one from a script with subroutines, and this line is "
     "not part of any; move the FONT into a window's block [no-effect]\n"
     "parts.tgs:4:8: error: a border needs a picture, but this name is empty [missing-bitmap]\n"},
    {"frames of extreme sizes",
     R"(CHECKBOX 'B' 0 0 90 9 '' { CHECKBOXSTATE 0 0 -1 -1 'three.bmp' }
        BITMAP 'C' 0 0 9 9 'three.bmp' 32767 10 0 32767)",
     "a.tgs:5:20: error: \"three.bmp\" is 63 x 10 pixels, too small for 32767 frames of 32767 x 10 that "
     "\"C\" uses; a row of them is 1073709056 x 10 [strip-too-small]\n"},
    {"a strip that starts after its last frame",
     R"(WINDOW 'A' 0 0 400 90 {
          BITMAP 'B' 0 0 20 10 'three.bmp' 20 10 0 3 { BMPFRAME 7 }
          BITMAP 'C' 0 20 20 10 'three.bmp' 20 10 0 3 { BMPFRAME 2 }
        })",
     "a.tgs:3:22: error: \"three.bmp\" is 63 x 10 pixels, too small for 8 frames of 20 x 10 that \"B\" uses; "
     "a row of them is 168 x 10 [strip-too-small]\n"},
};

TEST_F(Check, ReportsMistakesInControlsAndLists)
{
    for (const CheckRow& row : wrongScripts) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(row.text), row.findings);
    }
}

} // namespace

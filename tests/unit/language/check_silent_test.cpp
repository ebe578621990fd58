// Correct scripts that resemble mistakes.

#include "tests/unit/language/check_fixture.h"

namespace {

/// Each script is a.tgs, unless another file is named.
const struct {
    const char* name;
    const char* text;
} correctScripts[] = {
    {"a FONT for the windows after it",
     R"(WINDOW 'A' 0 0 90 90 {
          TEXTWND 'B' 0 0 90 20 'b'; FONT 0; TEXTWND 'C' 0 0 90 20 'b'; FONT 0; GOTO 'LABELS'
          BUTTON 'TGX_OK' 0 60 20 20 ''; EASYCLOSE 1; TABORDER 'TGX_OK'
        }
        SUBROUTINE 'LABELS'; TEXTWND 'static' 0 40 90 20 'c')"},
    {"fonts that subroutines add, and a main script that is not reported",
     R"(WINDOW 'A' 0 0 90 90 { FONT 2 }
        == common.tgs
        WINDOW 'B' 0 0 90 90 { LISTBOX 'L' 0 0 90 90 { LISTFONTS 0 2 }; TABORDER 'L' }
        == [script.tgs]
        GOTO 'FONTS' 'parts.tgx'; GOTO 'SMALL' 'parts.tgx'
        == parts.tgs
        SUBROUTINE 'FONTS' { GOTO 'LARGE' }; SUBROUTINE 'LARGE'
        # tgx: allow missing-font
        ADDFONT '' '' 12
        SUBROUTINE 'SMALL' {
          # tgx: allow missing-font
          ADDFONT '' '' 9
        })"},
    {"fonts of a script with subroutines, without a main script",
     R"(# tgx: allow missing-font
        ADDFONT '' '' 12; WINDOW 'A' 0 0 90 90 { FONT 1; GOTO 'S' }; SUBROUTINE 'S'; TEXTRAW 1)"},
    {"fonts that an embedded script may add", "GOTO 'FONTS' '150'; WINDOW 'A' 0 0 90 90 { FONT 3 }"},
    {"a subroutine that may be called as one of an embedded script",
     R"(WINDOW 'A' 0 0 90 90 { GOTO 'PANEL' '150' }
        == parts.tgs
        SUBROUTINE 'PANEL'; TEXTRAW 1)"},
    {"scripts in subfolders, one of them with the same name",
     R"(WINDOW 'A' 0 0 90 90 { GOTO 'S' 'sub\a.tgx'; POINTER 'MAP' 'SUB/maps.tgx' }
        == sub/a.tgs
        SUBROUTINE 'S' { FONT 0; TEXTRAW 1 }
        == sub/maps.tgs
        WINDOW 'MAP' 0 0 90 90 { })"},
    {"windows that a class of the game may make, and positions of its parts",
     R"(SCREEN 'A' 0 0 640 480 '' {
          USERDEF 'MAP' 0 0 0 0 'Map' {
            BUTTON 'TOWN1' 500 0 200 20 ''; WINDOW 'P' 900 0 90 90 { TEXTWND 'T' 0 0 90 24 'text' }
          }
          USERDEF 'ComboMenu' 0 40 90 90 'Menu'; TABORDER 'TOWN1' 'TOWN2'
        })"},
    {"a list of the game's own class that a subroutine fills",
     R"(SCREEN 'A' 0 0 640 480 '' {
          USERDEF 'U' 0 0 90 90 'MyList' { GOTO 'LOOK' 'p.tgx' }; TABORDER 'Y'
        }
        SCREEN 'B' 0 0 640 480 '' { BUTTON 'Z' 0 100 90 20 ''; GOTO 'REST' 'p.tgx'; POINTER 'MAP' }
        == p.tgs
        SUBROUTINE 'LOOK' { LISTLOOK 3; BUTTON 'Y' 0 0 20 20 '' }
        SUBROUTINE 'REST' {
          USERDEF 'V' 0 0 90 90 'MyList' { LISTLOOK 3 }; WINDOW 'MAP' 0 200 90 90; TABORDER 'Z'
        }
        == script.tgs
        FONT 0)"},
    {"a hidden panel outside of the screen",
     R"(SCREEN 'A' 0 0 640 480 '' {
          WINDOW 'P' 640 0 200 480 { VISIBLE 0; BUTTON 'B' 10 10 90 20 '' }; TABORDER 'B'
        })"},
    {"a screen that is larger than the first one",
     "SCREEN 'A' 0 0 320 200 'wide.bmp'; SCREEN 'B' 0 0 640 480 'wide.bmp'"},
    {"lines that override earlier ones only in part",
     R"(WINDOW 'A' 0 0 200 200 {
          LISTBOX 'L' 0 0 90 90 {
            BORDER 'eight.bmp' 4 8 'eight.bmp'; BORDER 'eight.bmp' 2 8; WNDPOS 0 0 90 24
            WNDPOS 40 40 -1 -1
          }
          TABORDER 'L'
        })"},
    {"a strip that is not stretched over its box",
     R"(WINDOW 'A' 0 0 100 100 {
          TEXTWND 'T' 40 40 40 20 'text'
          BITMAP 'static' 0 0 100 100 'wide.bmp' 20 10 1 4 { BMPSTRETCH 0 }
        })"},
    {"a body of one line, followed by a top-level window",
     "SUBROUTINE 'S'; TEXTRAW 1; WINDOW 'A' 0 0 90 90 { GOTO 'S' }"},
    {"windows without blocks in a script that is read as a whole",
     "WINDOW 'A' 0 0 90 90; WINDOW 'B' 0 0 90 90 { }"},
    {"an allowance in an included file for a finding of another script",
     R"(INCLUDE 'd.inc'; WINDOW 'W' 0 0 90 90 { TEXTWND 'T' 0 0 90 NARROW '' }
        == d.inc
        DEFINE NARROW 20
        WINDOW 'D' 0 0 90 90 {
          # tgx: allow no-font
          FONT 0
        }
        == [b.tgs]
        INCLUDE 'd.inc')"},
    {"an allowance in a subroutine that unreported scripts call",
     R"(SUBROUTINE 'S' {
          # tgx: allow wrong-window
          TEXTRAW 1
        }
        == [b.tgs]
        WINDOW 'W' 0 0 90 90 { GOTO 'S' 'a.tgx' })"},
    {"an allowance for unused files, without --unused-files",
     R"(# tgx: allow unused-file
        FONT 0)"},
};

TEST_F(Check, FindsNothingInCorrectScripts)
{
    for (const auto& row : correctScripts) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(scriptLines(row.text)), "");
    }
}

TEST_F(Check, AcceptsUnusedAllowancesIfRulesHaveNotRun)
{
    const std::string text = "# tgx: allow text-clipped\nWINDOW \"A\" 0 0 90 90\nBEGIN\nEND";
    EXPECT_EQ(found(text), "a.tgs:1:14: warning: nothing to allow: the next line has no finding text-clipped "
                           "[unused-allowance]\n");
    EXPECT_EQ(found(text + "\nWINDOW \"B\" 0 0 90 90\nBEGIN"),
              "a.tgs:6:1: error: this block has no END [begin-without-end]\n");
    options.dataDirectory.clear(); // fonts from files are unknown
    EXPECT_EQ(found(text), "");
}

/// In the text of another script, and in a block whose window is reported at its own line.
TEST_F(Check, ReportsACauseBeforeItsConsequences)
{
    EXPECT_EQ(
        found("SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  GOTO \"S\" \"b.tgx\"\n  TABORDER \"OK\"\nEND\n"
              "WINDOW \"QUERYBOX\" 0 0 200 100\nBEGIN\n  GOTO \"S\" \"c.tgx\"\nEND\n== b.tgs\nSUBROUTINE "
              "\"S\"\n"
              "BEGIN\n  BUTTONLOOP 1 1 1 1\n  BUTTON \"OK\" 0 0 90 24 \"\"\nEND"),
        "a.tgs:8:12: error: no script \"c.tgx\"; did you mean \"a.tgx\"? [missing-script]\n"
        "a.tgs:6:1: warning: no button of \"QUERYBOX\" closes it; TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO and "
        "TGX_CLOSE do [no-close-button]\n"
        "a.tgs:6:1: warning: \"QUERYBOX\" has no window \"MESSAGEBOXTITLE\", so that text is not shown "
        "[missing-box-part]\n"
        "b.tgs:3:3: error: BUTTONLOOP acts on a button, a combo box or a radio button, but \"A\" is a screen "
        "[wrong-window]\n"
        "a.tgs:4:12: error: no window \"OK\" in \"A\" at this point [missing-window]\n");
}

} // namespace

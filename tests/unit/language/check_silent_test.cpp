// Correct scripts that resemble mistakes.

#include "tests/unit/language/check_fixture.h"

namespace {

/// Each script is a.tgs, unless another file is named.
const struct {
    const char* name;
    const char* text;
} correctScripts[] = {
    {"a FONT for the windows after it",
     R"(WINDOW "A" 0 0 90 90
BEGIN
  TEXTWND "B" 0 0 90 20 "b"
  FONT 0
  TEXTWND "C" 0 0 90 20 "b"
  FONT 0
  GOTO "LABELS"
  BUTTON "TGX_OK" 0 60 20 20 ""
  EASYCLOSE 1
  TABORDER "TGX_OK"
END
SUBROUTINE "LABELS"
TEXTWND "static" 0 40 90 20 "c")"},
    {"fonts that subroutines add, and a main script that is not reported",
     R"(WINDOW "A" 0 0 90 90
BEGIN
  FONT 2
END
== common.tgs
WINDOW "B" 0 0 90 90
BEGIN
  LISTBOX "L" 0 0 90 90
  BEGIN
    LISTFONTS 0 2
  END
  TABORDER "L"
END
== [script.tgs]
GOTO "FONTS" "parts.tgx"
GOTO "SMALL" "parts.tgx"
== parts.tgs
SUBROUTINE "FONTS"
BEGIN
  GOTO "LARGE"
END
SUBROUTINE "LARGE"
# tgx: allow missing-font
ADDFONT "" "" 12
SUBROUTINE "SMALL"
BEGIN
  # tgx: allow missing-font
  ADDFONT "" "" 9
END)"},
    {"fonts of a script with subroutines, without a main script",
     R"(# tgx: allow missing-font
ADDFONT "" "" 12
WINDOW "A" 0 0 90 90
BEGIN
  FONT 1
  GOTO "S"
END
SUBROUTINE "S"
TEXTRAW 1)"},
    {"fonts that an embedded script may add",
     R"(GOTO "FONTS" "150"
WINDOW "A" 0 0 90 90
BEGIN
  FONT 3
END)"},
    {"a subroutine that may be called as one of an embedded script",
     R"(WINDOW "A" 0 0 90 90
BEGIN
  GOTO "PANEL" "150"
END
== parts.tgs
SUBROUTINE "PANEL"
TEXTRAW 1)"},
    {"scripts in subfolders, one of them with the same name",
     R"(WINDOW "A" 0 0 90 90
BEGIN
  GOTO "S" "sub\a.tgx"
  POINTER "MAP" "SUB/maps.tgx"
END
== sub/a.tgs
SUBROUTINE "S"
BEGIN
  FONT 0
  TEXTRAW 1
END
== sub/maps.tgs
WINDOW "MAP" 0 0 90 90
BEGIN
END)"},
    {"windows that a class of the game may make, and positions of its parts",
     R"(SCREEN "A" 0 0 640 480 ""
BEGIN
  USERDEF "MAP" 0 0 0 0 "Map"
  BEGIN
    BUTTON "TOWN1" 500 0 200 20 ""
    WINDOW "P" 900 0 90 90
    BEGIN
      TEXTWND "T" 0 0 90 24 "text"
    END
  END
  USERDEF "ComboMenu" 0 40 90 90 "Menu"
  TABORDER "TOWN1" "TOWN2"
END)"},
    {"a list of the game's own class that a subroutine fills",
     R"(SCREEN "A" 0 0 640 480 ""
BEGIN
  USERDEF "U" 0 0 90 90 "MyList"
  BEGIN
    GOTO "LOOK" "p.tgx"
  END
  TABORDER "Y"
END
SCREEN "B" 0 0 640 480 ""
BEGIN
  BUTTON "Z" 0 100 90 20 ""
  GOTO "REST" "p.tgx"
  POINTER "MAP"
END
== p.tgs
SUBROUTINE "LOOK"
BEGIN
  LISTLOOK 3
  BUTTON "Y" 0 0 20 20 ""
END
SUBROUTINE "REST"
BEGIN
  USERDEF "V" 0 0 90 90 "MyList"
  BEGIN
    LISTLOOK 3
  END
  WINDOW "MAP" 0 200 90 90
  TABORDER "Z"
END
== script.tgs
FONT 0)"},
    {"a hidden panel outside of the screen",
     R"(SCREEN "A" 0 0 640 480 ""
BEGIN
  WINDOW "P" 640 0 200 480
  BEGIN
    VISIBLE 0
    BUTTON "B" 10 10 90 20 ""
  END
  TABORDER "B"
END)"},
    {"a screen that is larger than the first one",
     R"(SCREEN "A" 0 0 320 200 "wide.bmp"
SCREEN "B" 0 0 640 480 "wide.bmp")"},
    {"lines that override earlier ones only in part",
     R"(WINDOW "A" 0 0 200 200
BEGIN
  LISTBOX "L" 0 0 90 90
  BEGIN
    BORDER "eight.bmp" 4 8 "eight.bmp"
    BORDER "eight.bmp" 2 8
    WNDPOS 0 0 90 24
    WNDPOS 40 40 -1 -1
  END
  TABORDER "L"
END)"},
    {"a strip that is not stretched over its box",
     R"(WINDOW "A" 0 0 100 100
BEGIN
  TEXTWND "T" 40 40 40 20 "text"
  BITMAP "static" 0 0 100 100 "wide.bmp" 20 10 1 4
  BEGIN
    BMPSTRETCH 0
  END
END)"},
    {"a body of one line, followed by a top-level window",
     R"(SUBROUTINE "S"
TEXTRAW 1
WINDOW "A" 0 0 90 90
BEGIN
  GOTO "S"
END)"},
    {"windows without blocks in a script that is read as a whole",
     R"(WINDOW "A" 0 0 90 90
WINDOW "B" 0 0 90 90
BEGIN
END)"},
    {"an allowance in an included file for a finding of another script",
     R"(INCLUDE "d.inc"
WINDOW "W" 0 0 90 90
BEGIN
  TEXTWND "T" 0 0 90 NARROW ""
END
== d.inc
DEFINE NARROW 20
WINDOW "D" 0 0 90 90
BEGIN
  # tgx: allow no-font
  FONT 0
END
== [b.tgs]
INCLUDE "d.inc")"},
    {"an allowance in a subroutine that unreported scripts call",
     R"(SUBROUTINE "S"
BEGIN
  # tgx: allow wrong-window
  TEXTRAW 1
END
== [b.tgs]
WINDOW "W" 0 0 90 90
BEGIN
  GOTO "S" "a.tgx"
END)"},
    {"an allowance for unused files, without --unused-files",
     R"(# tgx: allow unused-file
FONT 0)"},
};

TEST_F(Check, FindsNothingInCorrectScripts)
{
    for (const auto& row : correctScripts) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(found(row.text), "");
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

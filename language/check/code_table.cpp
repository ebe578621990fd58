// The table of findings. An error makes a line fail or shows nonsense; a warning is probably a mistake.

#include "language/check/codes.h"

namespace script_check {

namespace {

constexpr auto error = script_text::Diagnostic::Error;
constexpr auto warning = script_text::Diagnostic::Warning;

constexpr Code rows[] = {
    // The text.
    {"syntax", error, "a line that cannot be read",
     "The text has a character, number or string that is none, or a line that stands where it cannot. The "
     "message says what was expected.",
     R"(TEXT "no end)", R"(TEXT "an end")"},
    {"unknown-keyword", error, "a keyword that the language does not have",
     "Keywords stand in capitals. A compiled script that has such a line was made by another tool, or is "
     "damaged.",
     "LISTBOXX \"CARGO\" 0 0 200 100", "LISTBOX \"CARGO\" 0 0 200 100"},
    {"unknown-name", error, "a name that no DEFINE gives a value",
     "A word among the arguments is LEFT, CENTRE or RIGHT, or a name that a DEFINE above has introduced. "
     "Strings stand in quotes.",
     "BMPFILE ship.bmp", "BMPFILE \"ship.bmp\""},
    {"define", error, "a DEFINE that cannot be",
     "A name has letters, digits and _, is no keyword, and has one meaning. Its value is a number or a "
     "string.",
     "DEFINE TEXT 3", "DEFINE TEXT_FONT 3"},
    {"include", error, "an INCLUDE that cannot be",
     "The file is looked for from the folder of the one that names it. Files may not include themselves, "
     "also not by way of others.",
     "INCLUDE buttons", "INCLUDE \"buttons.tgs\""},
    {"unfinished", error, "a last line without an end",
     "The toolkit's reader drops it. The compiled script was cut off, or something was appended to it.", "",
     ""},
    {"argument-count", error, "too many or too few arguments",
     "The line fails when it is read: it shows a message and does nothing.", "WINDOW \"PANEL\" 10 10 300",
     "WINDOW \"PANEL\" 10 10 300 200"},
    {"argument-kind", error, "a string where a number is expected, or the like",
     "The toolkit does not ask: a string where a number stands reads as 0, a number where a text stands as "
     "an empty text. In COLUMNS a word stands behind the width that it belongs to.",
     "FONT \"2\"", "FONT 2"},
    {"too-many-arguments", error, "a line of more than 30 parts",
     "The keyword and 29 arguments are what a line holds. Statements that append, such as TABORDER, ITEM and "
     "LISTICONS, can stand several times.",
     "", ""},
    // Blocks.
    {"end-without-begin", error, "an END without a BEGIN",
     "It has no effect where the script is read from top to bottom, and ends the read of a single window too "
     "early. Most often a BEGIN is missing above it.",
     "WINDOW \"A\" 0 0 10 10\nEND", "WINDOW \"A\" 0 0 10 10\nBEGIN\nEND"},
    {"begin-without-end", error, "a BEGIN without an END",
     "All that follows lands in that block. Where the indentation tells which block lost its END, the "
     "finding stands there.",
     "WINDOW \"A\" 0 0 10 10\nBEGIN", "WINDOW \"A\" 0 0 10 10\nBEGIN\nEND"},
    {"too-deep", error, "a statement inside too many blocks",
     "Windows and attributes may stand inside 19 blocks, ADDFONT and GOTO inside 20. Deeper lines fail. A "
     "subroutine counts from its own body.",
     "", ""},
    {"nested-subroutine", error, "a SUBROUTINE inside a block",
     "The line fails when the block is read, and its body is carried out right there.",
     "WINDOW \"A\" 0 0 10 10\nBEGIN\n  SUBROUTINE \"S\"\n  BEGIN\n  END\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 10 10\nBEGIN\n  GOTO \"S\"\nEND"},
    {"subroutine-in-main", error, "a SUBROUTINE in the main script",
     "The game reads script.tgx from top to bottom. There a SUBROUTINE line fails with a message, and its "
     "body is carried out on the root of all windows. Subroutines belong into a script of their own, which "
     "GOTO names.",
     "# script.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\n  BMPFILE \"paper.bmp\"\nEND",
     "# parts.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\n  BMPFILE \"paper.bmp\"\nEND"},
    // Subroutines and other scripts.
    {"missing-script", error, "a script that is not there",
     "GOTO and POINTER name scripts as they lie in the folder UIG, with the ending .tgx. A number stands for "
     "an embedded script, of which nothing is known here.",
     "GOTO \"PANEL\" \"parts.tgs\"", "GOTO \"PANEL\" \"parts.tgx\""},
    {"missing-subroutine", error, "a subroutine that its script does not have",
     "Names of subroutines are compared exactly. Without a second argument GOTO looks in the script that it "
     "stands in.",
     "GOTO \"panel\"\nSUBROUTINE \"PANEL\"\nBEGIN\nEND", "GOTO \"PANEL\"\nSUBROUTINE \"PANEL\"\nBEGIN\nEND"},
    {"subroutine-ring", error, "a subroutine that reaches itself",
     "It would call itself without end; the toolkit stops it 64 deep, and the line fails.",
     "SUBROUTINE \"A\"\nBEGIN\n  GOTO \"A\"\nEND", "SUBROUTINE \"A\"\nBEGIN\nEND"},
    // Lines that fail when they are read.
    {"wrong-window", error, "a statement on the wrong kind of window",
     "Statements of lists, buttons, combo boxes and graphs stand in the block of such a window. Behind the "
     "window's line without a BEGIN they act on the window around it.",
     "WINDOW \"A\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\nEND",
     "LISTBOX \"A\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\nEND"},
    {"missing-window", error, "a tab list that names a window which does not exist at that point",
     "TABORDER, TABLIST1 and TABLIST2 look below the window in whose block they stand, when they are read. "
     "So they stand at the end of the block, behind the windows that they name.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TABORDER \"OK\"\n  BUTTON \"OK\" 10 10 80 24 \"OK\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"OK\" 10 10 80 24 \"OK\"\n  TABORDER \"OK\"\nEND"},
    {"missing-pointer", error, "a POINTER to a window that does not exist at that point",
     "POINTER shows a window that there is already, or that stands at the top level of the script that it "
     "names. Without a script that is the main one.",
     "POINTER \"MAP\"", "POINTER \"MAP\" \"panels.tgx\""},
    {"pointer-inside", error, "a POINTER to a window from inside itself",
     "A window cannot be shown in itself; the line fails.",
     "WINDOW \"MAP\" 0 0 100 100\nBEGIN\n  POINTER \"MAP\"\nEND",
     "WINDOW \"MAP\" 0 0 100 100\nBEGIN\nEND\nWINDOW \"DESK\" 0 0 200 200\nBEGIN\n  POINTER \"MAP\"\nEND"},
    {"no-font", error, "a font number that no ADDFONT fills",
     "0 is the built-in font, 1 the first ADDFONT of the main script, and so on. An ADDFONT has to be read "
     "before. For fonts that the game adds in code, say how many with --fonts.",
     "FONT 1", "ADDFONT \"fonts\\Serif.ttf\" \"bold\" 20\nFONT 1"},
    {"missing-column", error, "a row with more cells than the list has columns",
     "The line fails; the cells in front are there. Columns come before rows: a list that gets a row first "
     "has one column of its own width.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  ITEM \"a\" \"b\"\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  COLUMNS 40 40\n  ITEM \"a\" \"b\"\nEND"},
    {"missing-icon", error, "an icon that the list does not have",
     "ICON0 is the first file of LISTICONS, ICON0F2 its frame 2. A cell with an icon that is not there ends "
     "each frame in an exception. Every cell that begins with ICON in capitals is an icon, words such as "
     "ICONIC too.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  LISTICONS \"a.bmp\"\n  ITEM \"ICON1\"\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  LISTICONS \"a.bmp\"\n  ITEM \"ICON0\"\nEND"},
    {"budget", error, "a limit of the toolkit is passed",
     "Lines that a read carries out, subroutines inside subroutines, members of a radio group, entries of "
     "the font table and levels of windows are limited, so that a bad script cannot hang the game.",
     "", ""},
    {"line-fails", error, "a line that fails for another reason",
     "The toolkit refuses it when it is read. If no other finding explains why, that is worth a report.", "",
     ""},
    // Pictures, fonts, strips.
    {"missing-bitmap", error, "a picture that is not there or cannot be read",
     "Pictures are named from the data directory. Upper and lower case do not matter, nor do \\ and /. BMP, "
     "PNG, JPEG, GIF and PCX are read, up to 16384 pixels a side and 64 million in all.",
     "", ""},
    {"missing-font", error, "a font that is not there or cannot be read",
     "The built-in font takes its place. The size is 1 to 96 pixels.", "", ""},
    {"strip-too-small", error, "a strip that is smaller than its frames",
     "Behind each frame of a strip lies 1 pixel that is not shown. A strip that is more than two frames wide "
     "goes on in rows. A button has a frame each for normal, hot and pressed if nothing else is said; a "
     "scroll bar has six, a border eight pieces.",
     "", ""},
    {"tab-pages", error, "a tab control whose tabs and pages do not go together",
     "In its block stand the tabs, one radio group, and as many pages in the same order, all tabs in front "
     "or all pages in front. A button that stands straight in it counts as a tab when it is clicked, and no "
     "page belongs to it: it stands in a page, or outside.",
     "TABCONTROL \"T\" 0 0 200 200\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"A\"\n  RADIOBUTTON \"B\" 50 0 50 "
     "20 \"B\"\n  WINDOW \"PAGE_A\" 0 20 200 180\nEND",
     "TABCONTROL \"T\" 0 0 200 200\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"A\"\n  RADIOBUTTON \"B\" 50 0 50 "
     "20 \"B\"\n  WINDOW \"PAGE_A\" 0 20 200 180\n  WINDOW \"PAGE_B\" 0 20 200 180\nEND"},

    // Blocks.
    {"block-without-window", warning, "a block that belongs to no window",
     "BEGIN opens the block of the window that the statement in front has made. Behind an attribute, or at "
     "the start, there is none, and the lines of the block act on the root of all windows.",
     "WINDOW \"A\" 0 0 10 10\nFONT 1\nBEGIN\n  TEXT \"a\"\nEND",
     "WINDOW \"A\" 0 0 10 10\nBEGIN\n  FONT 1\n  TEXT \"a\"\nEND"},
    {"outside-block", warning, "an attribute outside of all blocks",
     "It changes the root of all windows. A FONT at the top of a script does so with good reason: windows "
     "that come later take it.",
     "WINDOW \"A\" 0 0 10 10\nTEXT \"a\"", "WINDOW \"A\" 0 0 10 10\nBEGIN\n  TEXT \"a\"\nEND"},
    {"attribute-on-parent", warning, "an attribute behind a window's line that acts on the window around it",
     "What is meant for the window in front of it stands in that window's own block.",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"B\" 0 0 90 20 \"b\"\n  JUSTIFY CENTRE\nEND",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"B\" 0 0 90 20 \"b\"\n  BEGIN\n    JUSTIFY CENTRE\n  "
     "END\nEND"},
    {"nested-screen", warning, "a SCREEN inside a block",
     "A screen stands at the top level wherever its line stands; most often an END is missing in front.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  SCREEN \"B\" 0 0 640 480 \"\"\nEND",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\nEND\nSCREEN \"B\" 0 0 640 480 \"\""},
    // Names.
    {"duplicate-id", warning, "two windows of one id in one screen or popup",
     "Whoever looks for the id, the game or a tab list, finds the first one. Decoration bears the id "
     "\"static\", which is none. Upper and lower case do not matter.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T\" 0 0 90 20 \"a\"\n  TEXTWND \"T\" 0 20 90 20 "
     "\"b\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T1\" 0 0 90 20 \"a\"\n  TEXTWND \"T2\" 0 20 90 20 "
     "\"b\"\nEND"},
    {"name-taken", warning, "a line that bears the name of a top-level window before its definition",
     "A screen or popup that is asked for is read from the first line whose first argument is its name, "
     "whatever that line is: a button of that name, or a POINTER, if it stands further up.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"B\" 0 0 80 24 \"b\"\nEND\nSCREEN \"B\" 0 0 640 480 "
     "\"\"",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO_B\" 0 0 80 24 \"b\"\nEND\nSCREEN \"B\" 0 0 640 480 "
     "\"\""},
    {"reserved-id", warning, "a reserved id on a window that is not meant for it",
     "A click on TGX_BACK, TGX_CANCEL, TGX_CLOSE or TGX_EXIT leaves the screen, on TGX_OK, TGX_YES or TGX_NO "
     "closes the box, whatever kind of window bears the id. Controls look for their parts by the ids "
     "CheckboxState, RadioState, ComboMenu, ComboNext and ComboPrev.",
     "BITMAP \"TGX_BACK\" 0 0 80 24 \"arrow.bmp\"", "BITMAP \"static\" 0 0 80 24 \"arrow.bmp\""},
    {"duplicate-subroutine", warning, "a second subroutine of one name",
     "GOTO finds the first one; this one never runs.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nSUBROUTINE \"S\"\nBEGIN\nEND", "SUBROUTINE \"S\"\nBEGIN\nEND"},
    {"empty-subroutine", warning, "a subroutine without a body",
     "The body is the statement behind the SUBROUTINE line. Where another SUBROUTINE line follows, the body "
     "of that one is carried out.",
     "SUBROUTINE \"A\"\nSUBROUTINE \"B\"\nBEGIN\nEND",
     "SUBROUTINE \"A\"\nBEGIN\nEND\nSUBROUTINE \"B\"\nBEGIN\nEND"},
    {"behind-body", warning, "lines behind the body of a subroutine that look like part of it",
     "The body is one statement: a line, or a block from BEGIN to END. A block behind a window's line is a "
     "second statement, and never runs.",
     "SUBROUTINE \"PANEL\"\nWINDOW \"BOX\" 0 0 90 90\nBEGIN\n  TEXT \"a\"\nEND",
     "SUBROUTINE \"PANEL\"\nBEGIN\n  WINDOW \"BOX\" 0 0 90 90\n  BEGIN\n    TEXT \"a\"\n  END\nEND"},
    {"without-block", warning, "a window without a block in a script of which single windows are read",
     "The read of a window ends with its block. Without one it carries out the next line as well, whatever "
     "that "
     "is: it makes another window, which is empty then and found by a later POINTER.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 90 90\nWINDOW \"B\" 0 0 90 90\nBEGIN\n  GOTO "
     "\"S\"\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 90 90\nBEGIN\nEND\nWINDOW \"B\" 0 0 90 "
     "90\nBEGIN\n  GOTO \"S\"\nEND"},
    // Controls.
    {"radio-group", warning, "a radio group that is broken by a window between",
     "Radio buttons are one group when their lines follow one another. Any window between, a label say, "
     "parts them: both halves then have a selection of their own. Blocks of the buttons do no harm.",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"a\"\n  TEXTWND \"static\" 50 0 40 20 "
     "\"x\"\n  RADIOBUTTON \"B\" 0 20 50 20 \"b\"\nEND",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"a\"\n  RADIOBUTTON \"B\" 0 20 50 20 "
     "\"b\"\n  TEXTWND \"static\" 50 0 40 20 \"x\"\nEND"},
    {"unreachable", warning, "a control that no key reaches",
     "Tab and the arrows to the left and right walk the TABORDER of the screen or popup itself; those of "
     "windows inside are not asked. Insert and Delete go to what TABLIST1 begins with, Home and End to what "
     "TABLIST2 begins with, if that is a combo box or a radio button. A radio group counts as a whole, and "
     "what Esc points at as reached. A window that a POINTER shows has its stops where it is shown.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"A\" 0 0 80 24 \"a\"\n  BUTTON \"B\" 0 24 80 24 "
     "\"b\"\n  TABORDER \"A\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"A\" 0 0 80 24 \"a\"\n  BUTTON \"B\" 0 24 80 24 "
     "\"b\"\n  TABORDER \"A\" \"B\"\nEND"},
    // Looks.
    {"text-clipped", warning, "a text that does not fit its box in its font",
     "On one line a text is cut at the right. Wrapped it loses the lines that have no room, and a word that "
     "is wider than the box loses a letter at each place where it is cut. Letters higher than the box stick "
     "out of it. Make the box larger, the font smaller or the text shorter, or let it wrap with TEXTWRAP 1.",
     "TEXTWND \"T\" 0 0 20 24 \"a long text\"", "TEXTWND \"T\" 0 0 200 24 \"a long text\""},
    {"sticks-out", warning, "a window that sticks out of the one it stands in",
     "A part of a control that lies outside of its parent takes no click, and a text there looks lost. A "
     "picture may stick out as it likes, unless it lies outside altogether.",
     "WINDOW \"W\" 0 0 50 50\nBEGIN\n  BUTTON \"B\" 10 10 80 24 \"b\"\nEND",
     "WINDOW \"W\" 0 0 100 50\nBEGIN\n  BUTTON \"B\" 10 10 80 24 \"b\"\nEND"},
    {"covered", warning, "a window that lies hidden behind another",
     "What stands later in the script lies on top. A control wholly behind another window gets no clicks, "
     "even where it can be seen; a text or picture behind an opaque picture is not seen. Put it behind the "
     "other in the script, or disable that one (ENABLED 0) so that it lets clicks through.",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  BUTTON \"B\" 0 0 80 24 \"\"\n  TEXTWND \"T\" 0 0 80 24 \"b\"\nEND",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  TEXTWND \"T\" 0 0 80 24 \"b\"\n  BUTTON \"B\" 0 0 80 24 \"\"\nEND"},
    {"zero-size", warning, "a border, strip or control of size 0",
     "Border pieces of size 0 are not drawn, and with a border width of 0 the picture lies under the pieces. "
     "A strip of several frames needs the size of one, a strip of 0 frames is not shown. A control of size 0 "
     "cannot be hit.",
     "BORDER \"frame.bmp\" 4 0", "BORDER \"frame.bmp\" 4 8"},
    {"line-break", warning, "a line break in a text of one line",
     "A text that does not wrap is drawn on one line, and the mark \\n shows as it is written.",
     "TEXTWND \"T\" 0 0 200 48 \"one\\ntwo\"",
     "TEXTWND \"T\" 0 0 200 48 \"one\\ntwo\"\nBEGIN\n  TEXTWRAP 1\nEND"},
    {"hidden-last-row", warning, "a list whose last row never shows",
     "A row is drawn only when a pixel is left below it. In a list whose height is a multiple of its row "
     "height, borders aside, the last row can be clicked and is not seen. Make the list 1 pixel higher.",
     "LISTBOX \"L\" 0 0 100 60\nBEGIN\n  COLUMNS 80\n  LISTLOOK 20\nEND",
     "LISTBOX \"L\" 0 0 100 61\nBEGIN\n  COLUMNS 80\n  LISTLOOK 20\nEND"},
    {"wide-columns", warning, "columns that are wider than their list",
     "A gap of 10 pixels stands in front of each column. What goes beyond the list is cut.",
     "LISTBOX \"L\" 0 0 100 61\nBEGIN\n  COLUMNS 60 60\n  LISTLOOK 20\nEND",
     "LISTBOX \"L\" 0 0 140 61\nBEGIN\n  COLUMNS 60 60\n  LISTLOOK 20\nEND"},
    {"menu-off-screen", warning, "a combo box whose menu leaves the screen below",
     "The menu is cut at the lower edge of the screen, and cannot be scrolled: the items that are cut cannot "
     "be chosen with the mouse. Without COMBOBELOW it opens above the box.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  COMBOBOX \"C\" 0 440 100 24 \"\"\n  BEGIN\n    COMBOBELOW 1\n  "
     "  ITEM "
     "\"a\"\n    ITEM \"b\"\n    ITEM \"c\"\n  END\n  TABORDER \"C\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  COMBOBOX \"C\" 0 440 100 24 \"\"\n  BEGIN\n    ITEM \"a\"\n    "
     "ITEM "
     "\"b\"\n    ITEM \"c\"\n  END\n  TABORDER \"C\"\nEND"},
    {"font-style", warning, "a word in a font's style that means nothing",
     "A style is made of the words bold, italic and shadow and of a colour, # and six hexadecimal digits. "
     "Others are passed over.",
     "ADDFONT \"a.ttf\" \"bald\" 12 0", "ADDFONT \"a.ttf\" \"bold\" 12 0"},
    // Screens and boxes.
    {"unnamed-screen", warning, "a screen without a name",
     "A screen is asked for by its name. The first one opens without, but no other can lead back to it.",
     "SCREEN \"\" 0 0 640 480 \"\"", "SCREEN \"MENU\" 0 0 640 480 \"\""},
    {"class-name", warning, "a screen with the name of a class of windows",
     "A game's factory is asked for a screen by its name. Where it makes windows of that name for USERDEF, "
     "the "
     "screen is refused with \"cannot make screen\", and a plain one takes its place.",
     "SCREEN \"Ship\" 0 0 640 480 \"\"\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 9 9 \"Ship\"\nEND",
     "SCREEN \"SHIPS\" 0 0 640 480 \"\"\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 9 9 "
     "\"Ship\"\nEND"},
    {"no-way-out", warning, "a screen that nothing leaves",
     "Nothing in it can be clicked, unlike in a screen before it: only the game can lead on.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO\" 0 0 90 20 \"\"\n  TABORDER \"GO\"\nEND\nSCREEN "
     "\"B\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T\" 0 0 90 20 "
     "\"b\"\nEND",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO\" 0 0 90 20 \"\"\n  TABORDER \"GO\"\nEND\nSCREEN "
     "\"B\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"TGX_BACK\" 0 0 90 20 "
     "\"b\"\n  TABORDER \"TGX_BACK\"\nEND"},
    {"stuck-box", warning, "a message box that no button closes",
     "The base closes a box at a click on TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO or TGX_CLOSE.",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"OK\" 0 70 80 24 \"OK\"\n  TABORDER \"OK\"\nEND",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER "
     "\"TGX_OK\"\nEND"},
    {"box-part", warning, "a message box without a window for its text or title",
     "messageBox and queryBox write into MESSAGEBOXTITLE and MESSAGEBOXTEXT.",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITEL\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER \"TGX_OK\"\nEND",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER "
     "\"TGX_OK\"\nEND"},
    // Without effect, or unused.
    {"no-effect", warning, "a statement without effect",
     "Another line undoes it, the window ignores it, it has no arguments where it needs some, or arguments "
     "that are not read. BMPFILE takes back the frame size of a BMPINFO in front of it. Out of a script with "
     "subroutines windows are read one by one, and a FONT outside of them is passed over.",
     "TEXTWND \"T\" 0 0 90 24 \"\"\nBEGIN\n  TEXT \"a\"\n  TEXT \"b\"\nEND",
     "TEXTWND \"T\" 0 0 90 24 \"\"\nBEGIN\n  TEXT \"b\"\nEND"},
    {"late-columns", warning, "columns that come behind rows",
     "The first row has given the list a column of its own width; these columns stand behind it, and the "
     "rows that there are have no cells in them.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  ITEM \"a\"\n  COLUMNS 50 50\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\n  ITEM \"a\"\nEND"},
    {"unused-define", warning, "a DEFINE that nothing uses",
     "Only names that the script itself defines are looked at, not those of files that it includes.",
     "DEFINE WIDTH 90\nFONT 1", "DEFINE NUMBER 1\nFONT NUMBER"},
    {"unused-subroutine", warning, "a subroutine that no GOTO names",
     "All scripts of the folder are looked at. If the game runs it in code, allow it.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO "
     "\"S\"\nEND"},
    {"unused-script", warning, "a script that holds only subroutines, which no GOTO names",
     "All scripts of the folder are looked at.", "SUBROUTINE \"S\"\nBEGIN\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO \"S\"\nEND"},
    {"unused-file", warning, "a picture or font that no script names",
     "Looked for with --unused-files only, for the game may load it in code. Told at the first line of the "
     "main "
     "script, or of the first one; an allowance there is for all of them.",
     "", ""},
    // Allowances.
    {"unknown-code", warning, "an allowance for a code that there is not",
     "tgx check --explain lists all codes.", "# tgx: allow text-clip\nFONT 1",
     "# tgx: allow text-clipped\nFONT 1"},
    {"unused-allowance", warning, "an allowance that silences nothing",
     "The line behind it has no such finding, or not any more; or it stands behind a line, where it is for "
     "none. An error "
     "that keeps the script from being built cannot be allowed.",
     "# tgx: allow sticks-out\nFONT 1", "FONT 1"},
};

} // namespace

std::span<const Code> codes()
{
    return rows;
}

} // namespace script_check

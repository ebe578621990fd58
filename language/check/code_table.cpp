// The table of findings. An error makes a line fail or shows nonsense; a warning is probably a mistake.

#include "language/check/codes.h"

namespace tgx::script_check {

namespace {

constexpr auto error = script_text::Diagnostic::Error;
constexpr auto warning = script_text::Diagnostic::Warning;

constexpr Code rows[] = {
    // The text.
    {"syntax", error, "a line that cannot be read",
     "The text contains an invalid character, number or string, or a line in the wrong place. The message "
     "says what was expected.",
     R"(TEXT "no end)", R"(TEXT "an end")"},
    {"unknown-keyword", error, "a keyword that the language does not have",
     "Keywords are written in capitals. A compiled script with such a line was made by another tool, or is "
     "damaged.",
     "LISTBOXX \"CARGO\" 0 0 200 100", "LISTBOX \"CARGO\" 0 0 200 100"},
    {"unknown-name", error, "a name that no DEFINE defines",
     "A word among the arguments must be LEFT, CENTRE, RIGHT or a name from an earlier DEFINE. Strings need "
     "quotes.",
     "BMPFILE ship.bmp", "BMPFILE \"ship.bmp\""},
    {"define", error, "an invalid DEFINE",
     "A name consists of letters, digits and _, is not a keyword, and is defined once. Its value is a number "
     "or a string.",
     "DEFINE TEXT 3", "DEFINE TEXT_FONT 3"},
    {"include", error, "an invalid INCLUDE",
     "The path is relative to the folder of the file with the INCLUDE. A file must not include itself, "
     "directly or through others.",
     "INCLUDE buttons", "INCLUDE \"buttons.tgs\""},
    {"unfinished", error, "an incomplete last line",
     "The toolkit ignores it. The compiled script was cut off, or something was appended to it.", "", ""},
    {"argument-count", error, "too many or too few arguments",
     "The line fails when the toolkit reads it: it shows a message and does nothing else.",
     "WINDOW \"PANEL\" 10 10 300", "WINDOW \"PANEL\" 10 10 300 200"},
    {"argument-kind", error, "an argument of the wrong kind",
     "The toolkit does not check this: it reads a string as the number 0, and a number as an empty text. In "
     "COLUMNS a word must follow the width that it applies to.",
     "FONT \"2\"", "FONT 2"},
    {"too-many-arguments", error, "a line with too many arguments",
     "A line can have a keyword and 29 arguments. Statements that append, such as TABORDER, ITEM and "
     "LISTICONS, can be used several times.",
     "", ""},
    // Blocks.
    {"end-without-begin", error, "an END without a BEGIN",
     "It has no effect if the script is read from top to bottom, but ends the reading of a single window too "
     "early. Usually a BEGIN is missing above it.",
     "WINDOW \"A\" 0 0 10 10\nEND", "WINDOW \"A\" 0 0 10 10\nBEGIN\nEND"},
    {"begin-without-end", error, "a BEGIN without an END",
     "Everything that follows becomes part of that block. If the indentation shows which block is missing "
     "its END, the finding is reported there.",
     "WINDOW \"A\" 0 0 10 10\nBEGIN", "WINDOW \"A\" 0 0 10 10\nBEGIN\nEND"},
    {"too-deep", error, "a statement inside too many blocks",
     "Windows and attributes can be inside at most 19 blocks, ADDFONT and GOTO inside 20. Deeper lines fail. "
     "In a subroutine, the depth is counted from its own body.",
     "", ""},
    {"nested-subroutine", error, "a SUBROUTINE inside a block",
     "The line fails when the block is read, and its body is executed right there.",
     "WINDOW \"A\" 0 0 10 10\nBEGIN\n  SUBROUTINE \"S\"\n  BEGIN\n  END\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 10 10\nBEGIN\n  GOTO \"S\"\nEND"},
    {"subroutine-in-main", error, "a SUBROUTINE in the main script",
     "The game reads script.tgx from top to bottom. A SUBROUTINE line there fails with a message, and its "
     "body is executed on the root of all windows. Put subroutines into a script of their own and name that "
     "script in GOTO.",
     "# script.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\n  BMPFILE \"paper.bmp\"\nEND",
     "# parts.tgs\nSUBROUTINE \"PANEL\"\nBEGIN\n  BMPFILE \"paper.bmp\"\nEND"},
    // Subroutines and other scripts.
    {"missing-script", error, "a script that does not exist",
     "GOTO and POINTER name scripts by their path in the folder UIG, with the extension .tgx. A number "
     "refers to an embedded script, which is not checked.",
     "GOTO \"PANEL\" \"parts.tgs\"", "GOTO \"PANEL\" \"parts.tgx\""},
    {"missing-subroutine", error, "a subroutine that does not exist in its script",
     "Names of subroutines are case-sensitive. Without a second argument, GOTO looks in its own script.",
     "GOTO \"panel\"\nSUBROUTINE \"PANEL\"\nBEGIN\nEND", "GOTO \"PANEL\"\nSUBROUTINE \"PANEL\"\nBEGIN\nEND"},
    {"recursive-subroutine", error, "a subroutine that calls itself",
     "It would call itself endlessly. The toolkit stops at 64 nested calls, and the line fails.",
     "SUBROUTINE \"A\"\nBEGIN\n  GOTO \"A\"\nEND", "SUBROUTINE \"A\"\nBEGIN\nEND"},
    // Lines that fail when they are read.
    {"wrong-window", error, "a statement on the wrong kind of window",
     "Statements for lists, buttons, combo boxes and graphs must be in the block of such a window. After the "
     "window's line, without a BEGIN, they act on the enclosing window.",
     "WINDOW \"A\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\nEND",
     "LISTBOX \"A\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\nEND"},
    {"missing-window", error, "a tab list that names a window which does not exist at that point",
     "TABORDER, TABLIST1 and TABLIST2 search the window whose block contains them at the time they are read. "
     "Put them at the end of the block, after the windows that they name.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TABORDER \"OK\"\n  BUTTON \"OK\" 10 10 80 24 \"OK\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"OK\" 10 10 80 24 \"OK\"\n  TABORDER \"OK\"\nEND"},
    {"missing-pointer", error, "a POINTER to a window that does not exist at that point",
     "POINTER shows a window that already exists, or that is at the top level of the script that it names. "
     "Without a second argument that is the main script.",
     "POINTER \"MAP\"", "POINTER \"MAP\" \"panels.tgx\""},
    {"pointer-inside", error, "a POINTER to a window from inside itself",
     "A window cannot be shown inside itself; the line fails.",
     "WINDOW \"MAP\" 0 0 100 100\nBEGIN\n  POINTER \"MAP\"\nEND",
     "WINDOW \"MAP\" 0 0 100 100\nBEGIN\nEND\nWINDOW \"DESK\" 0 0 200 200\nBEGIN\n  POINTER \"MAP\"\nEND"},
    {"no-font", error, "a font number that no ADDFONT defines",
     "0 is the built-in font, 1 the first ADDFONT of the main script, and so on. The ADDFONT must be read "
     "first. If the game adds fonts in code, pass their number with --fonts.",
     "FONT 1", "ADDFONT \"fonts\\Serif.ttf\" \"bold\" 20\nFONT 1"},
    {"missing-column", error, "a row with more cells than the list has columns",
     "The line fails; the cells before the extra one are added. Add columns before rows: a list whose first "
     "row comes before any COLUMNS has one column of the list's width.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  ITEM \"a\" \"b\"\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  COLUMNS 40 40\n  ITEM \"a\" \"b\"\nEND"},
    {"missing-icon", error, "an icon that the list does not have",
     "ICON0 is the first file of LISTICONS, ICON0F2 its frame 2. A cell with a missing icon causes an "
     "exception in every frame. Every cell that begins with ICON in capitals is an icon, even a word such as "
     "ICONIC.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  LISTICONS \"a.bmp\"\n  ITEM \"ICON1\"\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  LISTICONS \"a.bmp\"\n  ITEM \"ICON0\"\nEND"},
    {"limit-exceeded", error, "a limit of the toolkit is exceeded",
     "The toolkit limits the number of lines executed while reading, nested subroutines, members of a radio "
     "group, entries of the font table and nested windows, so that a bad script cannot make the game hang.",
     "", ""},
    {"line-fails", error, "a line that fails for another reason",
     "The toolkit refuses the line when it reads it. If no other finding explains why, please report it.", "",
     ""},
    // Pictures, fonts, strips.
    {"missing-bitmap", error, "a picture that does not exist or cannot be read",
     "Pictures are named relative to the data directory. Case does not matter, and \\ and / are equivalent. "
     "Supported are BMP, PNG, JPEG, GIF and PCX with up to 16384 pixels per side and 64 million in all.",
     "", ""},
    {"missing-font", error, "a font that does not exist or cannot be read",
     "The built-in font is used instead. The size must be 1 to 96 pixels.", "", ""},
    {"strip-too-small", error, "a strip that is too small for its frames",
     "In a strip, each frame is followed by 1 pixel that is not shown. In a picture more than two frames "
     "wide, the frames continue in further rows. By default a button has three frames: normal, hot and "
     "pressed. A scroll bar has six frames, a border eight pieces.",
     "", ""},
    {"tab-pages", error, "a tab control whose tabs and pages do not match",
     "The block of a tab control contains the tabs, which form one radio group, and the same number of pages "
     "in the same order; the tabs are either all before or all after the pages. A button directly in that "
     "block counts as a tab when it is clicked but has no page: put it into a page, or outside of the tab "
     "control.",
     "TABCONTROL \"T\" 0 0 200 200\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"A\"\n  RADIOBUTTON \"B\" 50 0 50 "
     "20 \"B\"\n  WINDOW \"PAGE_A\" 0 20 200 180\nEND",
     "TABCONTROL \"T\" 0 0 200 200\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"A\"\n  RADIOBUTTON \"B\" 50 0 50 "
     "20 \"B\"\n  WINDOW \"PAGE_A\" 0 20 200 180\n  WINDOW \"PAGE_B\" 0 20 200 180\nEND"},

    // Blocks.
    {"block-without-window", warning, "a block that belongs to no window",
     "BEGIN opens the block of the window that the previous statement made. After an attribute, or at the "
     "start of a script, there is no such window, and the lines of the block act on the root of all windows.",
     "WINDOW \"A\" 0 0 10 10\nFONT 1\nBEGIN\n  TEXT \"a\"\nEND",
     "WINDOW \"A\" 0 0 10 10\nBEGIN\n  FONT 1\n  TEXT \"a\"\nEND"},
    {"outside-block", warning, "an attribute outside of all blocks",
     "It changes the root of all windows. Only a FONT at the top of a script is useful there: windows made "
     "later take it.",
     "WINDOW \"A\" 0 0 10 10\nTEXT \"a\"", "WINDOW \"A\" 0 0 10 10\nBEGIN\n  TEXT \"a\"\nEND"},
    {"attribute-on-parent", warning, "an attribute after a window's line that acts on the enclosing window",
     "To apply it to the window before it, put it into that window's own block.",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"B\" 0 0 90 20 \"b\"\n  JUSTIFY CENTRE\nEND",
     "WINDOW \"A\" 0 0 90 90\nBEGIN\n  TEXTWND \"B\" 0 0 90 20 \"b\"\n  BEGIN\n    JUSTIFY CENTRE\n  "
     "END\nEND"},
    {"nested-screen", warning, "a SCREEN inside a block",
     "A screen is always at the top level, wherever its line is. Usually an END is missing before it.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  SCREEN \"B\" 0 0 640 480 \"\"\nEND",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\nEND\nSCREEN \"B\" 0 0 640 480 \"\""},
    // Names.
    {"duplicate-id", warning, "two windows with the same id in one screen or popup",
     "The game and tab lists find the first window with the id. For decoration use the id \"static\", which "
     "counts as none. Case does not matter.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T\" 0 0 90 20 \"a\"\n  TEXTWND \"T\" 0 20 90 20 "
     "\"b\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T1\" 0 0 90 20 \"a\"\n  TEXTWND \"T2\" 0 20 90 20 "
     "\"b\"\nEND"},
    {"name-taken", warning, "a line with the name of a top-level window before that window's definition",
     "When a screen or popup is requested, reading starts at the first line whose first argument is its "
     "name, whatever that line is: it may be an earlier button or POINTER of that name.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"B\" 0 0 80 24 \"b\"\nEND\nSCREEN \"B\" 0 0 640 480 "
     "\"\"",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO_B\" 0 0 80 24 \"b\"\nEND\nSCREEN \"B\" 0 0 640 480 "
     "\"\""},
    {"reserved-id", warning, "a reserved id on a window that should not have it",
     "A click on a window with the id TGX_BACK, TGX_CANCEL, TGX_CLOSE or TGX_EXIT leaves the screen; with "
     "TGX_OK, TGX_YES or TGX_NO it closes the box, whatever kind of window it is. Controls find their parts "
     "by the ids CheckboxState, RadioState, ComboMenu, ComboNext and ComboPrev.",
     "BITMAP \"TGX_BACK\" 0 0 80 24 \"arrow.bmp\"", "BITMAP \"static\" 0 0 80 24 \"arrow.bmp\""},
    {"duplicate-subroutine", warning, "a second subroutine with the same name",
     "GOTO always uses the first one; this one never runs.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nSUBROUTINE \"S\"\nBEGIN\nEND", "SUBROUTINE \"S\"\nBEGIN\nEND"},
    {"empty-subroutine", warning, "a subroutine without a body",
     "The body is the statement after the SUBROUTINE line. If another SUBROUTINE line follows, the body of "
     "that one is executed.",
     "SUBROUTINE \"A\"\nSUBROUTINE \"B\"\nBEGIN\nEND",
     "SUBROUTINE \"A\"\nBEGIN\nEND\nSUBROUTINE \"B\"\nBEGIN\nEND"},
    {"after-body", warning, "lines after the body of a subroutine that look like part of it",
     "The body is one statement: a line, or a block from BEGIN to END. A block after a window's line is a "
     "second statement and never runs.",
     "SUBROUTINE \"PANEL\"\nWINDOW \"BOX\" 0 0 90 90\nBEGIN\n  TEXT \"a\"\nEND",
     "SUBROUTINE \"PANEL\"\nBEGIN\n  WINDOW \"BOX\" 0 0 90 90\n  BEGIN\n    TEXT \"a\"\n  END\nEND"},
    {"missing-block", warning, "a window without a block in a script from which single windows are read",
     "Reading a window ends with its block. Without a block, the next line is executed too, whatever it is: "
     "if it makes another window, that window is empty, and a later POINTER finds it.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 90 90\nWINDOW \"B\" 0 0 90 90\nBEGIN\n  GOTO "
     "\"S\"\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"A\" 0 0 90 90\nBEGIN\nEND\nWINDOW \"B\" 0 0 90 "
     "90\nBEGIN\n  GOTO \"S\"\nEND"},
    // Controls.
    {"radio-group", warning, "a radio group that another window breaks in two",
     "Radio buttons form one group if their lines follow one another. Any window between them, such as a "
     "label, splits the group into two with separate selections. The buttons' own blocks do not.",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"a\"\n  TEXTWND \"static\" 50 0 40 20 "
     "\"x\"\n  RADIOBUTTON \"B\" 0 20 50 20 \"b\"\nEND",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  RADIOBUTTON \"A\" 0 0 50 20 \"a\"\n  RADIOBUTTON \"B\" 0 20 50 20 "
     "\"b\"\n  TEXTWND \"static\" 50 0 40 20 \"x\"\nEND"},
    {"unreachable", warning, "a control that no key reaches",
     "Tab and the left and right arrows follow the TABORDER of the screen or popup itself; those of inner "
     "windows are not used. Insert and Delete go to the first window of TABLIST1, Home and End to that of "
     "TABLIST2, if it is a combo box or a radio button. A radio group counts as a whole, and a control that "
     "Esc moves the pointer to counts as reached. For a window that a POINTER shows, the TABORDER is that of "
     "the screen which shows it.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"A\" 0 0 80 24 \"a\"\n  BUTTON \"B\" 0 24 80 24 "
     "\"b\"\n  TABORDER \"A\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"A\" 0 0 80 24 \"a\"\n  BUTTON \"B\" 0 24 80 24 "
     "\"b\"\n  TABORDER \"A\" \"B\"\nEND"},
    // Looks.
    {"text-clipped", warning, "a text that does not fit its box",
     "Without wrapping, a text is cut at the right edge. A wrapped text loses the lines that do not fit, and "
     "a word wider than the box loses a letter at each break. Letters that are higher than the box extend "
     "beyond it. Make the box larger, the font smaller or the text shorter, or wrap it with TEXTWRAP 1.",
     "TEXTWND \"T\" 0 0 20 24 \"a long text\"", "TEXTWND \"T\" 0 0 200 24 \"a long text\""},
    {"outside-parent", warning, "a window that extends beyond its parent",
     "The part of a control outside its parent takes no clicks, and a text there looks misplaced. A picture "
     "may extend beyond its parent, unless it is completely outside.",
     "WINDOW \"W\" 0 0 50 50\nBEGIN\n  BUTTON \"B\" 10 10 80 24 \"b\"\nEND",
     "WINDOW \"W\" 0 0 100 50\nBEGIN\n  BUTTON \"B\" 10 10 80 24 \"b\"\nEND"},
    {"covered", warning, "a window that another one covers completely",
     "A window is drawn on top of those defined before it. A control that is completely covered by another "
     "window gets no clicks, even if it is visible; a text or picture under an opaque picture is not "
     "visible. Define it after the other window, or disable that one (ENABLED 0) so that it lets clicks "
     "through.",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  BUTTON \"B\" 0 0 80 24 \"\"\n  TEXTWND \"T\" 0 0 80 24 \"b\"\nEND",
     "WINDOW \"W\" 0 0 90 90\nBEGIN\n  TEXTWND \"T\" 0 0 80 24 \"b\"\n  BUTTON \"B\" 0 0 80 24 \"\"\nEND"},
    {"zero-size", warning, "a border, strip or control of size 0",
     "Border pieces of size 0 are not drawn, and with a border width of 0 the pieces cover the picture. A "
     "strip of several frames needs a frame size, and a strip of 0 frames is not shown. A control of size 0 "
     "cannot be clicked.",
     "BORDER \"frame.bmp\" 4 0", "BORDER \"frame.bmp\" 4 8"},
    {"line-break", warning, "a line break in a text that does not wrap",
     "A text that does not wrap is drawn on one line, and \\n is shown literally.",
     "TEXTWND \"T\" 0 0 200 48 \"one\\ntwo\"",
     "TEXTWND \"T\" 0 0 200 48 \"one\\ntwo\"\nBEGIN\n  TEXTWRAP 1\nEND"},
    {"hidden-last-row", warning, "a list whose last row is never drawn",
     "A row is drawn only if at least one pixel is left below it. If the height of a list without its "
     "borders is a multiple of the row height, the last row can be clicked but is not visible. Make the list "
     "1 pixel higher.",
     "LISTBOX \"L\" 0 0 100 60\nBEGIN\n  COLUMNS 80\n  LISTLOOK 20\nEND",
     "LISTBOX \"L\" 0 0 100 61\nBEGIN\n  COLUMNS 80\n  LISTLOOK 20\nEND"},
    {"wide-columns", warning, "columns that are wider than their list",
     "There is a gap of 10 pixels before each column. What extends beyond the list is cut.",
     "LISTBOX \"L\" 0 0 100 61\nBEGIN\n  COLUMNS 60 60\n  LISTLOOK 20\nEND",
     "LISTBOX \"L\" 0 0 140 61\nBEGIN\n  COLUMNS 60 60\n  LISTLOOK 20\nEND"},
    {"menu-off-screen", warning, "a combo box whose menu extends below the screen",
     "The menu is cut at the lower edge of the screen and cannot be scrolled, so items beyond the edge "
     "cannot be chosen with the mouse. Without COMBOBELOW it opens above the box.",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  COMBOBOX \"C\" 0 440 100 24 \"\"\n  BEGIN\n    COMBOBELOW 1\n  "
     "  ITEM "
     "\"a\"\n    ITEM \"b\"\n    ITEM \"c\"\n  END\n  TABORDER \"C\"\nEND",
     "SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\n  COMBOBOX \"C\" 0 440 100 24 \"\"\n  BEGIN\n    ITEM \"a\"\n    "
     "ITEM "
     "\"b\"\n    ITEM \"c\"\n  END\n  TABORDER \"C\"\nEND"},
    {"font-style", warning, "an unknown word in a font's style",
     "A style consists of the words bold, italic and shadow and of a colour, written as # and six "
     "hexadecimal digits. Other words are ignored.",
     "ADDFONT \"a.ttf\" \"bald\" 12 0", "ADDFONT \"a.ttf\" \"bold\" 12 0"},
    // Screens and boxes.
    {"unnamed-screen", warning, "a screen without a name",
     "Screens are requested by name. The first one opens without a name, but no other screen can return to "
     "it.",
     "SCREEN \"\" 0 0 640 480 \"\"", "SCREEN \"MENU\" 0 0 640 480 \"\""},
    {"class-name", warning, "a screen with the name of a window class",
     "To open a screen, the game's factory is asked for a window of that name. If it makes windows of that "
     "name for USERDEF, the screen is refused with \"cannot make screen\", and a plain screen is used "
     "instead.",
     "SCREEN \"Ship\" 0 0 640 480 \"\"\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 9 9 \"Ship\"\nEND",
     "SCREEN \"SHIPS\" 0 0 640 480 \"\"\nWINDOW \"A\" 0 0 90 90\nBEGIN\n  USERDEF \"S\" 0 0 9 9 "
     "\"Ship\"\nEND"},
    {"empty-screen", warning, "a screen without a block",
     "The windows of a screen are between BEGIN and END after its line. Allow this code if the game fills "
     "the screen in code.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nWINDOW \"B\" 0 0 90 90",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  WINDOW \"B\" 0 0 90 90\nEND"},
    {"no-way-out", warning, "a screen that the player cannot leave",
     "Nothing in it can be clicked, unlike in an earlier screen, so only the game can leave it.",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO\" 0 0 90 20 \"\"\n  TABORDER \"GO\"\nEND\nSCREEN "
     "\"B\" 0 0 640 480 \"\"\nBEGIN\n  TEXTWND \"T\" 0 0 90 20 "
     "\"b\"\nEND",
     "SCREEN \"A\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"GO\" 0 0 90 20 \"\"\n  TABORDER \"GO\"\nEND\nSCREEN "
     "\"B\" 0 0 640 480 \"\"\nBEGIN\n  BUTTON \"TGX_BACK\" 0 0 90 20 "
     "\"b\"\n  TABORDER \"TGX_BACK\"\nEND"},
    {"no-close-button", warning, "a message box that no button closes",
     "By default, a click on TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO or TGX_CLOSE closes a box.",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"OK\" 0 70 80 24 \"OK\"\n  TABORDER \"OK\"\nEND",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER "
     "\"TGX_OK\"\nEND"},
    {"missing-box-part", warning, "a message box without a window for its text or title",
     "messageBox and queryBox set the texts of MESSAGEBOXTITLE and MESSAGEBOXTEXT.",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITEL\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER \"TGX_OK\"\nEND",
     "WINDOW \"MESSAGEBOX\" 0 0 200 100\nBEGIN\n  TEXTWND \"MESSAGEBOXTITLE\" 0 0 200 20 \"\"\n  TEXTWND "
     "\"MESSAGEBOXTEXT\" 0 20 200 40 \"\"\n  BUTTON \"TGX_OK\" 0 70 80 24 \"OK\"\n  TABORDER "
     "\"TGX_OK\"\nEND"},
    // Without effect, or unused.
    {"no-effect", warning, "a statement without effect",
     "Another line overrides it, the window ignores it, or it has no arguments or too many. A BMPFILE resets "
     "the frame size of an earlier BMPINFO. From a script with subroutines, windows are read one by one, and "
     "a FONT outside of them is ignored.",
     "TEXTWND \"T\" 0 0 90 24 \"\"\nBEGIN\n  TEXT \"a\"\n  TEXT \"b\"\nEND",
     "TEXTWND \"T\" 0 0 90 24 \"\"\nBEGIN\n  TEXT \"b\"\nEND"},
    {"late-columns", warning, "columns after rows",
     "The first row has given the list one column of the list's width. These columns are added after it, and "
     "existing rows have no cells in them.",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  ITEM \"a\"\n  COLUMNS 50 50\nEND",
     "LISTBOX \"L\" 0 0 100 100\nBEGIN\n  COLUMNS 50 50\n  ITEM \"a\"\nEND"},
    {"unused-define", warning, "a DEFINE that nothing uses",
     "Only names that the script itself defines are checked, not those of included files.",
     "DEFINE WIDTH 90\nFONT 1", "DEFINE NUMBER 1\nFONT NUMBER"},
    {"unused-subroutine", warning, "a subroutine that no GOTO names",
     "All scripts of the folder are taken into account. If the game runs the subroutine in code, allow the "
     "finding.",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO "
     "\"S\"\nEND"},
    {"unused-script", warning, "a script that contains only subroutines, which no GOTO names",
     "All scripts of the folder are taken into account.", "SUBROUTINE \"S\"\nBEGIN\nEND",
     "SUBROUTINE \"S\"\nBEGIN\nEND\nWINDOW \"W\" 0 0 9 9\nBEGIN\n  GOTO \"S\"\nEND"},
    {"unused-file", warning, "a picture or font that no script names",
     "Reported only with --unused-files, because the game may load files in code. Reported at the first line "
     "of the main script, or of the first script; an allowance there applies to all of them.",
     "", ""},
    // Allowances.
    {"unknown-code", warning, "an allowance for a code that does not exist",
     "tgx check --explain lists all codes.", "# tgx: allow text-clip\nFONT 1",
     "# tgx: allow text-clipped\nFONT 1"},
    {"unused-allowance", warning, "an allowance that silences nothing",
     "The next line has no such finding (any more), or the comment is at the end of a line, where it has no "
     "effect. An error that prevents the script from being built cannot be allowed.",
     "# tgx: allow outside-parent\nFONT 1", "FONT 1"},
};

} // namespace

std::span<const Code> codes()
{
    return rows;
}

} // namespace tgx::script_check

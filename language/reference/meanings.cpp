#include "language/reference/meanings.h"

#include <algorithm>

namespace script_text {

namespace {

using enum Family;

constexpr Meaning rows[] = {
    {14, Blocks,
     "Opens the block of the window that the line in front made or brought in: statements up to its `END` "
     "change that window, and put windows into it.",
     "window"},
    {15, Blocks, "Closes the block.", "window"},
    {62, Blocks,
     "Enters a font into the font table, behind those that are there: 1 for the first. `style` is words such "
     "as `bold`, `italic`, `shadow` and a colour `#rrggbb`, `size` the height in pixels, `spacing` extra "
     "pixels between characters.",
     "text"},
    {96, Blocks,
     "Names the statement or block behind it, for `GOTO`. A line that reading down the script reaches fails, "
     "so it stands in a script of its own.",
     "subroutine"},
    {63, Blocks,
     "Carries out a subroutine on the window whose block it stands in. The second string names the script "
     "that holds it, a file or the number of an embedded one; without it, it is this one.",
     "subroutine"},

    {90, Windows,
     "A full page, always at the top level, wherever the line stands. `backdrop` is the picture behind all, "
     "plain black when empty; `extra` is for the game.",
     "screen"},
    {113, Windows, "A plain window: a panel, a frame, something to click on.", "window"},
    {37, Windows,
     "A picture. With the four numbers it plays a strip of frames, each for `delay` ticks. One pixel that is "
     "not shown follows each frame, the last one too: a strip of three frames 20 wide is 63 pixels wide.",
     "bitmap"},
    {99, Windows, "A text, moved by `textX` and `textY`, and perhaps a picture behind it.", "text"},
    {106, Windows,
     "A window of a class of the game, chosen by `class`, or by the name when that is left out.", "userdef"},
    {83, Windows,
     "No new window: shows one that exists, or that `script` defines at its top level, in this place too.",
     "pointer"},

    {38, AnyWindow, "Its picture.", "window"},
    {40, AnyWindow,
     "How the picture is cut into frames. A size of 0 or less is worked out; a delay of 0 or less stands "
     "still.",
     "bitmap"},
    {39, AnyWindow, "The frame that is shown, 0 the first.", "bitmap"},
    {41, AnyWindow, "Moves the picture in the window.", "bitmapfit"},
    {42, AnyWindow, "Where in its file the picture begins.", "bitmapfit"},
    {95, AnyWindow, "Whether the picture is stretched to the window; at first it is.", "bitmapfit"},
    {100, AnyWindow, "Whether the picture is repeated all over the window. It beats stretching.",
     "bitmapfit"},
    {103, AnyWindow, "How the picture is drawn: 0 normal, 1 opaque, 2 half, 3 additive.", "blitmode"},
    {43, AnyWindow,
     "A frame from a strip of eight square pieces, clockwise from the top left corner. The picture keeps "
     "`width` pixels from the edge. `hotBitmap` is a list box's frame while the pointer is over it.",
     "window"},
    {105, AnyWindow, "Its text.", "userdef"},
    {104, AnyWindow, "Moves the text.", "checkbox"},
    {71, AnyWindow, "Where the text stands in the width.", "text"},
    {107, AnyWindow, "Whether the text is centred from top to bottom; at first it is.", "text"},
    {115, AnyWindow, "Whether the text is wrapped to the width. On an edit box: several lines.", "textwrap"},
    {108, AnyWindow, "Whether the text is drawn as it stands, not cut to fit.", "textwrap"},
    {61, AnyWindow,
     "Its font, an entry of the font table; 0 is the built-in one. Windows made inside it after this line "
     "start with the same font; those made before keep theirs.",
     "text"},
    {110, AnyWindow, "Whether it shows: above 0.", "tabcontrol"},
    {60, AnyWindow,
     "Whether it takes input. On a button 0 lasts only until the screen opens, as a button enables itself "
     "behind its "
     "opening run; the game disables it.",
     "window"},
    {58, AnyWindow, "Whether, as a popup, it opens without dimming what is under it.", "keyboard"},
    {114, AnyWindow, "Another box. A negative width or height keeps the old one."},

    {98, TabStops,
     "The windows inside that Tab, and the keys left and right, go through in this order. Counts on a screen "
     "or popup.",
     "taborder"},
    {92, TabStops,
     "What the keys Insert and Delete turn: a combo box, or the radio buttons of a group or tab control. "
     "Counts on a screen or popup.",
     "taborder"},
    {93, TabStops, "The same for the keys Home and End.", "taborder"},

    {47, Buttons,
     "A button. Its strip holds the runs of frames of the states, one behind the other. A negative frame "
     "size is that of the window, a negative delay 1.",
     "button"},
    {49, Buttons, "A button that a click switches on or off.", "checkbox"},
    {50, Buttons, "In a button's block: the tick, a small button that shows whether it is on.", "checkbox"},
    {87, Buttons, "A radio button. Those that stand directly behind each other are one group.",
     "radiobutton"},
    {88, Buttons, "In a radio button's block: the mark that shows whether it is on.", "radiobutton"},
    {97, Buttons,
     "Pages of which one shows. In its block stand the tabs, one radio group, and as many pages, in the same "
     "order; the page that is visible at first is the one to begin with.",
     "tabcontrol"},
    {59, Buttons, "A field to type in. A name that begins with PASSWORD hides what is typed.", "editbox"},
    {69, Buttons,
     "A scroll bar that lies. Six frames: first button at rest, pressed, second button at rest, pressed, "
     "trough, lever.",
     "scrollbar"},
    {112, Buttons, "A scroll bar that stands; frames as those of `HSCROLLBAR`.", "scrollbar"},
    {45, Buttons,
     "How many frames each state's run has. Without it the strip has three frames: normal, hot and pressed.",
     "button"},
    {44, Buttons, "How many ticks each frame of a state's run stays.", "opening"},
    {46, Buttons, "Whether each state's run starts again at its end.", "opening"},
    {85, Buttons, "Whether a press moves the text by a pixel; at first it does.", "checkbox"},
    {94, Buttons, "Whether a click switches it on or off, as it does a check box.", "checkbox"},

    {76, Lists, "A list of rows and columns; the statements in its block fill it.", "listbox"},
    {51, Lists,
     "Appends columns: the width of each in pixels, and after it a word for the side of its text (left "
     "without one). A list has up to 20 columns; those beyond are ignored.",
     "listbox"},
    {102, Lists, "The titles of the columns, from the first on.", "listbox"},
    {57, Lists,
     "In a list box: one row, a text for each column; `ICON3F2` is frame 2 of icon 3, `ICON3` its frame 0. "
     "In a combo box: one item.",
     "listbox"},
    {80, Lists,
     "Height of the rows (a negative one keeps the old), whether the title row is shaded, whether a "
     "highlight covers a single cell.",
     "listbox"},
    {78, Lists,
     "Entries of the font table: three for rows and columns that the game marks, one for the titles.",
     "listbox"},
    {101, Lists, "The picture behind the titles.", "listbox"},
    {77, Lists, "The pictures behind the selected row and behind the one under the pointer.", "listbox"},
    {79, Lists, "Appends icons, counted from 0, for `ITEM` to name.", "listicons"},
    {81, Lists, "Appends columns, counted from 0, whose cells cannot be selected.", "listicons"},
    {82, Lists, "Appends rows, counted from 0, that cannot be selected.", "listicons"},
    {74, Lists, "Whether a cell that reads 0 or 0.0 shows a dash, and whether rows appear one by one.",
     "listbox"},
    {91, Lists,
     "The strip and the width of a scroll bar, which are only recorded: the bar that the list makes itself "
     "is that "
     "of `uig\\scroll1.bmp`, 16 wide."},
    {52, Lists,
     "A button that shows one item of a list; a click opens the menu of all. `ITEM` lines in its block fill "
     "it.",
     "combobox"},
    {53, Lists, "In a combo box's block: the menu, which is a list box. Without one the box makes its own.",
     "combobox"},
    {55, Lists, "In a combo box's block: the button that steps back.", "combobox"},
    {54, Lists, "In a combo box's block: the button that steps on.", "combobox"},
    {56, Lists, "Whether a step past either end goes round; at first it does.", "combobox"},
    {68, Lists, "Whether a click opens the menu; at first it does.", "combobox"},
    {84, Lists, "Whether the menu opens below the box; at first it opens above.", "combobox"},

    {86, Displays,
     "A bar that grows from the left. Frame 0 is the full bar, frame 1, if the strip is wide enough, the "
     "empty one.",
     "progressbar"},
    {111, Displays, "A bar that grows from the bottom; frames as those of `PROGRESSBAR`.", "progressbar"},
    {109, Displays, "A text that is printed letter by letter, and anew when it changes.", "vidiprinter"},
    {64, Displays, "A graph of up to four rows of values, as bars; the same as `BARGRAPH`.", "bargraph"},
    {36, Displays, "A graph of up to four rows of values, as bars.", "bargraph"},
    {75, Displays, "A graph of up to four rows of values, as lines.", "linegraph"},
    {66, Displays,
     "Two texts that are kept for the game, how many steps lie between numbers and between grid lines of the "
     "axes, and whether a bar of 0 shows as a line.",
     "bargraph"},
    {72, Displays,
     "Keys on the screen: a list box whose cells are the keys. `OK` closes the popup, `<` takes the last "
     "character back, `Sp` is a blank, any other text types itself.",
     "keyboard"},

    {73, Words, "At the left.", "listbox"},
    {48, Words, "In the middle.", "text"},
    {89, Words, "At the right.", "text"},
};

} // namespace

std::span<const Meaning> meanings()
{
    return rows;
}

const Meaning* meaningOf(int id)
{
    const auto found =
        std::find_if(std::begin(rows), std::end(rows), [id](const Meaning& row) { return row.id == id; });
    return found == std::end(rows) ? nullptr : found;
}

const char* titleOf(Family family)
{
    switch (family) {
    case Blocks:
        return "Blocks, fonts and subroutines";
    case Windows:
        return "Windows";
    case AnyWindow:
        return "Attributes of any window";
    case TabStops:
        return "Tab stops";
    case Buttons:
        return "Buttons and input";
    case Lists:
        return "Lists and combo boxes";
    case Displays:
        return "Bars, graphs and other displays";
    default:
        return "Words that stand behind others";
    }
}

} // namespace script_text

#include "tools/tgx/meanings.h"

#include <algorithm>

namespace script_text {

namespace {

using enum Family;

constexpr Meaning rows[] = {
    {14, Blocks,
     "Opens the block of the window that the line in front made or brought in: statements up to its `END` "
     "change that window, and put windows into it."},
    {15, Blocks, "Closes the block."},
    {62, Blocks,
     "Enters a font into the font table, behind those that are there: 1 for the first. `style` is words such "
     "as `bold`, `italic`, `shadow` and a colour `#rrggbb`, `size` the height in pixels, `spacing` extra "
     "pixels between characters."},
    {96, Blocks,
     "Names the statement or block behind it, for `GOTO`. A line that reading down the script reaches fails, "
     "so it stands in a script of its own."},
    {63, Blocks,
     "Carries out a subroutine on the window whose block it stands in. The second string names the script "
     "that holds it, a file or the number of an embedded one; without it, it is this one."},

    {90, Windows,
     "A full page, always at the top level, wherever the line stands. `backdrop` is the picture behind all, "
     "plain black when empty; `extra` is for the game."},
    {113, Windows, "A plain window: a panel, a frame, something to click on."},
    {37, Windows,
     "A picture. With the four numbers it plays a strip of frames that stand 1 pixel apart, each for `delay` "
     "ticks."},
    {99, Windows, "A text, moved by `textX` and `textY`, and perhaps a picture behind it."},
    {106, Windows,
     "A window of a class of the game, chosen by `class`, or by the name when that is left out."},
    {83, Windows,
     "No new window: shows one that exists, or that `script` defines at its top level, in this place too."},

    {38, AnyWindow, "Its picture."},
    {40, AnyWindow,
     "How the picture is cut into frames. A size of 0 or less is worked out; a delay of 0 or less stands "
     "still."},
    {39, AnyWindow, "The frame that is shown, 0 the first."},
    {41, AnyWindow, "Moves the picture in the window."},
    {42, AnyWindow, "Where in its file the picture begins."},
    {95, AnyWindow, "Whether the picture is stretched to the window; at first it is."},
    {100, AnyWindow, "Whether the picture is repeated all over the window. It beats stretching."},
    {103, AnyWindow, "How the picture is drawn: 0 normal, 1 opaque, 2 half, 3 additive."},
    {43, AnyWindow,
     "A frame from a strip of eight square pieces, clockwise from the top left corner. The picture keeps "
     "`width` pixels from the edge. `hotBitmap` is a list box's frame while the pointer is over it."},
    {105, AnyWindow, "Its text."},
    {104, AnyWindow, "Moves the text."},
    {71, AnyWindow, "Where the text stands in the width."},
    {107, AnyWindow, "Whether the text is centred from top to bottom; at first it is."},
    {115, AnyWindow, "Whether the text is wrapped to the width. On an edit box: several lines."},
    {108, AnyWindow, "Whether the text is drawn as it stands, not cut to fit."},
    {61, AnyWindow,
     "Its font, an entry of the font table; 0 is the built-in one. Windows that are made inside behind this "
     "line begin with it."},
    {110, AnyWindow, "Whether it shows: above 0."},
    {60, AnyWindow, "Whether it takes input."},
    {58, AnyWindow, "Whether, as a popup, it opens without dimming what is under it."},
    {114, AnyWindow, "Another box. A negative width or height keeps the old one."},

    {98, TabStops, "The windows inside that Tab and the arrow keys go through, in this order."},
    {92, TabStops, "The windows inside that the keys Insert and Delete go to."},
    {93, TabStops, "The windows inside that the keys Home and End go to."},

    {47, Buttons,
     "A button. Its strip holds the runs of frames of the states, one behind the other. A negative frame "
     "size is that of the window, a negative delay 1."},
    {49, Buttons, "A button that a click switches on or off."},
    {50, Buttons, "In a button's block: the tick, a small button that shows whether it is on."},
    {87, Buttons, "A radio button. Those that stand directly behind each other are one group."},
    {88, Buttons, "In a radio button's block: the mark that shows whether it is on."},
    {97, Buttons,
     "Pages of which one shows. In its block stand the tabs, one radio group, and as many pages, in the same "
     "order; the page that is visible at first is the one to begin with."},
    {59, Buttons, "A field to type in. A name that begins with PASSWORD hides what is typed."},
    {69, Buttons,
     "A scroll bar that lies. Six frames: first button at rest, pressed, second button at rest, pressed, "
     "trough, lever."},
    {112, Buttons, "A scroll bar that stands; frames as those of `HSCROLLBAR`."},
    {45, Buttons, "How many frames each state's run has."},
    {44, Buttons, "How many ticks each frame of a state's run stays."},
    {46, Buttons, "Whether each state's run starts again at its end."},
    {85, Buttons, "Whether a press moves the text by a pixel; at first it does."},
    {94, Buttons, "Whether a click switches it on or off, as it does a check box."},

    {76, Lists, "A list of rows and columns; the statements in its block fill it."},
    {51, Lists,
     "Appends columns: the width of each in pixels, and a word behind it for where its text stands (left "
     "without one)."},
    {102, Lists, "The titles of the columns, from the first on."},
    {57, Lists,
     "In a list box: one row, a text for each column; `ICON3F2` is frame 2 of icon 3, `ICON3` its frame 0. "
     "In a combo box: one item."},
    {80, Lists,
     "Height of the rows (a negative one keeps the old), whether the title row is shaded, whether a "
     "highlight covers a single cell."},
    {78, Lists,
     "Entries of the font table: three for rows and columns that the game marks, one for the titles."},
    {101, Lists, "The picture behind the titles."},
    {77, Lists, "The pictures behind the selected row and behind the one under the pointer."},
    {79, Lists, "Appends icons, counted from 0, for `ITEM` to name."},
    {81, Lists, "Appends columns, counted from 0, whose cells cannot be selected."},
    {82, Lists, "Appends rows, counted from 0, that cannot be selected."},
    {74, Lists, "Whether a cell that reads 0 or 0.0 shows a dash, and whether rows appear one by one."},
    {91, Lists, "The strip and the width of the scroll bar that the list makes itself."},
    {52, Lists,
     "A button that shows one item of a list; a click opens the menu of all. `ITEM` lines in its block fill "
     "it."},
    {53, Lists, "In a combo box's block: the menu, which is a list box. Without one the box makes its own."},
    {55, Lists, "In a combo box's block: the button that steps back."},
    {54, Lists, "In a combo box's block: the button that steps on."},
    {56, Lists, "Whether a step past either end goes round; at first it does."},
    {68, Lists, "Whether a click opens the menu; at first it does."},
    {84, Lists, "Whether the menu opens below the box; at first it opens above."},

    {86, Displays,
     "A bar that grows from the left. Frame 0 is the full bar, frame 1, if the strip is wide enough, the "
     "empty one."},
    {111, Displays, "A bar that grows from the bottom; frames as those of `PROGRESSBAR`."},
    {109, Displays, "A text that is printed letter by letter, and anew when it changes."},
    {64, Displays, "A graph of up to four rows of values, as bars; the same as `BARGRAPH`."},
    {36, Displays, "A graph of up to four rows of values, as bars."},
    {75, Displays, "A graph of up to four rows of values, as lines."},
    {66, Displays,
     "Two texts that are kept for the game, how many steps lie between numbers and between grid lines of the "
     "axes, and whether a bar of 0 shows as a line."},
    {72, Displays,
     "Keys on the screen: a list box whose cells are the keys. `OK` closes the popup, `<` takes the last "
     "character back, `Sp` is a blank, any other text types itself."},

    {73, Words, "At the left."},
    {48, Words, "In the middle."},
    {89, Words, "At the right."},
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

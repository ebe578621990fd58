#include "language/reference/meanings.h"

#include <algorithm>

namespace tgx::script_text {

namespace {

using enum Family;

constexpr Meaning rows[] = {
    {14, Blocks,
     "Opens the block of the window that the previous line made or showed: the statements up to its `END` "
     "change that window and put windows into it.",
     "window"},
    {15, Blocks, "Closes the block.", "window"},
    {62, Blocks,
     "Adds a font to the end of the font table; the first one has number 1. `style` contains words such as "
     "`bold`, `italic` and `shadow`, and a colour `#rrggbb`; `size` is the height in pixels, `spacing` the "
     "extra pixels between characters.",
     "text"},
    {96, Blocks,
     "Names the statement or block that follows, for `GOTO`. The line fails if it is reached while the "
     "script is read from top to bottom, so put subroutines into a script of their own.",
     "subroutine"},
    {63, Blocks,
     "Runs a subroutine on the window whose block contains the line. The second string names the script that "
     "contains the subroutine: a file, or the number of an embedded script. Without it, the subroutine is in "
     "the same script.",
     "subroutine"},

    {90, Windows,
     "A full page, always at the top level, wherever the line is. `backdrop` is the background picture, "
     "plain black if empty; `extra` is for the game.",
     "screen"},
    {113, Windows, "A plain window: a panel, a frame, something to click.", "window"},
    {37, Windows,
     "A picture. With the four numbers it plays a strip of frames, each for `delay` ticks. Each frame, "
     "including the last, is followed by one pixel that is not shown: a strip of three frames of width 20 is "
     "63 pixels wide.",
     "bitmap"},
    {99, Windows, "A text, offset by `textX` and `textY`, optionally with a picture behind it.", "text"},
    {106, Windows, "A window of a class of the game, selected by `class`, or by the name if that is omitted.",
     "userdef"},
    {83, Windows,
     "Also shows an existing window here, or one that `script` defines at its top level. Makes no new "
     "window.",
     "pointer"},

    {38, AnyWindow, "Sets the picture.", "window"},
    {40, AnyWindow,
     "Sets how the picture is cut into frames. A size of 0 or less is calculated; a delay of 0 or less does "
     "not animate.",
     "bitmap"},
    {39, AnyWindow, "Sets the frame that is shown, counted from 0.", "bitmap"},
    {41, AnyWindow, "Offsets the picture in the window.", "bitmapfit"},
    {42, AnyWindow, "Sets where in its file the picture begins.", "bitmapfit"},
    {95, AnyWindow, "Sets whether the picture is stretched to the window; by default it is.", "bitmapfit"},
    {100, AnyWindow, "Sets whether the picture is tiled over the window. Takes precedence over stretching.",
     "bitmapfit"},
    {103, AnyWindow, "Sets how the picture is drawn: 0 normal, 1 opaque, 2 half, 3 additive.", "blitmode"},
    {43, AnyWindow,
     "Adds a frame, drawn with a strip of eight square pieces, clockwise from the top left corner. The "
     "picture is inset by `width` pixels. `hotBitmap` is the frame of a list box while the pointer is over "
     "it.",
     "window"},
    {105, AnyWindow, "Sets the text.", "userdef"},
    {104, AnyWindow, "Offsets the text.", "checkbox"},
    {71, AnyWindow, "Sets the horizontal alignment of the text.", "text"},
    {107, AnyWindow, "Sets whether the text is centred vertically; by default it is.", "text"},
    {115, AnyWindow,
     "Sets whether the text is wrapped to the width. For an edit box: whether it has several lines.",
     "textwrap"},
    {108, AnyWindow, "Sets whether the text is drawn raw, without being cut to fit.", "textwrap"},
    {61, AnyWindow,
     "Sets the font, an entry of the font table; 0 is the built-in one. Windows made inside it after this "
     "line start with the same font; those made before keep theirs.",
     "text"},
    {110, AnyWindow, "Sets whether the window is visible: above 0.", "tabcontrol"},
    {60, AnyWindow,
     "Sets whether the window takes input. On a button, 0 only lasts until the screen opens, as a button "
     "enables itself after its opening run; disable it in code instead.",
     "window"},
    {58, AnyWindow, "Sets whether the window, as a popup, opens without dimming what is under it.",
     "keyboard"},
    {114, AnyWindow, "Sets another position and size. A negative width or height keeps the old one."},

    {98, TabStops,
     "Lists inner windows in the order in which Tab and the left and right keys visit them. Used on a screen "
     "or popup.",
     "taborder"},
    {92, TabStops,
     "Lists what the keys Insert and Delete change: a combo box, or the radio buttons of a group or tab "
     "control. Used on a screen or popup.",
     "taborder"},
    {93, TabStops, "Does the same for the keys Home and End.", "taborder"},

    {47, Buttons,
     "A button. Its strip contains the frame runs of its states, one after the other. A negative frame size "
     "stands for the window's size, a negative delay for 1.",
     "button"},
    {49, Buttons, "A button that a click switches on or off.", "checkbox"},
    {50, Buttons, "In a button's block: the tick, a small button that shows whether it is on.", "checkbox"},
    {87, Buttons, "A radio button. Radio buttons whose lines directly follow one another form a group.",
     "radiobutton"},
    {88, Buttons, "In a radio button's block: the mark that shows whether it is on.", "radiobutton"},
    {97, Buttons,
     "Pages of which one is shown. Its block contains the tabs, which are one radio group, and the same "
     "number of pages in the same order; the page that is visible at first is the initial one.",
     "tabcontrol"},
    {59, Buttons, "A text input field. If its name begins with PASSWORD, it hides what is typed.", "editbox"},
    {69, Buttons,
     "A horizontal scroll bar. Six frames: first button normal and pressed, second button normal and "
     "pressed, trough, lever.",
     "scrollbar"},
    {112, Buttons, "A vertical scroll bar, with the same frames as `HSCROLLBAR`.", "scrollbar"},
    {45, Buttons,
     "Sets how many frames the run of each state has. Without it the strip has three frames: normal, hot and "
     "pressed.",
     "button"},
    {44, Buttons, "Sets for how many ticks each frame of a state's run is shown.", "opening"},
    {46, Buttons, "Sets whether the run of each state loops.", "opening"},
    {85, Buttons, "Sets whether a press moves the text by a pixel; by default it does.", "checkbox"},
    {94, Buttons, "Sets whether a click switches the button on or off, like a check box.", "checkbox"},

    {76, Lists, "A list of rows and columns; the statements in its block fill it.", "listbox"},
    {51, Lists,
     "Appends columns: the width of each in pixels, optionally followed by a word for the alignment of its "
     "text (left by default). A list has up to 20 columns; further ones are ignored.",
     "listbox"},
    {102, Lists, "Sets the titles of the columns, from the first one on.", "listbox"},
    {57, Lists,
     "In a list box: adds a row, with a text for each column; `ICON3F2` is frame 2 of icon 3, `ICON3` its "
     "frame 0. In a combo box: adds an item.",
     "listbox"},
    {80, Lists,
     "Sets the height of the rows (a negative one keeps the old), whether the title row is shaded, and "
     "whether a highlight covers a single cell.",
     "listbox"},
    {78, Lists,
     "Sets entries of the font table: three for rows and columns that the game marks, one for the titles.",
     "listbox"},
    {101, Lists, "Sets the picture behind the titles.", "listbox"},
    {77, Lists, "Sets the pictures behind the selected row and behind the one under the pointer.", "listbox"},
    {79, Lists, "Appends icons for `ITEM`, counted from 0.", "listicons"},
    {81, Lists, "Lists columns, counted from 0, whose cells cannot be selected.", "listicons"},
    {82, Lists, "Lists rows, counted from 0, that cannot be selected.", "listicons"},
    {74, Lists, "Sets whether a cell that reads 0 or 0.0 shows a dash, and whether rows appear one by one.",
     "listbox"},
    {91, Lists,
     "Sets the strip and the width of a scroll bar, which are only stored: the list's own scroll bar always "
     "uses `uig\\scroll1.bmp`, 16 wide."},
    {52, Lists,
     "A button that shows one item of a list; a click opens the menu of all items. `ITEM` lines in its block "
     "add them.",
     "combobox"},
    {53, Lists,
     "In a combo box's block: the menu, which is a list box. Without one the combo box creates its own.",
     "combobox"},
    {55, Lists, "In a combo box's block: the button that steps back.", "combobox"},
    {54, Lists, "In a combo box's block: the button that steps forward.", "combobox"},
    {56, Lists, "Sets whether a step past either end wraps around; by default it does.", "combobox"},
    {68, Lists, "Sets whether a click opens the menu; by default it does.", "combobox"},
    {84, Lists, "Sets whether the menu opens below the box; by default it opens above.", "combobox"},

    {86, Displays,
     "A bar that grows from the left. Frame 0 is the full bar, frame 1, if the strip is wide enough, the "
     "empty one.",
     "progressbar"},
    {111, Displays, "A bar that grows from the bottom, with the same frames as `PROGRESSBAR`.",
     "progressbar"},
    {109, Displays, "A text that is printed letter by letter, and again when it changes.", "vidiprinter"},
    {64, Displays, "A graph of up to four series of values, as bars; the same as `BARGRAPH`.", "bargraph"},
    {36, Displays, "A graph of up to four series of values, as bars.", "bargraph"},
    {75, Displays, "A graph of up to four series of values, as lines.", "linegraph"},
    {66, Displays,
     "Sets two texts that are kept for the game, the number of steps between the numbers and between the "
     "grid lines of the axes, and whether a bar of 0 is drawn as a line.",
     "bargraph"},
    {72, Displays,
     "An on-screen keyboard: a list box whose cells are the keys. `OK` closes the popup, `<` deletes the "
     "last character, `Sp` is a blank, any other text types itself.",
     "keyboard"},

    {73, Words, "Left.", "listbox"},
    {48, Words, "Centred.", "text"},
    {89, Words, "Right.", "text"},
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
        return "Alignment words";
    }
}

} // namespace tgx::script_text

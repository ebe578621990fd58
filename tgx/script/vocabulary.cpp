#include "tgx/script/vocabulary.h"

#include "tgx/controls/editbox.h"
#include "tgx/controls/keyboard.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/progressbar.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"
#include "tgx/controls/vidiprinter.h"
#include "tgx/script/statements.h"
#include "tgx/wnd/reserved.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace tgx {

namespace {

using enum StatementKind;

template<class... Type>
constexpr std::uint32_t typeMask(Type... each)
{
    return (0u | ... | (1u << each));
}
constexpr TargetRule any{};
constexpr TargetRule list{typeMask(AWnd::WND_LISTBOX)};
constexpr TargetRule listOrElseNothing{typeMask(AWnd::WND_LISTBOX), TargetRule::DoesNothing};
constexpr TargetRule combo{typeMask(AWnd::WND_COMBOBOX)};
constexpr TargetRule comboOrElseNothing{typeMask(AWnd::WND_COMBOBOX), TargetRule::DoesNothing};
constexpr TargetRule listOrCombo{typeMask(AWnd::WND_LISTBOX, AWnd::WND_COMBOBOX)};
constexpr TargetRule graph{typeMask(AWnd::WND_GRAPH)};
constexpr TargetRule buttonOrElseNothing{typeMask(AWnd::WND_BUTTON), TargetRule::DoesNothing};
constexpr TargetRule radioOrElseNothing{typeMask(AWnd::WND_RADIOBUTTON), TargetRule::DoesNothing};
// The window types of AButton and the classes derived from it.
constexpr TargetRule anyButton{typeMask(AWnd::WND_BUTTON, AWnd::WND_RADIOBUTTON, AWnd::WND_COMBOBOX)};

constexpr TokenCounts noLine{};
constexpr TokenCounts boxCounts = counts(6);
constexpr TokenCounts textCounts = counts(7, 9, 10);
constexpr TokenCounts buttonCounts = counts(7, 10, 13, 17, 18);
constexpr TokenCounts stateCounts = counts(6, 9, 13, 14);
constexpr TokenCounts barCounts = counts(9);

constexpr const char* boxForm = R"("name" x y width height)";
constexpr const char* textForm = R"("name" x y width height "text" textX textY "bitmap")";
constexpr const char* buttonForm =
    R"("name" x y width height "text" textX textY "bitmap" frameWidth frameHeight delay )"
    "startupFrames normalFrames hotFrames pressedFrames disabledFrames";
constexpr const char* stateForm = R"(x y width height "bitmap" frameWidth frameHeight delay )"
                                  "startupFrames normalFrames hotFrames pressedFrames disabledFrames";
constexpr const char* barForm = R"("name" x y width height "bitmap" frameWidth frameHeight)";
constexpr const char* fiveStates = "startup normal hot pressed disabled";
constexpr const char* justification = "LEFT|CENTRE|RIGHT";

constexpr Statement rows[] = {
    {14, "BEGIN", BlockBegin, counts(1), ""},
    {15, "END", BlockEnd, counts(1), ""},
    {36, "BARGRAPH", Window, boxCounts, boxForm, any, on<addControl<AGraph>>}, // the style of a new graph
    {37, "BITMAP", Window, counts(7, 11),
     R"("name" x y width height "bitmap" frameWidth frameHeight delay frames)", any, on<bitmap>},
    {38, "BMPFILE", Attribute, counts(2), R"("bitmap")", any, on<bmpFile>},
    {39, "BMPFRAME", Attribute, counts(2), "frame", any, on<&AWnd::setCurrentFrame>},
    {40, "BMPINFO", Attribute, counts(5), "frameWidth frameHeight delay frames", any, on<&AWnd::setBmpInfo>},
    {41, "BMPOFFSET", Attribute, counts(3), "x y", any, on<&AWnd::setBmpOffset>},
    {42, "BMPSOURCE", Attribute, counts(3), "x y", any, on<&AWnd::setBmpSourceInfo>},
    {43, "BORDER", Attribute, counts(4, 5), R"("bitmap" width pieceSize "hotBitmap")", any, on<border>},
    {44, "BUTTONFPS", Attribute, counts(5, 6), fiveStates, anyButton, on<&AButton::setButtonAnimFPS>},
    {45, "BUTTONFRAMES", Attribute, counts(5, 6), fiveStates, anyButton, on<&AButton::setButtonAnimFrames>},
    {46, "BUTTONLOOP", Attribute, counts(5, 6), fiveStates, anyButton, on<&AButton::setButtonAnimLoop>},
    {47, "BUTTON", Window, buttonCounts, buttonForm, any, on<addButton<AButton>>},
    {48, "CENTRE", ArgumentWord, noLine, ""},
    {49, "CHECKBOX", Window, buttonCounts, buttonForm, any, on<checkBox>},
    {50, "CHECKBOXSTATE", Window, stateCounts, stateForm, buttonOrElseNothing,
     on<stateButton<part::checkboxState>>},
    {51, "COLUMNS", Attribute, atLeast(1), "width|LEFT|CENTRE|RIGHT ...", list, on<columns>},
    {52, "COMBOBOX", Window, buttonCounts, buttonForm, any, on<addButton<AComboBox>>},
    {53, "COMBOMENU", Window, counts(6), R"(x y width height "bitmap")", any, on<comboMenu>},
    {54, "COMBONEXT", Window, stateCounts, stateForm, comboOrElseNothing, on<stateButton<part::comboNext>>},
    {55, "COMBOPREV", Window, stateCounts, stateForm, comboOrElseNothing, on<stateButton<part::comboPrev>>},
    {56, "COMBOWRAP", Attribute, counts(2), "flag", comboOrElseNothing, on<&AComboBox::setWrapItems>},
    {57, "ITEM", Attribute, atLeast(1), R"("text" ...)", listOrCombo, on<item>},
    {58, "EASYCLOSE", Attribute, counts(2), "flag", any, on<&AWnd::setEasyClose>},
    {59, "EDITBOX", Window, textCounts, textForm, any, on<addTextControl<AEditBox>>},
    {60, "ENABLED", Attribute, counts(2), "flag", any, on<&AWnd::setEnabled>},
    {61, "FONT", Attribute, counts(2), "font", any, on<font>},
    {62, "ADDFONT", Command, counts(4, 5), R"("file" "style" size spacing)", any, on<addFont>},
    {63, "GOTO", Command, atLeast(1), R"("subroutine" "script")", any, on<goTo>},
    {64, "GRAPH", Window, boxCounts, boxForm, any, on<addControl<AGraph>>},
    {66, "GRAPHINFO", Attribute, atLeast(1),
     R"("text1" "text2" xLabelEvery yLabelEvery yGridEvery xGridEvery showEmptyBars)", graph, on<graphInfo>},
    {68, "COMBODROPS", Attribute, counts(2), "flag", combo, on<&AComboBox::setMenuAllowed>},
    {69, "HSCROLLBAR", Window, barCounts, barForm, any, on<addBar<AScrollBar, true>>},
    {71, "JUSTIFY", Attribute, counts(2), justification, any, on<justify>},
    {72, "KEYBOARD", Window, boxCounts, boxForm, any, on<addControl<AKeyboard>>},
    {73, "LEFT", ArgumentWord, noLine, ""},
    {74, "LISTOPTIONS", Attribute, atLeast(1), "zeroAsDash gradualReveal", list, on<listOptions>},
    {75, "LINEGRAPH", Window, boxCounts, boxForm, any, on<lineGraph>},
    {76, "LISTBOX", Window, boxCounts, boxForm, any, on<addControl<AListBox>>},
    {77, "LISTHIGHLIGHT", Attribute, counts(3), R"("selectedBitmap" "hotBitmap")", list, on<listHighlight>},
    {78, "LISTFONTS", Attribute, atLeast(1), "row1 row2 row3 title", list, on<listFonts>},
    {79, "LISTICONS", Attribute, atLeast(1), R"("bitmap" ...)", list, on<listIcons>},
    {80, "LISTLOOK", Attribute, atLeast(2), "rowHeight titleShaded cellHighlight", list, on<listLook>},
    {81, "LISTFIXEDCOLUMNS", Attribute, atLeast(1), "column ...", list, on<listFixedColumns>},
    {82, "LISTFIXEDROWS", Attribute, atLeast(1), "row ...", list, on<listFixedRows>},
    {83, "POINTER", Reference, counts(2, 3), R"("window" "script")", any, on<pointer>},
    {84, "COMBOBELOW", Attribute, counts(2), "flag", combo, on<&AComboBox::setMenuBelow>},
    {85, "BUTTONTEXTSHIFT", Attribute, counts(2), "flag", anyButton, on<&AButton::setTextShift>},
    {86, "PROGRESSBAR", Window, barCounts, barForm, any, on<addBar<AProgressBar, true>>},
    {87, "RADIOBUTTON", Window, buttonCounts, buttonForm, any, on<radioButton>},
    {88, "RADIOSTATE", Window, stateCounts, stateForm, radioOrElseNothing, on<stateButton<part::radioState>>},
    {89, "RIGHT", ArgumentWord, noLine, ""},
    {90, "SCREEN", StatementKind::Screen, counts(7, 8), R"("name" x y width height "backdrop" "extra")", any,
     on<screen>},
    {91, "SCROLLBARINFO", Attribute, counts(3), R"("bitmap" width)", listOrElseNothing,
     on<&AListBox::setScrollBarInfo>},
    {92, "TABLIST1", Attribute, atLeast(2), R"("window" ...)", any,
     on<tabStops<&ATabStopInfo::insertDeleteWnds>>},
    {93, "TABLIST2", Attribute, atLeast(2), R"("window" ...)", any, on<tabStops<&ATabStopInfo::homeEndWnds>>},
    {94, "BUTTONCHECK", Attribute, counts(2), "flag", anyButton, on<&AButton::setCheckBox>},
    {95, "BMPSTRETCH", Attribute, counts(2), "flag", any, on<&AWnd::setBmpStretch>},
    {96, "SUBROUTINE", Definition, counts(2), R"("name")"},
    {97, "TABCONTROL", Window, boxCounts, boxForm, any, on<addControl<ATabControl>>},
    {98, "TABORDER", Attribute, atLeast(2), R"("window" ...)", any,
     on<tabStops<&ATabStopInfo::tabOrderWnds>>},
    {99, "TEXTWND", Window, textCounts, textForm, any, on<textWnd>},
    {100, "BMPTILE", Attribute, counts(2), "flag", any, on<&AWnd::setBmpTile>},
    {101, "TITLEBMP", Attribute, counts(2), R"("bitmap")", list, on<&AListBox::setTitleBmpFile>},
    {102, "TITLES", Attribute, atLeast(1), R"("text" ...)", list, on<titles>},
    {103, "BMPBLITMODE", Attribute, counts(2), "mode", any, on<&AWnd::setBmpBlitMode>},
    {104, "TEXTOFFSET", Attribute, counts(3), "x y", any, on<&AWnd::setTextOffset>},
    {105, "TEXT", Attribute, counts(2), R"("text")", any, on<text>},
    {106, "USERDEF", Window, counts(6, 7), R"("name" x y width height "class")", any, on<userDef>},
    {107, "TEXTCENTREV", Attribute, counts(2), "flag", any, on<&AWnd::setTextCentreV>},
    {108, "TEXTRAW", Attribute, counts(2), "flag", any, on<&AWnd::setTextRaw>},
    {109, "VIDIPRINTER", Window, textCounts, textForm, any, on<addTextControl<AVidiPrinter>>},
    {110, "VISIBLE", Attribute, counts(2), "flag", any, on<&AWnd::setVisible>},
    {111, "VPROGRESSBAR", Window, barCounts, barForm, any, on<addBar<AProgressBar, false>>},
    {112, "VSCROLLBAR", Window, barCounts, barForm, any, on<addBar<AScrollBar, false>>},
    {113, "WINDOW", Window, boxCounts, boxForm, any, on<window>},
    {114, "WNDPOS", Attribute, counts(5), "x y width height", any, on<&AWnd::setWndPos>},
    {115, "TEXTWRAP", Attribute, counts(2), "flag", any, on<&AWnd::setTextWrap>},
};

constexpr auto rowsById = [] {
    std::array<const Statement*, 256> table{};
    for (const Statement& row : rows)
        table[static_cast<std::size_t>(row.id)] = &row;
    return table;
}();

} // namespace

std::span<const Statement> vocabulary()
{
    return rows;
}

const Statement* statementById(int id)
{
    return id >= 0 && id < 256 ? rowsById[static_cast<std::size_t>(id)] : nullptr;
}

const Statement* statementByKeyword(std::string_view keyword)
{
    for (const Statement& row : rows)
        if (keyword == row.keyword)
            return &row;
    return nullptr;
}

std::string_view argumentName(const Statement& statement, int token)
{
    std::string_view form = statement.form;
    std::string_view argument;
    for (; token > 0 && !form.empty(); --token) {
        const std::string_view word = form.substr(0, form.find(' '));
        form.remove_prefix(std::min(word.size() + 1, form.size()));
        if (word != "...")
            argument = word;
    }
    return argument;
}

ArgumentKind argumentKind(const Statement& statement, int token)
{
    const std::string_view argument = argumentName(statement, token);
    if (argument.empty())
        return ArgumentKind::Number;
    if (argument[0] == '"')
        return ArgumentKind::String;
    if (std::isupper(static_cast<unsigned char>(argument[0])))
        return ArgumentKind::Word;
    return argument.find('|') == std::string_view::npos ? ArgumentKind::Number : ArgumentKind::NumberOrWord;
}

} // namespace tgx

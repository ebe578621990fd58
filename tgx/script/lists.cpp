// Statements that set attributes of list boxes, and the one that fills list and combo boxes.

#include "tgx/controls/combobox.h"
#include "tgx/script/statements.h"

#include <cstdlib>

namespace tgx {

namespace {

/// Sets a cell of an ITEM line that consists of "ICON", a number and, optionally, "F" and the number of a
/// frame.
void setIconCell(AListBox& list, int row, int column, const CString& text)
{
    constexpr int wordLength = 4;
    const int mark = text.Find('F');
    const int frame = mark < 0 ? 0 : std::atoi(text.Mid(mark + 1));
    list.setItemDataWithIconIndex(row, column, std::atoi(text.Mid(wordLength)), frame); // atoi stops at the F
}

// Adds one row per line. A list without columns gets one of its own width. A cell without a column, or whose
// column was added after a row, fails the line; the cells before it stay. Cells beyond the maximum number of
// columns are dropped.
bool addRow(AListBox& list, const ScriptLine& line)
try {
    if (list.getColumnCount() == 0)
        list.addColumn(list.width(), AWnd::TJ_LEFT);
    const int row = list.addItem();
    for (int column = 0; column < line.count - 1; ++column) {
        const CString& text = line.text(column + 1);
        if (text.view().starts_with("ICON"))
            setIconCell(list, row, column, text);
        else
            list.setItemData(row, column, text);
    }
    return true;
} catch (const CInvalidArgException&) {
    return false;
}

} // namespace

// Adds an item to a combo box or a row to a list box.
bool item(AWnd& target, const ScriptLine& line)
{
    if (auto* list = windowAs<AListBox>(&target))
        return addRow(*list, line);
    auto* combo = windowAs<AComboBox>(&target);
    if (combo)
        combo->addItem(line.text(1));
    return combo != nullptr;
}

// Each column has a width, optionally followed by its justification.
void columns(AListBox& list, const ScriptLine& line)
{
    for (int i = 1; i < line.count; ++i) {
        const int width = line.number(i);
        AWnd::E_TEXTJUSTIFY justify = AWnd::TJ_LEFT;
        if (i + 1 < line.count && justificationOf(line.tokens[i + 1], justify))
            ++i;
        list.addColumn(width, justify);
    }
}

void titles(AListBox& list, const ScriptLine& line)
{
    for (int i = 1; i < line.count; ++i)
        list.setTitle(i - 1, line.text(i));
}

void listOptions(AListBox& list, const ScriptLine& line)
{
    if (line.count >= 2)
        list.setZeroAsDash(line.number(1));
    if (line.count >= 3)
        list.setGradualReveal(line.number(2));
}

void listHighlight(AListBox& list, const ScriptLine& line)
{
    list.setSelectedRowBmpFile(line.text(1));
    list.setHotRowBmpFile(line.text(2));
}

// A font that is not in the font table fails the line, as with FONT; the fonts before it stay.
bool listFonts(AListBox& list, const ScriptLine& line)
{
    constexpr int rowFonts = 3;
    for (int i = 1; i <= rowFonts + 1 && i < line.count; ++i) {
        bmpfont* entry = line.window.getFont(line.number(i));
        if (!entry)
            return false;
        if (i <= rowFonts)
            list.setRowFont(i, entry);
        else
            list.setTitleFont(entry);
    }
    return true;
}

void listIcons(AListBox& list, const ScriptLine& line)
{
    for (int i = 1; i < line.count; ++i)
        list.addIconFile(line.text(i));
}

void listLook(AListBox& list, const ScriptLine& line)
{
    if (line.number(1) >= 0)
        list.setRowHeight(line.number(1));
    if (line.count >= 3)
        list.setTitleShaded(line.number(2));
    if (line.count >= 4)
        list.setCellHighlight(line.number(3));
}

void listFixedColumns(AListBox& list, const ScriptLine& line)
{
    for (int i = 1; i < line.count; ++i)
        list.addNonSelectableColumn(line.number(i));
}

void listFixedRows(AListBox& list, const ScriptLine& line)
{
    for (int i = 1; i < line.count; ++i)
        list.addNonSelectableRow(line.number(i));
}

} // namespace tgx

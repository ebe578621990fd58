// Rules for lists and combo boxes: columns, rows and icons.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/cell.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

/// Reads protected fields of lists.
struct ListAccess : AListBox {
    static const CArray<CString>& iconsOf(const AListBox& list) { return list.*(&ListAccess::iconFiles); }
};

/// Returns whether the cell is ICON and a number, optionally followed by F and a frame.
bool isIcon(std::string_view cell)
{
    const auto takeDigits = [&cell] {
        const std::size_t end = std::min(cell.find_first_not_of("0123456789"), cell.size());
        cell.remove_prefix(end);
        return end > 0;
    };
    cell.remove_prefix(4);
    if (!takeDigits())
        return false;
    if (!cell.starts_with('F'))
        return cell.empty();
    cell.remove_prefix(1);
    return takeDigits() && cell.empty();
}

class ListRules {
public:
    ListRules(TreeCheck& treeCheck, AListBox& checkedList) : check(treeCheck), list(checkedList) {}

    void run()
    {
        checkColumns();
        checkIconTexts();
        checkIcons();
        checkScrollBar();
    }

private:
    void checkColumns()
    {
        const std::vector<LineRef> lines = check.linesOn(list, "COLUMNS");
        if (lines.empty())
            return; // the game may add them
        int columns = 0;
        for (const LineRef& at : lines)
            for (int token = 1; token < at.script->tokenCount(at.line); ++token) {
                if (++columns == AListBox::maxColumns + 1)
                    check.findings.add("no-effect", *at.script, at.line, token,
                                       "a list has at most " + std::to_string(AListBox::maxColumns) +
                                           " columns; it ignores the rest");
                token += isWord(at, token + 1); // how this column is justified
            }
        const int count = list.getColumnCount();
        const std::string columnCount =
            describe(list) + " has " + std::to_string(count) + (count == 1 ? " column" : " columns");
        for (const LineRef& at : check.linesOn(list, "TITLES"))
            if (at.script->tokenCount(at.line) > count + 1)
                check.findings.add("no-effect", *at.script, at.line, count + 1,
                                   columnCount + "; a title after the last column is not shown");
        for (const LineRef& at : check.linesOn(list, "LISTFIXEDCOLUMNS"))
            for (int token = 1; token < at.script->tokenCount(at.line); ++token)
                if (const int column = at.script->number(at.line, token); column < 0 || column >= count)
                    check.findings.add("no-effect", *at.script, at.line, token,
                                       columnCount + ", counted from 0; there is no column " +
                                           std::to_string(column));
    }

    static bool isWord(const LineRef& at, int token)
    {
        if (token >= at.script->tokenCount(at.line))
            return false;
        const int id = at.script->line(at.line).tokens[static_cast<std::size_t>(token)].id;
        return id == keyword::left || id == keyword::centre || id == keyword::right;
    }

    void checkIconTexts()
    {
        for (const LineRef& at : check.linesOn(list, "ITEM"))
            for (int token = 1; token < at.script->tokenCount(at.line); ++token)
                if (const std::string& text = at.script->string(at.line, token);
                    text.starts_with("ICON") && !isIcon(text))
                    check.findings.add("missing-icon", *at.script, at.line, token,
                                       inQuotes(text) +
                                           " is read as an icon, because it begins with ICON; expected a "
                                           "number after that, as in ICON0 or ICON0F2");
    }

    void checkIcons()
    {
        const CArray<CString>& files = ListAccess::iconsOf(list);
        if (files.IsEmpty())
            return; // the game may add them
        ItemLines lines(check, list, list.getItemCount());
        for (int row = 0; row < list.getItemCount(); ++row)
            for (int column = 0; column < list.getColumnCount(); ++column) {
                const CString text = list.getItemText(row, column);
                const ListCell cell = ListCell::decode(text.view());
                if (cell.picture == ListCell::None)
                    continue;
                const std::string place = "row " + std::to_string(row) + " of " + describe(list);
                if (cell.icon < 0 || cell.icon >= files.GetSize()) {
                    lines.add("missing-icon", row, column,
                              place + " shows icon " + std::to_string(cell.icon) + ", but LISTICONS names " +
                                  std::to_string(files.GetSize()));
                    continue;
                }
                const std::string& file = files.GetAt(cell.icon).str();
                const Picture* picture = check.pictures.find(file);
                const int step = list.getColumnWidth(column) + 1;
                const int rowStep = std::max(list.getRowHeight(), 1) + 1;
                if (picture && cell.number > 0 && !hasFrame(*picture, step, rowStep, cell.number))
                    lines.add("strip-too-small", row, column,
                              inQuotes(file) + " is " + size(picture->width, picture->height) +
                                  " pixels and has no frame " + std::to_string(cell.number) + " of " +
                                  size(step - 1, rowStep - 1) + " for " + place);
            }
    }

    static bool hasFrame(const Picture& picture, int step, int rowStep, int frame)
    {
        const int perRow = step > 0 ? picture.width / step : 0;
        return perRow > 0 && static_cast<long long>(frame / perRow) * rowStep < picture.height;
    }

    void checkScrollBar()
    {
        if (const AScrollBar* bar = list.getScrollBar();
            bar && check.hasData && !check.pictures.exists(bar->getBmpFilename().str()))
            check.add("missing-bitmap", list,
                      describe(list) +
                          " has more rows than fit and creates a scroll bar, but there is no picture " +
                          inQuotes(bar->getBmpFilename().view()) + " in the data directory");
    }

    TreeCheck& check;
    AListBox& list;
};

void checkCombo(TreeCheck& check, const AComboBox& combo)
{
    for (const LineRef& at : check.linesOn(combo, "ITEM"))
        if (at.script->tokenCount(at.line) > 2)
            check.findings.add("no-effect", *at.script, at.line, 2,
                               "an item of a combo box is one text; the rest is ignored");
}

/// Finds a COMBOMENU outside of a combo box.
void checkMenu(TreeCheck& check, const AWnd& menu, LineRef made)
{
    const AWnd* parent = menu.getParent();
    if (made.script->isKeyword(made.line, "COMBOMENU") && parent &&
        parent->getWindowType() != AWnd::WND_COMBOBOX && !check.reading.isGameWindow(parent))
        check.add("no-effect", menu, "this menu is not inside a combo box, so nothing opens it");
}

} // namespace

void checkLists(TreeCheck& check, AWnd& root)
{
    forEachBelow(root, [&](AWnd& wnd) {
        const WndLines* lines = check.reading.linesOf(&wnd);
        if (!lines || !lines->made || check.reading.isGameWindow(&wnd))
            return;
        checkMenu(check, wnd, lines->made);
        if (wnd.getWindowType() == AWnd::WND_LISTBOX)
            ListRules(check, static_cast<AListBox&>(wnd)).run();
        else if (wnd.getWindowType() == AWnd::WND_COMBOBOX)
            checkCombo(check, static_cast<AComboBox&>(wnd));
    });
}

} // namespace tgx::script_check

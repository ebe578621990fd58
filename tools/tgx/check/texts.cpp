// Texts against their boxes, measured as they are drawn.

#include "platform/display/bmpfont.h"
#include "platform/host/codepage.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/cell.h"
#include "tgx/wnd/textline.h"
#include "tgx/wnd/wrap.h"
#include "tools/tgx/check/tree.h"
#include "tools/tgx/check/words.h"

#include <cstdlib>

namespace script_check {

namespace {

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \n") == std::string_view::npos;
}

/// What stands behind the last line that has room; "" when all is shown.
std::string_view lostByWrapping(std::string_view text, const bmpfont& font, int width, int height)
{
    std::size_t end = 0;
    for (TextWrap wrapped(text, &font, width, height); wrapped.next();)
        end = static_cast<std::size_t>(wrapped.getLineStart()) + wrapped.line().size();
    std::string_view rest = text.substr(std::min(end, text.size()));
    if (isBlank(rest) || rest == "\\n")
        return {};
    return rest.substr(rest.find_first_not_of(" \n"));
}

/// What is wrong with the text in its box; "" when it fits.
std::string misfit(const AWnd& wnd, std::string_view text, const bmpfont& font)
{
    const std::string inFont = " in font " + std::to_string(font.getIndex());
    const int width = wnd.getWndWidth() - wnd.getTextOffsetX();
    const int height = wnd.getWndHeight() - wnd.getTextOffsetY();
    if (wnd.getTextWrap()) {
        const std::string_view lost = lostByWrapping(text, font, width, height);
        if (lost.empty())
            return "";
        return "has no room in " + size(width, height) + " pixels" + inFont + " from " + inQuotes(lost) +
               " on";
    }
    int length = 0;
    if (cutToWidth(&font, text, width, length).size() < text.size())
        return "is " + std::to_string(font.stringLength(text)) + " pixels wide" + inFont +
               ", and its box has " + std::to_string(width);
    if (font.charHeight > wnd.getWndHeight())
        return "is " + std::to_string(font.charHeight) + " pixels high" + inFont + ", and its box has " +
               std::to_string(wnd.getWndHeight());
    return "";
}

void checkItems(TreeCheck& check, AComboBox& combo)
{
    for (int i = 0; i < combo.getItemCount(); ++i) {
        const std::string_view item = combo.getItemText(i).view();
        if (const std::string why = misfit(combo, item, *combo.getFont()); !why.empty()) {
            check.add("text-clipped", combo,
                      "the item " + inQuotes(item) + " of " + describe(combo) + ' ' + why);
            return; // one tells how wide the box has to be
        }
    }
}

/// The first text that is cut tells. Which rows the game puts into other fonts nobody knows.
void checkCells(TreeCheck& check, AListBox& list)
{
    for (int which = 1; which <= 3; ++which)
        if (list.getRowFont(which))
            return;
    for (int row = 0; row < list.getItemCount(); ++row)
        for (int column = 0; column < list.getColumnCount(); ++column) {
            const CString stored = list.getItemText(row, column);
            const std::string_view text = ListCell::decode(stored.view()).text;
            const int width = list.getFont()->stringLength(text);
            if (width <= std::abs(list.getColumnWidth(column)))
                continue;
            check.add("text-clipped", list,
                      "the text " + inQuotes(text) + " in row " + std::to_string(row) + " of " +
                          describe(list) + " is " + std::to_string(width) + " pixels wide in font " +
                          std::to_string(list.getFont()->getIndex()) + ", and column " +
                          std::to_string(column) + " has " + std::to_string(list.getColumnWidth(column)));
            return;
        }
}

void checkText(TreeCheck& check, AWnd& wnd, const WndLines& lines)
{
    const bmpfont* font = wnd.getFont();
    // An edit box shows the part about the caret; raw text is not cut.
    if (!check.reading.isKnownFont(font) || wnd.getTextRaw() || !lines.text ||
        wnd.getWindowType() == AWnd::WND_EDITBOX || check.reading.isOfGame(&wnd))
        return;
    const Script& script = *lines.text.script;
    if (const std::string_view text = wnd.getText().view(); !text.empty()) {
        const int token = script.isKeyword(lines.text.line, "TEXT") ? 1 : 6;
        if (const std::string why = misfit(wnd, text, *font); !why.empty())
            check.findings.add("text-clipped", script, lines.text.line, token,
                               "the text of " + describe(wnd) + ' ' + why);
    }
    if (wnd.getWindowType() == AWnd::WND_COMBOBOX)
        checkItems(check, static_cast<AComboBox&>(wnd));
    else if (wnd.getWindowType() == AWnd::WND_LISTBOX)
        checkCells(check, static_cast<AListBox&>(wnd));
}

} // namespace

void checkTexts(TreeCheck& check, AWnd& root)
{
    forEachBelow(root, [&](AWnd& wnd) {
        if (const WndLines* lines = check.reading.linesOf(&wnd))
            checkText(check, wnd, *lines);
    });
}

} // namespace script_check

// Rules for texts that do not fit their boxes, measured as the toolkit draws them.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "platform/media/bmpfont.h"
#include "platform/media/encoding.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/cell.h"
#include "tgx/wnd/textline.h"
#include "tgx/wnd/wrap.h"

#include <algorithm>
#include <cstdlib>

namespace tgx::script_check {

namespace {

bool isBlank(std::string_view text)
{
    return text.find_first_not_of(" \n") == std::string_view::npos;
}

/// The parts of a wrapped text that are not drawn.
struct WrapLoss {
    std::string_view word; // too wide for a line; it is broken, and loses a letter at each break
    std::string_view rest; // after the last line that fits
};

WrapLoss lossByWrapping(std::string_view text, const bmpfont& font, int width, int height)
{
    WrapLoss loss;
    std::size_t end = 0; // of the previous line
    for (TextWrap wrapped(text, &font, width, height); wrapped.next();) {
        const auto start = static_cast<std::size_t>(wrapped.getLineStart());
        const std::string_view gap = text.substr(end, std::max(start, end) - end);
        if (loss.word.empty() && end > 0 && !isBlank(gap) && gap != "\\n") {
            const std::size_t first = text.find_last_of(" \n", end) + 1; // npos + 1 is 0
            loss.word = text.substr(first, text.find_first_of(" \n", end) - first);
        }
        end = start + wrapped.line().size();
    }
    const std::string_view rest = text.substr(std::min(end, text.size()));
    if (!isBlank(rest) && rest != "\\n")
        loss.rest = rest.substr(rest.find_first_not_of(" \n"));
    return loss;
}

/// Returns how the text does not fit its box, or "" if it does.
std::string misfit(const AWnd& wnd, std::string_view text, const bmpfont& font)
{
    const std::string inFont = " in font " + std::to_string(font.getIndex());
    const int width = wnd.getWndWidth() - wnd.getTextOffsetX();
    const int height = wnd.getWndHeight() - wnd.getTextOffsetY();
    int length = 0;
    if (wnd.getTextWrap()) {
        const WrapLoss loss = lossByWrapping(text, font, width, height);
        if (!loss.word.empty())
            return "loses letters: " + inQuotes(loss.word) + " is " +
                   std::to_string(font.stringLength(loss.word)) + " pixels wide" + inFont +
                   ", but a line has " + std::to_string(width);
        if (!loss.rest.empty())
            return "does not fit into " + size(width, height) + " pixels" + inFont + ": it is cut before " +
                   inQuotes(loss.rest);
    } else if (cutToWidth(&font, text, width, length).size() < text.size()) {
        return "is " + std::to_string(font.stringLength(text)) + " pixels wide" + inFont +
               ", but its box has " + std::to_string(width);
    }
    if (font.charHeight > wnd.getWndHeight())
        return "is " + std::to_string(font.charHeight) + " pixels high" + inFont + ", but its box has " +
               std::to_string(wnd.getWndHeight());
    return "";
}

void checkItems(TreeCheck& check, AComboBox& combo)
{
    ItemLines lines(check, combo, combo.getItemCount());
    for (int i = 0; i < combo.getItemCount(); ++i) {
        const CString text = combo.getItemText(i);
        if (const std::string why = misfit(combo, text.view(), *combo.getFont()); !why.empty())
            lines.add("text-clipped", i, 0,
                      "the item " + inQuotes(text.view()) + " of " + describe(combo) + ' ' + why);
    }
}

/// Reads protected fields of lists.
struct ListAccess : AListBox {
    static const CArray<CString>& titlesOf(const AListBox& list) { return list.*(&ListAccess::titles); }
    /// Returns the width for a title in pixels. A title that is not centred continues over columns to its
    /// right that have none.
    static int roomOfTitle(const AListBox& list, int column, int length)
    {
        const bool isCentred = (list.*(&ListAccess::columnJustify)).GetAt(column) == TJ_CENTRE;
        return std::abs(isCentred ? list.getColumnWidth(column)
                                  : (list.*(&ListAccess::titleRoom))(column, length));
    }
};

/// Returns the list's font in which the text is narrowest, or null if one of the fonts is unknown. The game
/// may use any of them for a row; a text that is cut in the narrowest one is cut in all.
const bmpfont* narrowestFont(const TreeCheck& check, const AListBox& list, std::string_view text)
{
    const bmpfont* narrowest = list.getFont();
    constexpr int rowFonts = 3;
    for (int which = 1; which <= rowFonts; ++which) {
        const bmpfont* font = list.getRowFont(which);
        if (!font)
            continue;
        if (!check.reading.isKnownFont(font))
            return nullptr;
        if (font->stringLength(text) < narrowest->stringLength(text))
            narrowest = font;
    }
    return narrowest;
}

void checkCells(TreeCheck& check, AListBox& list)
{
    ItemLines lines(check, list, list.getItemCount());
    for (int row = 0; row < list.getItemCount(); ++row)
        for (int column = 0; column < list.getColumnCount(); ++column) {
            const CString stored = list.getItemText(row, column);
            const std::string_view text = ListCell::decode(stored.view()).text;
            const bmpfont* font = narrowestFont(check, list, text);
            if (!font)
                return;
            const int width = font->stringLength(text);
            if (width > std::abs(list.getColumnWidth(column)))
                lines.add("text-clipped", row, column,
                          "the text " + inQuotes(text) + " in row " + std::to_string(row) + " of " +
                              describe(list) + " is " + std::to_string(width) + " pixels wide in font " +
                              std::to_string(font->getIndex()) + ", but column " + std::to_string(column) +
                              " has " + std::to_string(list.getColumnWidth(column)));
        }
}

void checkTitles(TreeCheck& check, AListBox& list)
{
    const CArray<CString>& titles = ListAccess::titlesOf(list);
    const bmpfont* font = list.getTitleFont() ? list.getTitleFont() : list.getFont();
    if (titles.GetSize() == 0 || !check.reading.isKnownFont(font))
        return;
    const std::vector<LineRef> lines = check.linesOn(list, "TITLES");
    for (int column = 0; column < std::min(titles.GetSize(), list.getColumnCount()); ++column) {
        const std::string_view text = titles.GetAt(column).view();
        const int width = font->stringLength(text);
        const int room = ListAccess::roomOfTitle(list, column, width);
        if (width <= room)
            continue;
        const auto at = std::find_if(lines.rbegin(), lines.rend(), [&](const LineRef& each) {
            return each.script->tokenCount(each.line) > column + 1;
        });
        if (at != lines.rend())
            check.findings.add("text-clipped", *at->script, at->line, column + 1,
                               "the title " + inQuotes(text) + " of " + describe(list) + " is " +
                                   std::to_string(width) + " pixels wide in font " +
                                   std::to_string(font->getIndex()) + ", but column " +
                                   std::to_string(column) + " has " + std::to_string(room));
    }
}

void checkText(TreeCheck& check, AWnd& wnd, const WndLines& lines)
{
    const bmpfont* font = wnd.getFont();
    // An edit box shows the part around the caret; raw text is not cut.
    if (!check.reading.isKnownFont(font) || wnd.getTextRaw() || !lines.text ||
        wnd.getWindowType() == AWnd::WND_EDITBOX || check.reading.isGameWindow(&wnd))
        return;
    if (wnd.getWindowType() == AWnd::WND_LISTBOX) {
        checkCells(check, static_cast<AListBox&>(wnd));
        checkTitles(check, static_cast<AListBox&>(wnd));
    } else if (wnd.getWindowType() == AWnd::WND_COMBOBOX && static_cast<AComboBox&>(wnd).getItemCount() > 0) {
        checkItems(check, static_cast<AComboBox&>(wnd)); // its text is one of them
    } else if (const std::string_view text = wnd.getText().view(); !text.empty()) {
        const Script& script = *lines.text.script;
        const int token = script.isKeyword(lines.text.line, "TEXT") ? 1 : 6;
        if (const std::string why = misfit(wnd, text, *font); !why.empty())
            check.findings.add("text-clipped", script, lines.text.line, token,
                               "the text of " + describe(wnd) + ' ' + why);
    }
}

} // namespace

void checkTexts(TreeCheck& check, AWnd& root)
{
    forEachBelow(root, [&](AWnd& wnd) {
        if (const WndLines* lines = check.reading.linesOf(&wnd))
            checkText(check, wnd, *lines);
    });
}

} // namespace tgx::script_check

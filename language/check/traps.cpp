// Rules for scripts that are valid but probably look or behave wrong.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "platform/media/bmpfont.h"
#include "tgx/controls/button.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/floatingmenu.h"
#include "tgx/wnd/border.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tgx::script_check {

namespace {

/// Returns how many of size pixels are left between the borders.
int insideBorders(const AWnd& wnd, int size)
{
    return size - (wnd.getBorder() ? 2 * wnd.getBorder()->getBorderWidth() : 0);
}

// Lists.

/// Finds a last row that takes clicks but is not drawn. A row is drawn only if at least one pixel is left
/// below it.
void checkLastRow(TreeCheck& check, AListBox& list)
{
    const int room = insideBorders(list, list.getWndHeight());
    const int rowHeight = std::max(list.getRowHeight(), 1);
    const int rows = list.getItemCount();
    if (room < rowHeight || room % rowHeight > list.getTextOffsetY() ||
        (rows > 0 && rows < list.getItemsPerPage()))
        return;
    check.add("hidden-last-row", list,
              describe(list) + " has " + std::to_string(room) + " pixels for rows of height " +
                  std::to_string(rowHeight) + ", and the last row that fits is not drawn; make it " +
                  std::to_string(list.getTextOffsetY() + 1 - room % rowHeight) + " higher");
}

void checkColumnsFit(TreeCheck& check, AListBox& list)
{
    const int count = list.getColumnCount();
    const std::vector<LineRef> lines = check.linesOn(list, "COLUMNS");
    if (count == 0 || lines.empty())
        return;
    long long needed = 0;
    for (int column = 0; column < count; ++column)
        needed += list.getColumnGap() + std::abs(list.getColumnWidth(column));
    const int room = insideBorders(list, list.getWndWidth()) - list.getTextOffsetX();
    if (needed > room)
        check.findings.add("wide-columns", *lines.back().script, lines.back().line,
                           "the columns of " + describe(list) + " take " + std::to_string(needed) +
                               " pixels including the gaps before them, but it has " + std::to_string(room));
}

// Combo boxes.

/// Finds a menu that opens below its box and extends below the screen. Items beyond the edge cannot be
/// chosen.
void checkMenuFits(TreeCheck& check, AComboBox& combo, const AWnd& top)
{
    if (!combo.getMenuBelow() || !combo.getMenuAllowed() || combo.getItemCount() == 0 ||
        check.screenHeight <= 0 || top.getWindowType() != AWnd::WND_SCREEN)
        return; // a popup is centred when it opens
    const AListBox* menu = combo.getListBox(part::comboMenu, 1);
    const int rowHeight = menu ? menu->getRowHeight() : AFloatingMenu("", 0, 0, 1, 1).getRowHeight();
    const int bottom = combo.posY(1) + combo.getWndHeight() + rowHeight * combo.getItemCount();
    if (bottom > check.screenHeight)
        check.add("menu-off-screen", combo,
                  "the menu of " + describe(combo) + " ends at " + std::to_string(bottom) +
                      ", below the screen of " + std::to_string(check.screenHeight) +
                      " pixels, so its last items cannot be chosen; remove COMBOBELOW to open it above");
}

// Buttons.

void checkDisabled(TreeCheck& check, AWnd& button)
{
    for (const LineRef& at : check.linesOn(button, "ENABLED"))
        if (at.script->number(at.line, 1) % 2 == 0)
            check.findings.add(
                "no-effect", *at.script, at.line,
                describe(button) +
                    " enables itself when its screen opens; the game can disable it with setButtonState");
}

void checkStates(TreeCheck& check, AButton& button)
{
    AWnd* radioState = button.getWnd(part::radioState, 1);
    AWnd* boxState = button.getWnd(part::checkboxState, 1);
    if (radioState && boxState)
        check.add("no-effect", *boxState,
                  "the window \"RadioState\" of " + describe(button) +
                      " shows the selection, so this state is not used");
}

// Texts.

void checkLineBreaks(TreeCheck& check, AWnd& wnd, const WndLines& lines)
{
    const std::string_view text = wnd.getText().view();
    if (!lines.text || wnd.getTextWrap() || wnd.getTextRaw() || wnd.getWindowType() == AWnd::WND_EDITBOX ||
        (text.find("\\n") == text.npos && text.find('\n') == text.npos))
        return;
    const Script& script = *lines.text.script;
    check.findings.add("line-break", script, lines.text.line,
                       script.isKeyword(lines.text.line, "TEXT") ? 1 : 6,
                       "the text of " + describe(wnd) +
                           " has a line break but is drawn on one line; wrap it with TEXTWRAP 1");
}

void checkEditBoxHeight(TreeCheck& check, AWnd& wnd)
{
    const bmpfont* font = wnd.getFont();
    if (wnd.getWindowType() == AWnd::WND_EDITBOX && check.reading.isKnownFont(font) &&
        font->charHeight > wnd.getWndHeight())
        check.add("text-clipped", wnd,
                  "the text typed into " + describe(wnd) + " is " + std::to_string(font->charHeight) +
                      " pixels high in font " + std::to_string(font->getIndex()) + ", but its box has " +
                      std::to_string(wnd.getWndHeight()));
}

// Tab controls.

void checkHiddenPages(TreeCheck& check, AWnd& tabs)
{
    int pages = 0;
    for (int i = 0; i < tabs.getWindowCount(); ++i) {
        const AWnd* child = tabs.getWndFromIndex(i, "");
        if (!child || AButton::isButton(child))
            continue;
        if (check.reading.isGameWindow(child) || child->isVisible(0))
            return;
        ++pages;
    }
    if (pages > 0)
        check.add("tab-pages", tabs,
                  "all pages of " + describe(tabs) +
                      " are hidden, so none is shown when it opens; make the first one visible");
}

// Screens and boxes.

/// Returns whether the window contains something to click.
bool hasClickable(TreeCheck& check, AWnd& top)
{
    bool found = check.reading.isGameWindow(&top);
    forEachBelow(top,
                 [&](AWnd& wnd) { found = found || isControl(wnd) || check.reading.isGameWindow(&wnd); });
    return found;
}

/// hasSeenClickable: an earlier screen has something to click, so the player leaves screens by clicking.
void checkScreen(TreeCheck& check, AWnd& screen, bool isFirst, bool& hasSeenClickable)
{
    if (screen.getID().IsEmpty())
        check.add("unnamed-screen", screen,
                  isFirst ? "the first screen opens without a name, but nothing can return to it"
                          : "nothing can open a screen without a name");
    if (check.reading.lacksLines() || check.reading.isGameWindow(&screen) || screen.getWindowCount() == 0)
        return;
    if (hasClickable(check, screen))
        hasSeenClickable = true;
    else if (hasSeenClickable)
        check.add("no-way-out", screen,
                  "nothing in " + describe(screen) +
                      " can be clicked; a button TGX_BACK returns to the previous screen");
}

/// Checks the boxes that messageBox and queryBox open.
void checkBox(TreeCheck& check, AWnd& box)
{
    if (check.reading.lacksLines() || check.reading.isGameWindow(&box) ||
        (!CString::equalNoCase(box.getID().view(), "MESSAGEBOX") &&
         !CString::equalNoCase(box.getID().view(), "QUERYBOX")))
        return;
    std::vector<std::string_view> ids;
    bool closes = false;
    forEachBelow(box, [&](AWnd& wnd) {
        ids.push_back(wnd.getID().view());
        closes = closes || check.reading.isGameWindow(&wnd) || closesPopup(wnd.getID().view());
    });
    if (!closes)
        check.add("no-close-button", box,
                  "no button of " + describe(box) +
                      " closes it; TGX_OK, TGX_CANCEL, TGX_YES, TGX_NO and TGX_CLOSE do");
    for (const char* part : {"MESSAGEBOXTITLE", "MESSAGEBOXTEXT"})
        if (!box.getWnd(part, 1))
            check.add("missing-box-part", box,
                      describe(box) + " has no window " + inQuotes(part) + ", so that text is not shown" +
                          check.findings.didYouMean(part, ids));
}

void checkWindow(TreeCheck& check, AWnd& wnd, const AWnd& top)
{
    const WndLines* lines = check.reading.linesOf(&wnd);
    if (!lines || check.reading.isGameWindow(&wnd))
        return;
    const AWnd* parent = wnd.getParent();
    auto* list = windowAs<AListBox>(&wnd);
    if (list && !(parent && parent->getWindowType() == AWnd::WND_COMBOBOX)) {
        checkLastRow(check, *list);
        checkColumnsFit(check, *list);
    }
    if (auto* combo = windowAs<AComboBox>(&wnd)) {
        checkMenuFits(check, *combo, top);
    } else if (auto* button = windowAs<AButton>(&wnd); button && !isPart(check, wnd)) {
        checkDisabled(check, wnd);
        checkStates(check, *button);
    }
    if (wnd.getWindowType() == AWnd::WND_TABCONTROL)
        checkHiddenPages(check, wnd);
    checkLineBreaks(check, wnd, *lines);
    checkEditBoxHeight(check, wnd);
}

} // namespace

void checkTraps(TreeCheck& check, AWnd& root)
{
    bool isFirst = true;
    bool hasSeenClickable = false;
    for (int i = 0; i < root.getWindowCount(); ++i) {
        AWnd* top = root.getWndFromIndex(i, "");
        if (!top)
            continue;
        if (top->getWindowType() == AWnd::WND_SCREEN)
            checkScreen(check, *top, std::exchange(isFirst, false), hasSeenClickable);
        else
            checkBox(check, *top);
        checkWindow(check, *top, *top);
        forEachBelow(*top, [&](AWnd& wnd) { checkWindow(check, wnd, *top); });
    }
}

} // namespace tgx::script_check

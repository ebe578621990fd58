#include "devtools/kept_state.h"

#include "devtools/origins.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <functional>

namespace tgx {

namespace {

/// A change of screens takes a few frames, and a game may take longer, but not indefinitely.
constexpr int framesToWait = 120;

KeptValues valuesOf(AWnd& wnd)
{
    KeptValues values;
    if (auto* combo = dynamic_cast<AComboBox*>(&wnd)) {
        values.item = combo->getSelectedItem();
    } else if (auto* button = dynamic_cast<AButton*>(&wnd)) {
        values.selected = button->getSelected();
    } else if (dynamic_cast<AEditBox*>(&wnd)) {
        values.text = wnd.getWindowText();
    } else if (auto* list = dynamic_cast<AListBox*>(&wnd)) {
        values.item = list->getSelectedItem();
        values.column = list->getSelectedColumn();
    } else if (auto* bar = dynamic_cast<AScrollBar*>(&wnd)) {
        values.percentage = bar->getPercentage();
    }
    return values;
}

void setSelected(AButton& button, int select)
{
    auto* radio = dynamic_cast<ARadioButton*>(&button);
    auto* tabs = dynamic_cast<ATabControl*>(button.getParent());
    if (!radio)
        button.setSelected(select);
    else if (select && tabs)
        tabs->setActiveWnd(radio, 0);
    else if (select)
        radio->setSelectedButton(radio);
}

void setValues(AWnd& wnd, const KeptValues& values)
{
    auto* combo = dynamic_cast<AComboBox*>(&wnd);
    auto* button = dynamic_cast<AButton*>(&wnd);
    auto* list = dynamic_cast<AListBox*>(&wnd);
    auto* bar = dynamic_cast<AScrollBar*>(&wnd);
    if (combo && values.item && *values.item < combo->getItemCount())
        combo->setSelectedItem(*values.item);
    if (button && values.selected)
        setSelected(*button, *values.selected);
    if (dynamic_cast<AEditBox*>(&wnd) && values.text)
        wnd.setWindowText(CString(*values.text));
    if (list && values.item && *values.item < list->getItemCount())
        list->setSelectedItem(*values.item);
    if (list && values.column && *values.column < list->getColumnCount())
        list->setSelectedColumn(*values.column);
    if (bar && values.percentage) {
        if (auto* scrolled = dynamic_cast<AListBox*>(bar->getParent()))
            scrolled->scrollTo(*values.percentage);
        else
            bar->setPercentage(*values.percentage);
    }
}

/// Visits root and all windows below it, each with its place, such as "MENU/PANEL/OK". A repeated id among
/// siblings is numbered. A window that is also shown in a second place is only visited in its own.
void visit(AWnd& wnd, const std::string& place, const std::function<void(AWnd&, const std::string&)>& visitor)
{
    visitor(wnd, place);
    std::map<std::string, int> seen;
    for (int i = 0; i < wnd.getWindowCount(); ++i) {
        AWnd* child = wnd.getWndFromIndex(i, CString());
        if (!child || child->getParent() != &wnd)
            continue;
        const std::string id = child->getID().str();
        const int before = seen[id]++;
        visit(*child, place + '/' + id + (before > 0 ? '#' + std::to_string(before) : ""), visitor);
    }
}

/// Returns the values that differ from first.
KeptValues changesSince(const KeptValues& first, KeptValues now)
{
    const auto dropSame = [](auto& value, const auto& before) {
        if (value == before)
            value.reset();
    };
    dropSame(now.selected, first.selected);
    dropSame(now.text, first.text);
    dropSame(now.item, first.item);
    dropSame(now.column, first.column);
    dropSame(now.percentage, first.percentage);
    return now;
}

} // namespace

InterfaceState::InterfaceState(AMainWin& mainWin, const Origins& wndOrigins)
    : game(mainWin), origins(wndOrigins)
{}

InterfaceState::Values InterfaceState::valuesBelow(AWnd& root)
{
    Values values;
    visit(root, root.getID().str(), [&](AWnd& wnd, const std::string& place) {
        if (KeptValues each = valuesOf(wnd); !(each == KeptValues()))
            values.emplace(place, std::move(each));
    });
    return values;
}

/// Returns the active screen, if it has opened already, and the popups over it.
std::vector<AWnd*> InterfaceState::openWindows() const
{
    std::vector<AWnd*> result;
    if (AScreen* screen = game.getActiveScreen(); screen && screen->isOpen())
        result.push_back(screen);
    for (int i = 0; i < game.getPopupWndCount(); ++i)
        result.push_back(game.getPopupWnd(i));
    return result;
}

void InterfaceState::follow()
{
    std::erase_if(initialStates, [](const InitialState& first) { return first.wnd.get() == nullptr; });
    for (AWnd* wnd : openWindows())
        if (std::none_of(initialStates.begin(), initialStates.end(),
                         [&](const InitialState& first) { return first.wnd == wnd; }))
            initialStates.push_back({wnd, valuesBelow(*wnd)});
    if (isRestoring())
        continueRestoring();
}

void InterfaceState::keep()
{
    // A state that is still being restored remains valid, and so does the last one if no screen is active.
    if (restoring || !game.getActiveScreen())
        return;
    kept.clear();
    screens.clear();
    popups.clear();
    pointerX = game.mouseX;
    pointerY = game.mouseY;
    for (const InitialState& first : initialStates) {
        if (!first.wnd)
            continue;
        for (auto& [place, now] : valuesBelow(*first.wnd)) {
            const auto before = first.values.find(place);
            KeptValues changes = before == first.values.end() ? now : changesSince(before->second, now);
            if (!(changes == KeptValues()))
                kept.insert_or_assign(place, std::move(changes));
        }
    }
    // From the active screen back along the callers, until there is no caller or they form a ring.
    for (AScreen* screen = game.getActiveScreen(); screen;) {
        const std::string id = screen->getID().str();
        if (std::any_of(screens.begin(), screens.end(),
                        [&](const OpenWindow& each) { return each.id == id; }))
            break;
        screens.insert(screens.begin(), {id, origins.scriptOf(*screen), ""});
        const CString& caller = screen->getCaller();
        screen = caller.IsEmpty() ? nullptr : windowAs<AScreen>(game.getWnd(caller, 0));
    }
    // Popups at the back are opened first; among those of one parent the front one, because the others queue
    // after it.
    std::string lastParent;
    std::size_t firstOfParent = 0;
    for (int i = game.getPopupWndCount() - 1; i >= 0; --i) {
        AWnd* popup = game.getPopupWnd(i);
        // Boxes that the game renamed and menus depend on the situation in which they were opened, so they
        // are left out.
        const std::string script = origins.scriptOf(*popup);
        if (script.empty() || popup->isEasyClose())
            continue;
        const std::string parent = popup->getParent() ? popup->getParent()->getID().str() : "";
        if (popups.empty() || parent != lastParent)
            firstOfParent = popups.size();
        lastParent = parent;
        popups.insert(popups.begin() + static_cast<std::ptrdiff_t>(firstOfParent),
                      {popup->getID().str(), script, parent});
    }
}

void InterfaceState::restore()
{
    restoring = true;
    screensRequested = 0;
    popupsRequested = 0;
    alreadySet.clear();
    framesLeft = framesToWait;
}

void InterfaceState::setValuesOfOpenWindows()
{
    bool isSet = false;
    for (AWnd* root : openWindows()) {
        if (std::find(alreadySet.begin(), alreadySet.end(), root) != alreadySet.end())
            continue;
        alreadySet.emplace_back(root);
        visit(*root, root->getID().str(), [&](AWnd& wnd, const std::string& place) {
            if (const auto found = kept.find(place); found != kept.end()) {
                setValues(wnd, found->second);
                isSet = true;
            }
        });
    }
    // As after input by the user, so that the game updates whatever depends on these values.
    if (AWnd* active = isSet ? game.getActiveWnd() : nullptr)
        active->update();
}

void InterfaceState::continueRestoring()
{
    if (--framesLeft < 0) {
        restoring = false;
        // Without a screen the state is kept for the next reload.
        if (game.getActiveScreen() && screensRequested > 0)
            lost.push_back("the screen " + screens[screensRequested - 1].id + " could not be opened again");
        return;
    }
    AScreen* active = game.getActiveScreen();
    if (!game.getPendingScreen().IsEmpty() || !active || !active->isOpen())
        return;
    setValuesOfOpenWindows();
    framesLeft = framesToWait;
    if (screensRequested > 0 && active->getID() != CString(screens[screensRequested - 1].id)) {
        lost.push_back("the screen " + screens[screensRequested - 1].id + " could not be opened again");
        restoring = false;
        return;
    }
    if (screensRequested < screens.size()) {
        const OpenWindow& next = screens[screensRequested];
        // The first one had no caller, so it replaces the screen that the script begins with.
        const int closesCurrent = screensRequested == 0;
        ++screensRequested;
        if (active->getID() != CString(next.id))
            game.changeScreen(CString(next.id), closesCurrent, mainScriptResource,
                              next.script.empty() ? CString(mainScriptFile) : CString(next.script));
        return;
    }
    if (popupsRequested < popups.size()) {
        const OpenWindow& next = popups[popupsRequested++];
        AWnd* parent = next.parent.empty() ? nullptr : game.getWnd(CString(next.parent), 1);
        if (!game.setPopupWnd(CString(next.id), parent, mainScriptResource, CString(next.script)))
            lost.push_back("the popup " + next.id + " could not be opened again");
        return;
    }
    restoring = false;
    game.setMousePos(pointerX, pointerY, 0); // opening a screen has moved it to the first tab stop
}

} // namespace tgx

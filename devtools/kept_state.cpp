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

#include <algorithm>
#include <functional>

namespace {

/// A change of screens takes a few frames; a game may take longer over it, but not for ever.
constexpr int framesToWait = 120;

AListBox* asList(AWnd* wnd)
{
    const AWnd::E_WNDTYPE type = wnd ? wnd->getWindowType() : AWnd::WND_PLAIN;
    return type == AWnd::WND_LISTBOX ? static_cast<AListBox*>(wnd) : nullptr;
}

KeptValues valuesOf(AWnd& wnd)
{
    KeptValues values;
    switch (wnd.getWindowType()) {
    case AWnd::WND_COMBOBOX:
        values.item = static_cast<AComboBox&>(wnd).getSelectedItem();
        break;
    case AWnd::WND_BUTTON:
    case AWnd::WND_RADIOBUTTON:
        values.selected = static_cast<AButton&>(wnd).getSelected();
        break;
    case AWnd::WND_EDITBOX:
        values.text = wnd.getWindowText();
        break;
    case AWnd::WND_LISTBOX:
        values.item = static_cast<AListBox&>(wnd).getSelectedItem();
        values.column = static_cast<AListBox&>(wnd).getSelectedColumn();
        break;
    case AWnd::WND_SCROLLBAR:
        values.percentage = static_cast<AScrollBar&>(wnd).getPercentage();
        break;
    default:
        break;
    }
    return values;
}

void setValues(AWnd& wnd, const KeptValues& values)
{
    switch (wnd.getWindowType()) {
    case AWnd::WND_COMBOBOX: {
        auto& box = static_cast<AComboBox&>(wnd);
        if (values.item && *values.item < box.getItemCount())
            box.setSelectedItem(*values.item);
        break;
    }
    case AWnd::WND_RADIOBUTTON: {
        auto& button = static_cast<ARadioButton&>(wnd);
        AWnd* const around = wnd.getParent();
        if (around && around->getWindowType() == AWnd::WND_TABCONTROL && values.selected == 1)
            static_cast<ATabControl*>(around)->setActiveWnd(&button, 0);
        else if (values.selected == 1)
            button.setSelectedButton(&button);
        break;
    }
    case AWnd::WND_BUTTON:
        if (values.selected)
            static_cast<AButton&>(wnd).setSelected(*values.selected);
        break;
    case AWnd::WND_EDITBOX:
        if (values.text)
            wnd.setWindowText(CString(*values.text));
        break;
    case AWnd::WND_LISTBOX: {
        auto& list = static_cast<AListBox&>(wnd);
        if (values.item && *values.item < list.getItemCount())
            list.setSelectedItem(*values.item);
        if (values.column && *values.column < list.getColumnCount())
            list.setSelectedColumn(*values.column);
        break;
    }
    case AWnd::WND_SCROLLBAR:
        if (!values.percentage)
            break;
        if (AListBox* list = asList(wnd.getParent()))
            list->scrollTo(*values.percentage);
        else
            static_cast<AScrollBar&>(wnd).setPercentage(*values.percentage);
        break;
    default:
        break;
    }
}

/// Visits root and all below it, each with its place: "MENU/PANEL/OK", and with a number behind an id that
/// stands before it among the same children. What is shown in a second place is visited in its own.
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

/// What differs from first; an empty one where nothing does.
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

/// The active screen, once it has opened, and the popups over it.
std::vector<AWnd*> InterfaceState::opened() const
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
    std::erase_if(atFirst, [](const First& first) { return first.wnd.get() == nullptr; });
    for (AWnd* wnd : opened())
        if (std::none_of(atFirst.begin(), atFirst.end(),
                         [&](const First& first) { return first.wnd == wnd; }))
            atFirst.push_back({wnd, valuesBelow(*wnd)});
    if (isRestoring())
        goOnRestoring();
}

void InterfaceState::keep()
{
    if (isRestoring())
        return; // what was kept has not come back yet, and still counts
    kept.clear();
    screensToOpen.clear();
    popupsToOpen.clear();
    pointerX = game.mouseX;
    pointerY = game.mouseY;
    for (const First& first : atFirst) {
        if (!first.wnd)
            continue;
        for (auto& [place, now] : valuesBelow(*first.wnd)) {
            const auto before = first.values.find(place);
            KeptValues changes = before == first.values.end() ? now : changesSince(before->second, now);
            if (!(changes == KeptValues()))
                kept.insert_or_assign(place, std::move(changes));
        }
    }
    // From the active screen back to the one without a caller; a ring ends where it closes.
    for (AWnd* wnd = game.getActiveScreen(); wnd;) {
        const std::string id = wnd->getID().str();
        if (std::any_of(screensToOpen.begin(), screensToOpen.end(),
                        [&](const Opened& each) { return each.id == id; }))
            break;
        screensToOpen.push_back({id, origins.scriptOf(*wnd), ""});
        const CString& caller = static_cast<AScreen*>(wnd)->getCaller();
        wnd = caller.IsEmpty() ? nullptr : game.getWnd(caller, 0);
        if (wnd && wnd->getWindowType() != AWnd::WND_SCREEN)
            break;
    }
    for (int i = 0; i < game.getPopupWndCount(); ++i) {
        AWnd* popup = game.getPopupWnd(i);
        // Boxes that the game renamed, and menus, belong to what was going on when they opened.
        const std::string script = origins.scriptOf(*popup);
        if (!script.empty() && !popup->isEasyClose())
            popupsToOpen.push_back(
                {popup->getID().str(), script, popup->getParent() ? popup->getParent()->getID().str() : ""});
    }
}

void InterfaceState::restore()
{
    hasValuesToSet = true;
    framesLeft = framesToWait;
}

void InterfaceState::goOnRestoring()
{
    if (--framesLeft < 0) {
        screensToOpen.clear();
        popupsToOpen.clear();
        hasValuesToSet = false;
        return;
    }
    AScreen* active = game.getActiveScreen();
    if (!game.getPendingScreen().IsEmpty() || !active || !active->isOpen())
        return;
    if (!screensToOpen.empty()) {
        const Opened next = screensToOpen.back();
        screensToOpen.pop_back();
        if (active->getID() != CString(next.id))
            game.changeScreen(CString(next.id), 0, mainScriptResource,
                              next.script.empty() ? CString(mainScriptFile) : CString(next.script));
        return;
    }
    if (!popupsToOpen.empty()) {
        const Opened next = popupsToOpen.back(); // those in front open last
        popupsToOpen.pop_back();
        AWnd* parent = next.parent.empty() ? nullptr : game.getWnd(CString(next.parent), 1);
        game.setPopupWnd(CString(next.id), parent, mainScriptResource, CString(next.script));
        return;
    }
    hasValuesToSet = false;
    game.setMousePos(pointerX, pointerY, 0); // an opening screen has put it on its first tab stop
    bool isSet = false;
    for (AWnd* root : opened())
        visit(*root, root->getID().str(), [&](AWnd& wnd, const std::string& place) {
            if (const auto found = kept.find(place); found != kept.end()) {
                setValues(wnd, found->second);
                isSet = true;
            }
        });
    // As behind a choice of the player: what depends on it follows.
    if (AWnd* told = isSet ? game.getActiveWnd() : nullptr)
        told->update();
}

#include "tgx/controls/combobox.h"

#include "tgx/base/fixed.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <climits>
#include <cstdlib>

namespace {

bool isKeyForPrevious(const tgx::Stage& stage)
{
    return stage.keyCode == VK_UP || stage.keyDown[VK_HOME] || stage.keyDown[VK_INSERT];
}

bool isKeyForNext(const tgx::Stage& stage)
{
    return stage.keyCode == VK_DOWN || stage.keyDown[VK_END] || stage.keyDown[VK_DELETE];
}

} // namespace

AComboBox::AComboBox(const CString& name, int x, int y, int width, int height)
    : AButton(name, x, y, width, height, WND_COMBOBOX)
{}

void AComboBox::Buttons::setState(E_BUTTON_STATE state)
{
    for (AButton* button : {prev, next})
        if (button)
            button->setButtonState(state);
}

void AComboBox::Buttons::release(const AWnd* hit)
{
    for (AButton* button : {prev, next})
        if (button && button != hit && button->getButtonState() != BS_DISABLED)
            button->setButtonState(BS_NORMAL);
}

/// Returns the two step buttons. A script may give their ids to other kinds of window, which do not count.
AComboBox::Buttons AComboBox::getButtons()
{
    return {getButton(tgx::part::comboPrev, 1), getButton(tgx::part::comboNext, 1)};
}

int AComboBox::addItem(const CString& text)
{
    items.Add(text);
    const int count = items.GetSize();
    Buttons buttons = getButtons();
    if (count == 1) {
        windowText = text;
        buttons.setState(BS_DISABLED); // nothing to step to
    } else {
        setButtonState(BS_NORMAL);
        setEnabled(1);
        for (AButton* button : {buttons.next, buttons.prev})
            if (button) {
                button->setButtonState(BS_NORMAL);
                button->setEnabled(1);
            }
    }
    return count - 1;
}

void AComboBox::reset()
{
    items.RemoveAll();
    selectedItem = 0;
}

CString AComboBox::getSelectedItemText() const
{
    return selectedItem < 0 ? CString() : items[selectedItem];
}

void AComboBox::setSelectedItem(int item)
{
    selectedItem = to16(item);
    windowText = getSelectedItemText();
}

int AComboBox::handleKeyInput(char key)
{
    return AWnd::handleKeyInput(key);
}

int AComboBox::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AButton::handleMouseAction(about, wnd, x, y, action);
    if (!handling.canContinue() || !isVisible(1))
        return 0;
    // An action on one of the two buttons counts as one on the box.
    if (about != tgx::part::comboPrev && about != tgx::part::comboNext && isMeantForAnother(wnd))
        return 0;

    Buttons buttons = getButtons();
    const AWnd* hit = getWndAtPos(x, y, 0);
    const bool onPrev = hit && hit == buttons.prev;
    const bool onNext = hit && hit == buttons.next;
    if (onPrev || onNext)
        setButtonState(BS_NORMAL);
    if (action != MA_LBUTTONUP && action != MA_KEY)
        buttons.release(hit);
    else if (items.GetSize() < 2)
        return 0;
    else if (onPrev || isKeyForPrevious(*tgx::stage()))
        step(-1, buttons.prev);
    else if (onNext || isKeyForNext(*tgx::stage()))
        step(1, buttons.next);
    else {
        buttons.setState(BS_NORMAL);
        if (menuAllowed && action == MA_LBUTTONUP)
            openMenu();
    }
    return 0;
}

void AComboBox::step(int direction, AButton* pressed)
{
    const int last = items.GetSize() - 1;
    if (direction < 0 ? selectedItem > 0 : selectedItem < last)
        selectedItem = to16(selectedItem + direction);
    else if (wrapItems)
        selectedItem = to16(direction < 0 ? last : 0);
    windowText = items[selectedItem];
    if (pressed)
        pressed->setButtonState(BS_PRESSED);
    reportChoice();
}

void AComboBox::reportChoice()
{
    if (AWnd* active = tgx::stage()->getMouseCaptureWnd(0))
        active->update();
}

/// Returns the menu, or null if the window of that id is not a list.
AListBox* AComboBox::getOrMakeMenu()
{
    if (AWnd* menu = getWnd(tgx::part::comboMenu, 1))
        return windowAs<AListBox>(menu);
    auto* made = new AFloatingMenu(tgx::part::comboMenu, 0, 0, width(), tgx::stage()->screenHeight);
    addChildWindow(made);
    return made;
}

/// Opens the menu, which stays a child of the box: closing it only hides it, and it is used again.
void AComboBox::openMenu()
{
    tgx::Stage* stage = tgx::stage();
    AListBox* menu = getOrMakeMenu();
    if (!menu)
        return;
    menu->reset(1, 1);
    menu->addColumn(menu->width(), textJustify);
    for (const CString& item : items)
        menu->setItemData(menu->addItem(), 0, item);
    placeMenu(*menu);
    menu->setVisible(1);
    menu->setEasyClose(1);
    stage->setPopupWnd(menu, this, 0);
    // The menu must not see a pointer movement in its first tick.
    stage->prevMouseX = stage->mouseX;
    stage->prevMouseY = stage->mouseY;
    menu->setSelectedItem(selectedItem);
    menu->setHotItem(selectedItem);
}

/// Makes the menu as high as its rows and keeps it inside the screen, or slightly beyond its lower edge.
void AComboBox::placeMenu(AListBox& menu)
{
    constexpr int edge = 10; // pixels
    const int screenHeight = tgx::stage()->screenHeight;
    const long long rows = static_cast<long long>(menu.getRowHeight()) * items.GetSize() + 1;
    int h = static_cast<int>(std::min<long long>(rows, INT_MAX / 2)); // cut to 16 bits where it is stored
    if (menuBelow && menu.posY(0) + h > screenHeight)
        h = screenHeight - menu.posY(0) + edge;
    if (const ABorder* frame = menu.getBorder())
        h += 2 * frame->getBorderWidth();
    menu.setWndPos(menu.wndX(), menuBelow ? height() : -h, menu.width(), h);
    if (menu.posY(0) < 0)
        menu.setWndPos(menu.wndX(), std::abs(menu.posY(0)) + menu.wndY() + edge, menu.width(), h);
}

int AComboBox::handlePopupAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const WndRef self = this; // handling the action may delete the box
    AWnd::handlePopupAction(about, wnd, x, y, action);
    if (!self || action != MA_LBUTTONUP)
        return 0;
    tgx::Stage* stage = tgx::stage();
    auto* menu = windowAs<AListBox>(getPopupWnd());
    if (!menu)
        return 0;

    const int chosen = menu->getSelectedItem();
    const bool isChoice = chosen >= 0 && chosen < items.GetSize();
    if (isChoice) {
        selectedItem = to16(chosen);
        windowText = menu->getItemText(chosen, 0);
    }
    menu->setVisible(0);
    stage->deletePopupWnd();
    setButtonState(BS_NORMAL);
    if (isChoice)
        reportChoice();
    return 0;
}

void AComboBox::draw(int frameStep)
{
    AButton::draw(frameStep);
    if (!isVisible(1))
        return;
    // A menu that is no longer in front is hidden.
    AWnd* menu = getWnd(tgx::part::comboMenu, 1);
    if (menu && menu->isVisible(1) && menu != tgx::stage()->getMouseCaptureWnd(0))
        menu->setVisible(0);
    // Drawn again, because the button hides its text during the opening run.
    textOut(left() + textOffsetX, top() + textOffsetY, width() - textOffsetX, height() - textOffsetY,
            windowText, textJustify, textWrap, ZnFixed::fromInt(1), 0, nullptr);
}

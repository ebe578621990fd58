#include "tgx/controls/keyboard.h"

#include "tgx/base/fixed.h"
#include "tgx/wnd/stage.h"

AKeyboard::AKeyboard(const CString& name, int x, int y, int width, int height)
    : AListBox(name, x, y, width, height)
{}

AKeyboard::~AKeyboard() = default;

void AKeyboard::initialise(AWnd* target, AWnd* echo, int most)
{
    targetWnd = target;
    echoWnd = echo;
    maxChars = to16(most);
    isInitialised = true;
    showInEcho();
    tgx::Stage* stage = tgx::stage();
    stage->setMousePos(stage->mouseX, stage->mouseY, 1); // the next tick sees no movement
    setHotItem(getItemCount() - 1);
    setHotColumn(getColumnCount() - 1);
}

void AKeyboard::showInEcho()
{
    // Passes a copy, because the echo window may delete the target.
    if (echoWnd && targetWnd)
        echoWnd->setWindowText(CString(targetWnd->getText()));
}

int AKeyboard::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const WndRef self(this); // a child's handler or the key may delete the keyboard
    AListBox::handleMouseAction(about, wnd, x, y, action);
    if (!self || !isVisible(1) || action != MA_LBUTTONUP || selectedItem < 0 || !isInitialised)
        return 0;

    press(getItemText(selectedItem, selectedColumn));
    if (!self)
        return 0;
    showInEcho();
    if (self)
        selectedItem = selectedColumn = -1; // the same cell can be pressed again
    return 0;
}

void AKeyboard::press(const CString& key)
{
    if (key == "OK")
        tgx::stage()->deletePopupWnd();
    else if (!targetWnd)
        return;
    else if (key == "<")
        removeLast();
    else
        type(key == "Sp" ? CString(" ") : key);
}

void AKeyboard::removeLast()
{
    replaceText = 0;
    const CString text = targetWnd->getText();
    if (!text.IsEmpty())
        targetWnd->setWindowText(text.Left(text.GetLength() - 1));
}

void AKeyboard::type(CString key)
{
    CString text = targetWnd->getText();
    if (replaceText) {
        text.Empty();
        replaceText = 0;
    } else if (!text.IsEmpty() && text[text.GetLength() - 1] != ' ') {
        key.MakeLower();
    }
    if (text.GetLength() < maxChars)
        targetWnd->setWindowText(text + key);
}

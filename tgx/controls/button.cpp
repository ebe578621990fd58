#include "tgx/controls/button.h"

#include "tgx/base/fixed.h"
#include "tgx/base/swapped.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <optional>

namespace {

/// Stores five values, given in the order of the strip, by state value.
template<class Value, class Stored>
void storeByState(Stored (&stored)[5], Value startup, Value normal, Value hot, Value pressed, Value disabled)
{
    stored[AButton::BS_STARTUP] = static_cast<Stored>(startup);
    stored[AButton::BS_NORMAL] = static_cast<Stored>(normal);
    stored[AButton::BS_HOT] = static_cast<Stored>(hot);
    stored[AButton::BS_PRESSED] = static_cast<Stored>(pressed);
    stored[AButton::BS_DISABLED] = static_cast<Stored>(disabled);
}

} // namespace

AButton::AButton(const CString& name, int x, int y, int width, int height, E_WNDTYPE type)
    : AWnd(type, name, x, y, width, height)
{
    loop = 0;
}

bool AButton::isButton(const AWnd* wnd)
{
    return wnd && (wnd->getWindowType() == WND_BUTTON || wnd->getWindowType() == WND_RADIOBUTTON ||
                   wnd->getWindowType() == WND_COMBOBOX);
}

AButton* AButton::getStateWnd()
{
    if (children.GetSize() == 0)
        return nullptr;
    AWnd* wnd = getWnd(tgx::part::radioState, 1);
    if (!wnd)
        wnd = getWnd(tgx::part::checkboxState, 1);
    return windowAs<AButton>(wnd);
}

int AButton::isSelected()
{
    if (AButton* stateWnd = getStateWnd())
        return stateWnd->isSelected();
    return selected;
}

void AButton::setSelected(int select)
{
    AButton* stateWnd = getStateWnd();
    AButton* carrier = stateWnd ? stateWnd : this;
    if (carrier->buttonState != BS_DISABLED) {
        carrier->selected = select & 1;
        carrier->setButtonState(carrier->selected ? BS_PRESSED : BS_NORMAL);
    }
    if (stateWnd)
        stateWnd->setEnabled(0); // so that it never receives the pointer
}

int AButton::firstFrameOf(E_BUTTON_STATE state) const
{
    int first = 0;
    for (E_BUTTON_STATE before : {BS_STARTUP, BS_NORMAL, BS_HOT, BS_PRESSED, BS_DISABLED}) {
        if (before == state)
            break;
        first += stateFrames[before];
    }
    return first;
}

void AButton::setButtonState(E_BUTTON_STATE state)
{
    if (AButton* stateWnd = getStateWnd()) {
        stateWnd->setButtonState(state);
        stateWnd->setEnabled(0);
    }
    if (selected && (state == BS_NORMAL || state == BS_HOT))
        state = BS_PRESSED;
    if (state == buttonState)
        return;

    if (buttonState == BS_DISABLED)
        setEnabled(1);
    buttonState = state;
    if (state == BS_DISABLED)
        setEnabled(0);
    textShifted = 0;
    if (stateFrames[state] == 0)
        return;

    frameCount = stateFrames[state];
    loop = stateLoop[state] & 1;
    frameDelay = stateDelay[state];
    firstFrame = to16(firstFrameOf(state));
    if (state == BS_NORMAL)
        setEnabled(1);
    if (state == BS_PRESSED && textShift)
        textShifted = 1;
    currentFrame = firstFrame;
}

void AButton::setButtonAnimFrames(int startup, int normal, int hot, int pressed, int disabled)
{
    storeByState(stateFrames, startup, normal, hot, pressed, disabled);
    frameCount = to16(startup > 0 ? startup : normal);
}

void AButton::setButtonAnimLoop(int startup, int normal, int hot, int pressed, int disabled)
{
    storeByState(stateLoop, startup != 0, normal != 0, hot != 0, pressed != 0, disabled != 0);
}

void AButton::setButtonAnimFPS(int startup, int normal, int hot, int pressed, int disabled)
{
    storeByState(stateDelay, startup, normal, hot, pressed, disabled);
}

void AButton::startup()
{
    AWnd::startup();
    setButtonState(BS_STARTUP);
}

int AButton::handleLostFocus()
{
    if (buttonState != BS_STARTUP && buttonState != BS_DISABLED)
        setButtonState(BS_NORMAL);
    return 1;
}

// A check box, tick by tick; selected shows as pressed:
//              MA_MOVE  MA_LBUTTONDOWN  MA_LBUTTONUP  MA_MOVE
//   state      BS_HOT   BS_PRESSED      BS_PRESSED    BS_PRESSED
//   selected   0        0               1             1
int AButton::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);

    if (!handling.canContinue() || !isVisible(1) || isMeantForAnother(wnd))
        return 0;
    if (buttonState == BS_DISABLED)
        return 1;
    switch (action) {
    case MA_LBUTTONDOWN:
    case MA_RBUTTONDOWN:
        setButtonState(BS_PRESSED);
        break;
    case MA_MOVE:
        if (buttonState != BS_STARTUP)
            setButtonState(BS_HOT);
        break;
    case MA_LBUTTONUP:
        setButtonState(BS_NORMAL);
        if (checkBox)
            setSelected(!isSelected());
        break;
    default:
        break;
    }
    return 1;
}

bool AButton::isOpeningRunOver() const
{
    const int frames = stateFrames[BS_STARTUP];
    return frames == 0 || (currentFrame >= frames - 1 && frameTimer >= frameDelay - 1);
}

void AButton::draw(int frameStep)
{
    if (!isVisible(1))
        return;
    if (buttonState == BS_STARTUP && isOpeningRunOver())
        setButtonState(BS_NORMAL);
    std::optional<Swapped<short>> still;
    if (buttonState == BS_NORMAL && stateFrames[BS_NORMAL] == 0) {
        // Without a frame for BS_NORMAL the button is only drawn when hot or pressed. The previous run must
        // not continue.
        currentFrame = -1;
        firstFrame = -1;
        still.emplace(frameCount, std::min<short>(frameCount, 1));
    }
    const bool isOpening = buttonState == BS_STARTUP;
    std::optional<Swapped<CString>> noText;
    if (isOpening)
        noText.emplace(windowText, CString());
    const Swapped<short> offsetX(textOffsetX, to16(textOffsetX + textShifted));
    const Swapped<short> offsetY(textOffsetY, to16(textOffsetY + textShifted));
    AWnd::draw(frameStep);
    if (AButton* stateWnd = isOpening ? getStateWnd() : nullptr)
        stateWnd->setEnabled(0); // enabled by the end of its own opening run
}

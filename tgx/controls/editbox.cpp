#include "tgx/controls/editbox.h"

#include "tgx/base/fixed.h"
#include "tgx/wnd/screen.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/textline.h"
#include "tgx/wnd/wrap.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <utility>

namespace {

constexpr int blinkPeriod = 40; // frames
constexpr int caretWidth = 2;   // pixels

bool isPasswordId(const CString& id)
{
    constexpr std::string_view start = "PASSWORD";
    return CString::equalNoCase(id.view().substr(0, start.size()), start);
}

bool isAccepted(unsigned char character)
{
    return (character >= 0x20 && character <= 0x7E) || character == 0xBE;
}

} // namespace

/// Replaces the text by as many stars as it has characters, for the lifetime of this object. The two strings
/// are swapped, so a frame allocates nothing.
class AEditBox::Stars {
public:
    explicit Stars(AEditBox& password) : box(password)
    {
        const auto count = box.windowText.view().size();
        while (box.stars.view().size() < count)
            box.stars += '*';
        box.stars.assign(box.stars.view().substr(0, count));
        std::swap(box.windowText, box.stars);
    }
    ~Stars() { std::swap(box.windowText, box.stars); }
    Stars(const Stars&) = delete;
    Stars& operator=(const Stars&) = delete;

private:
    AEditBox& box;
};

AEditBox::AEditBox(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_EDITBOX, name, x, y, width, height), isPassword(isPasswordId(name))
{
    frameDelay = blinkPeriod;
}

bool AEditBox::isBeingEdited() const
{
    return tgx::stage()->getMouseCaptureWnd(0) == this;
}

void AEditBox::setWindowText(const CString& text)
{
    AWnd::setWindowText(text);
    if (isBeingEdited())
        cursorPos = to16(windowText.GetLength());
}

int AEditBox::handleLostFocus()
{
    tgx::Stage* stage = tgx::stage();
    stage->setCursor(stage->normalCursor);
    return 1;
}

int AEditBox::handleKeyInput(char key)
{
    const WndRef self = this; // a child's handler may delete the box
    AWnd::handleKeyInput(key);
    if (!self)
        return 1;

    const int length = windowText.GetLength();
    cursorPos = to16(std::clamp<int>(cursorPos, 0, std::min(length, INT16_MAX)));
    switch (static_cast<unsigned char>(key)) {
    case VK_RIGHT:
        if (cursorPos < length)
            ++cursorPos;
        break;
    case VK_LEFT:
        if (cursorPos > 0)
            --cursorPos;
        break;
    case VK_HOME:
        cursorPos = 0;
        break;
    case VK_END:
        cursorPos = to16(length);
        break;
    case VK_DELETE:
        if (cursorPos < length)
            windowText = windowText.Left(cursorPos) + windowText.Mid(cursorPos + 1);
        break;
    case VK_BACK:
        if (cursorPos > 0) {
            windowText = windowText.Left(cursorPos - 1) + windowText.Mid(cursorPos);
            --cursorPos;
            break;
        }
        typeCharacter();
        break;
    default:
        typeCharacter();
        break;
    }
    return 1;
}

void AEditBox::typeCharacter()
{
    tgx::Stage* stage = tgx::stage();
    // A box of one line accepts no character once its text fills the width.
    if (!textWrap && stage->getStringLength(windowText, font) >= width() - 2 * textOffsetX)
        return;
    const char character = stage->keyChar;
    if (!isAccepted(static_cast<unsigned char>(character)))
        return;
    const auto isFull = [this] { return maxLength != -1 && windowText.GetLength() >= maxLength; };
    if (isFull() || windowText.GetLength() >= INT16_MAX)
        return;

    windowText = windowText.Left(cursorPos) + CString(&character, 1) + windowText.Mid(cursorPos);
    if (forceUpper)
        windowText.MakeUpper();
    ++cursorPos;
    if (isFull() && fullWnd)
        stage->setMousePosOnWnd(fullWnd, 0);
}

int AEditBox::handleMouseAction(const CString& about, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const ActionRefs handling(this, wnd);
    AWnd::handleMouseAction(about, wnd, x, y, action);
    if (!handling.canContinue() || action != MA_LBUTTONUP)
        return 0;
    if (!isBeingEdited()) {
        if (pointInside(x, y)) {
            cursorPos = to16(windowText.GetLength());
            tgx::stage()->setMouseCaptureWnd(this);
        }
        return 0;
    }
    endTyping();
    return 0;
}

void AEditBox::endTyping()
{
    tgx::Stage* stage = tgx::stage();
    cursorPos = to16(windowText.GetLength());
    stage->setMouseCaptureWnd(nullptr);
    // Ends a cycle of boxes whose leave and enter windows are each other.
    if (isEndingTyping)
        return;
    isEndingTyping = 1;
    // The pressed windows may delete this box, or any other window.
    const WndRef self = this;
    pressNextWnds();
    if (self)
        isEndingTyping = 0;
}

/// Moves the pointer to the leave window and presses it, then the enter window.
void AEditBox::pressNextWnds()
{
    tgx::Stage* stage = tgx::stage();
    const WndRef self = this;
    const auto press = [stage](AWnd* wnd) {
        AScreen* screen = stage->getActiveScreen();
        if (!wnd || !screen || wnd->getWindowType() != WND_BUTTON)
            return;
        const CString name = wnd->getID();
        screen->handleMouseAction(name, wnd, stage->mouseX, stage->mouseY, MA_LBUTTONUP);
    };
    if (const WndRef leaving = leaveWnd.get()) {
        stage->setMousePosOnWnd(leaving, 0);
        press(leaving);
        if (!self)
            return;
    }
    if (!onEnterWnd)
        if (AWnd* active = stage->getActiveWnd())
            onEnterWnd = active->getWnd("EDITBOX_ONENTER", 1);
    const WndRef entering = onEnterWnd.get();
    if (!entering)
        return;
    if (entering == this)
        setWindowText(CString());
    stage->setMousePosOnWnd(entering, 0);
    press(entering);
}

void AEditBox::draw(int frameStep)
{
    // Text and caret are drawn from the stars; the real text is restored at the end.
    std::optional<Stars> hidden;
    if (isPassword)
        hidden.emplace(*this);
    AWnd::draw(frameStep);
    if (!isVisible(1))
        return;
    RECT box{left(), top(), right(), bottom()};
    tgx::stage()->adddirtyrect(box); // the caret changes even if the window does not
    if (isBeingEdited())
        drawCaret();
}

void AEditBox::drawCaret()
{
    if (++frameTimer >= frameDelay)
        frameTimer = 0;
    if (frameTimer >= frameDelay / 2)
        return;

    tgx::Stage* stage = tgx::stage();
    const int x = left() + textOffsetX;
    const int y = top() + textOffsetY;
    int lineWidth = width();
    if (textWrap)
        lineWidth -= stage->getStringLength("wwwwww", font);
    int caretX = -1;
    int caretY = -1;
    if (textWrap && !windowText.IsEmpty())
        caretInLines(x, y, lineWidth, caretX, caretY);
    else
        caretInLine(x, y, lineWidth, caretX, caretY);
    if (caretX < 0 || caretY < 0)
        return;
    const int lineHeight = font ? font->lineHeight : 0;
    stage->rectangle(caretX, caretY, caretX + caretWidth, caretY + lineHeight, stage->getcol(caretColour));
}

void AEditBox::caretInLine(int x, int y, int lineWidth, int& caretX, int& caretY) const
{
    int shown = 0;
    cutToWidth(font, windowText.view(), lineWidth, shown);
    const int count = std::clamp<int>(cursorPos, 0, windowText.GetLength());
    const std::string_view inFront = windowText.view().substr(0, static_cast<std::size_t>(count));
    caretX = leftEdge(textJustify, x, lineWidth, shown) + (font ? font->stringLength(inFront) : 0);
    caretY = textCentreV ? y + (height() - (font ? font->charHeight : 0)) / 2 : y;
}

void AEditBox::caretInLines(int x, int y, int lineWidth, int& caretX, int& caretY) const
{
    TextWrap wrapped(windowText.view(), font, lineWidth, height());
    wrapped.watch(cursorPos);
    while (wrapped.next()) {
    }
    if (wrapped.getSeenLine() < 0)
        return;
    const int whole = tgx::stage()->getStringLength(windowText, font);
    const int lineHeight = font ? font->lineHeight : 0;
    caretX = leftEdge(textJustify, x, lineWidth, whole) + wrapped.getSeenWidth();
    caretY = static_cast<int>(
        (y * 4096LL + static_cast<long long>(lineHeight) * TextWrap::wideFactor * wrapped.getSeenLine()) /
        4096);
}

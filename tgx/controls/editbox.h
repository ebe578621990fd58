#pragma once

#include "tgx/wnd/wnd.h"

/// A field for text: a caret, typed characters, Backspace, Delete and the four move keys; no selection. It is
/// typed in for as long as it holds the mouse capture: from a click to a second click, a click elsewhere,
/// Return or Tab.
class TGX_API AEditBox : public AWnd {
public:
    /// An id that begins with "PASSWORD", in any case, hides the text.
    AEditBox(const CString& id, int x, int y, int width, int height);

    /// The caret blinks by frames: frameDelay long, and shows for the first half of that.
    void draw(int frameStep) override;
    using AWnd::setWindowText;
    /// While it is typed in the caret goes to the end.
    void setWindowText(const CString& text) override;
    /// 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    /// 1. The character typed is keyChar of the main window, not key.
    int handleKeyInput(char key) override;
    /// 1.
    int handleLostFocus() override;

    /// Characters in front of the caret.
    int getCursorPos() const { return cursorPos; }
    /// As ddwin::getcol takes it.
    unsigned getCaretColour() const { return caretColour; }
    void setCaretColour(unsigned colour) { caretColour = colour; }
    /// Pressed at the end of typing; looked up as "EDITBOX_ONENTER" while it is null. Not owned; empties when
    /// the window dies.
    AWnd* getOnEnterWnd() const { return onEnterWnd; }
    void setOnEnterWnd(AWnd* wnd) { onEnterWnd = wnd; }
    /// Pressed before that one. Not owned; empties when the window dies.
    AWnd* getLeaveWnd() const { return leaveWnd; }
    void setLeaveWnd(AWnd* wnd) { leaveWnd = wnd; }
    /// Shows "*" for each character.
    int getIsPassword() const { return isPassword; }
    void setIsPassword(int set) { isPassword = set & 1; }
    /// The whole text becomes upper case behind each typed character.
    int getForceUpper() const { return forceUpper; }
    void setForceUpper(int set) { forceUpper = set & 1; }
    /// Characters that may be typed; -1: no limit.
    int getMaxLength() const { return maxLength; }
    void setMaxLength(int length) { maxLength = length; }
    /// Where the pointer goes when maxLength is reached. Not owned; empties when the window dies.
    AWnd* getFullWnd() const { return fullWnd; }
    void setFullWnd(AWnd* wnd) { fullWnd = wnd; }

protected:
    short cursorPos = 0;
    unsigned caretColour = 0;
    WndRef onEnterWnd;
    WndRef leaveWnd;
    int isPassword;
    int forceUpper = 0;
    int maxLength = -1;
    WndRef fullWnd;

private:
    class Stars;
    bool isTypedIn() const;
    void typeCharacter();
    void endTyping();
    void goOn();
    void drawCaret();
    void caretInLine(int x, int y, int lineWidth, int& caretX, int& caretY) const;
    void caretInLines(int x, int y, int lineWidth, int& caretX, int& caretY) const;

    unsigned atEndOfTyping : 1 = 0; // its leave and enter windows are being reached
    CString stars;                  // stands in for the text of a password while it is drawn
};

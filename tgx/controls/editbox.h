#pragma once

#include "tgx/wnd/wnd.h"

/// A text field with a caret, typed characters, Backspace, Delete and the four caret keys, but no selection.
/// It accepts typing while it holds the mouse capture: from a click until a second click, a click elsewhere,
/// Return or Tab.
class TGX_API AEditBox : public AWnd {
public:
    /// An id that begins with "PASSWORD", in any case, hides the text.
    AEditBox(const CString& id, int x, int y, int width, int height);

    /// The caret blinks with a period of frameDelay frames and is visible during the first half.
    void draw(int frameStep) override;
    using AWnd::setWindowText;
    /// Moves the caret to the end if the box is being typed into.
    void setWindowText(const CString& text) override;
    /// Always returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    /// Always returns 1. The character typed is keyChar of the main window, not key.
    int handleKeyInput(char key) override;
    /// Always returns 1.
    int handleLostFocus() override;

    /// Returns the number of characters before the caret.
    int getCursorPos() const { return cursorPos; }
    /// Returns the caret's colour in the format of ddwin::getcol.
    unsigned getCaretColour() const { return caretColour; }
    void setCaretColour(unsigned colour) { caretColour = colour; }
    /// Returns the button that is pressed when typing ends. While it is null, the window "EDITBOX_ONENTER" is
    /// used. Not owned; becomes null when the window is deleted.
    AWnd* getOnEnterWnd() const { return onEnterWnd; }
    void setOnEnterWnd(AWnd* wnd) { onEnterWnd = wnd; }
    /// Returns the button that is pressed before that one. Not owned; becomes null when the window is
    /// deleted.
    AWnd* getLeaveWnd() const { return leaveWnd; }
    void setLeaveWnd(AWnd* wnd) { leaveWnd = wnd; }
    /// Returns 1 if "*" is shown for each character.
    int getIsPassword() const { return isPassword; }
    void setIsPassword(int set) { isPassword = set & 1; }
    /// Returns 1 if the whole text becomes upper case after each typed character.
    int getForceUpper() const { return forceUpper; }
    void setForceUpper(int set) { forceUpper = set & 1; }
    /// Returns the length in characters at which typing stops; -1: no limit.
    int getMaxLength() const { return maxLength; }
    void setMaxLength(int length) { maxLength = length; }
    /// Returns the window to which the pointer moves when maxLength is reached. Not owned; becomes null when
    /// the window is deleted.
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
    bool isBeingEdited() const;
    void typeCharacter();
    void endTyping();
    void pressNextWnds();
    void drawCaret();
    void caretInLine(int x, int y, int lineWidth, int& caretX, int& caretY) const;
    void caretInLines(int x, int y, int lineWidth, int& caretX, int& caretY) const;

    unsigned isEndingTyping : 1 = 0; // its leave and enter windows are being pressed
    CString stars;                   // replaces the text of a password while it is drawn
};

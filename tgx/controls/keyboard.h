#pragma once

#include "tgx/controls/listbox/listbox.h"

/// A list box whose cells are keys: selecting one types its text into another window. "Sp" types a blank, "<"
/// removes the last character, and "OK" closes the front popup, which is expected to contain the keyboard.
///
/// The first key replaces the existing text. After a character other than a blank a key types in lower case,
/// so the keys of a script are in upper case.
class TGX_API AKeyboard : public AListBox {
public:
    AKeyboard(const CString& id, int x, int y, int width, int height);
    ~AKeyboard() override;

    using AListBox::initialise;
    /// Sets the target window. Must be called before the first key; until then keys do nothing. echo, which
    /// may be null, shows the same text. Neither is owned. A text of maxChars characters accepts no further
    /// key.
    void initialise(AWnd* target, AWnd* echo, int maxChars);
    /// Always returns 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Returns the target, or null if there is none or it has been deleted.
    AWnd* getTargetWnd() const { return targetWnd; }
    AWnd* getEchoWnd() const { return echoWnd; }
    int getMaxChars() const { return maxChars; }
    /// Returns 1 if the next key replaces the text.
    int getReplaceText() const { return replaceText; }
    void setReplaceText(int set) { replaceText = set & 1; }

protected:
    WndRef targetWnd;
    WndRef echoWnd;
    short maxChars = 0;
    unsigned replaceText : 1 = 1;

private:
    void showInEcho();
    void press(const CString& key);
    void type(CString key);
    void removeLast();

    bool isInitialised = false;
};

#pragma once

#include "tgx/controls/listbox/listbox.h"

/// A list box whose cells are keys: selecting one types its text into another window. "Sp" types a blank, "<"
/// removes the last character, "OK" closes the front popup, where a keyboard is meant to stand.
///
/// The first key replaces the text that was there. Behind a letter a key types in lower case, so the keys of
/// a script stand in upper case.
class TGX_API AKeyboard : public AListBox {
public:
    AKeyboard(const CString& id, int x, int y, int width, int height);
    ~AKeyboard() override;

    using AListBox::initialise;
    /// To be called before the first key; until then keys do nothing. echo, which may be null, shows the same
    /// text. Neither is owned. maxChars: a text of that length takes no further key.
    void initialise(AWnd* target, AWnd* echo, int maxChars);
    /// 0.
    int handleMouseAction(const CString& id, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Null when there is none, or none any more.
    AWnd* getTargetWnd() const { return targetWnd; }
    AWnd* getEchoWnd() const { return echoWnd; }
    int getMaxChars() const { return maxChars; }
    /// Whether the next key replaces the text. Lowest bit.
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

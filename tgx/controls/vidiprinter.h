#pragma once

#include "tgx/wnd/wnd.h"

/// A window that reveals its text gradually, from the left, over eleven drawn frames. Only a text on a single
/// line is revealed this way: a wrapped text, or one with textRaw, is shown at once. Takes no input.
class TGX_API AVidiPrinter : public AWnd {
public:
    AVidiPrinter(const CString& id, int x, int y, int width, int height);

    /// Reveals the text by one frame unless frameStep is 0. The text is drawn above the children.
    void draw(int frameStep) override;
    using AWnd::setWindowText;
    /// Starts to print text; continues if it equals the text being printed.
    void setWindowText(const CString& text) override;
    /// Sets the window's text to the text being printed. Does not call the children.
    void finishAnims() override;

    /// Returns how much of the text is shown; complete at 1.0 or more.
    ZnFixed getPrintProgress() const { return printProgress; }
    /// Returns the mode of ddwin::textout: 1 shows a part of the text, 0 the whole text at a part of its
    /// size.
    int getPrintMode() const { return printMode; }
    /// Stores the lowest bit of set.
    void setPrintMode(int set) { printMode = set & 1; }
    /// Returns the text that is being printed.
    const CString& getFullText() const { return fullText; }

protected:
    ZnFixed printProgress;
    unsigned printMode : 1 = 1;
    CString fullText;
};

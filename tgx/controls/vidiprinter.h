#pragma once

#include "tgx/wnd/wnd.h"

/// A window that prints its text bit by bit, from the left, over eleven drawn frames. The text comes up on
/// one line only: wrapped over several, or with textRaw, it is there at once. Takes no input.
class TGX_API AVidiPrinter : public AWnd {
public:
    AVidiPrinter(const CString& id, int x, int y, int width, int height);

    /// Goes on by one frame, whatever frameStep is, but for 0. The text lies on top of the children.
    void draw(int frameStep) override;
    using AWnd::setWindowText;
    /// Begins anew with a text that differs from the one being printed; with the same text it goes on.
    void setWindowText(const CString& text) override;
    /// The text that is being printed becomes the window's. The children are not reached.
    void finishAnims() override;

    /// How far the text has come: complete from 1.0 on.
    ZnFixed getPrintProgress() const { return printProgress; }
    /// The mode of ddwin::textout: 1 shows a part of the text, 0 the text in part of its size.
    int getPrintMode() const { return printMode; }
    /// Lowest bit.
    void setPrintMode(int set) { printMode = set & 1; }
    /// The text that is being printed.
    const CString& getFullText() const { return fullText; }

protected:
    ZnFixed printProgress;
    unsigned printMode : 1 = 1;
    CString fullText;
};

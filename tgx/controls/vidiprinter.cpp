#include "tgx/controls/vidiprinter.h"

#include "tgx/base/swapped.h"

namespace {

constexpr ZnFixed complete = ZnFixed::fromInt(1);
constexpr int progressPerFrame = 409; // raw fixed point, just under a tenth

} // namespace

AVidiPrinter::AVidiPrinter(const CString& name, int x, int y, int width, int height)
    : AWnd(WND_PLAIN, name, x, y, width, height)
{}

void AVidiPrinter::setWindowText(const CString& text)
{
    windowText = text;
    if (text == fullText)
        return;
    fullText = text;
    printProgress = ZnFixed();
}

void AVidiPrinter::finishAnims()
{
    windowText = fullText;
}

void AVidiPrinter::draw(int frameStep)
{
    if (!isVisible(1))
        return;
    {
        const Swapped<CString> noText(windowText, CString()); // the base paints everything except the text
        AWnd::draw(frameStep);
    }
    if (windowText.IsEmpty())
        return;
    if (frameStep != 0 && printProgress < complete)
        printProgress.raw += progressPerFrame; // may exceed complete, which has no effect
    const int x = textJustify == TJ_RIGHT ? left() : left() + textOffsetX;
    textOut(x, top() + textOffsetY, width() - textOffsetX, height() - textOffsetY, windowText, textJustify,
            textWrap, printProgress, printMode, nullptr);
}

#include "tgx/base/fixed.h"
#include "tgx/base/numtext.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/textline.h"
#include "tgx/wnd/wrap.h"

#include <vector>

namespace {

constexpr ZnFixed atFullSize = ZnFixed::fromInt(1);

/// Returns a copy of line that ends in 0, as the display library needs it, valid until the next call. Its
/// storage is kept, so that a frame allocates nothing.
const char* endedByZero(std::string_view line)
{
    static std::vector<char> characters;
    if (characters.size() <= line.size())
        characters.resize(2 * line.size() + 1);
    line.copy(characters.data(), line.size());
    characters[line.size()] = 0;
    return characters.data();
}

} // namespace

void AWnd::setWindowText(int value)
{
    setWindowText(intToString(value, 0, 0));
}

void AWnd::setWindowText(const CString& text)
{
    windowText = text;
}

void AWnd::setTextOffset(int x, int y)
{
    textOffsetX = to16(x);
    textOffsetY = to16(y);
}

void AWnd::textOut(int x, int y, int width, int height, const CString& text, E_TEXTJUSTIFY justify, int wrap,
                   ZnFixed scale, int mode, IDirectDrawSurface* dest)
{
    tgx::Stage* stage = tgx::stage();
    if (!stage)
        return;
    if (textRaw) {
        stage->textout(x, y, text, font, dest, 1, atFullSize, 1);
        return;
    }

    if (!wrap) {
        int length = 0;
        const std::string_view fits = cutToWidth(font, text.view(), width, length);
        const int charHeight = font ? font->charHeight : 0;
        const int at = textCentreV ? y + (height - charHeight) / 2 : y;
        if (fits.size() == text.view().size()) {
            stage->textout(leftEdge(justify, x, width, length), at, text, font, dest, 0, scale, mode);
        } else {
            stage->textout(leftEdge(justify, x, width, length), at, endedByZero(fits), font, dest, 0, scale,
                           mode);
        }
        return;
    }

    for (TextWrap wrapped(text.view(), font, width, height); wrapped.next();) {
        stage->textout(leftEdge(justify, x, width, wrapped.length()), wrapped.topFrom(y),
                       endedByZero(wrapped.line()), font, dest, 0, atFullSize, 1);
    }
}

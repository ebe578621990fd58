#pragma once

#include "platform/media/bmpfont.h"
#include "tgx/wnd/wnd.h"

#include <string_view>

/// text without the characters at its end that do not fit; length becomes the width of what is left. A null
/// font gives all characters a width of 0. No advance is negative, so what lies behind the first character
/// that does not fit need not be looked at.
inline std::string_view cutToWidth(const bmpfont* font, std::string_view text, int width, int& length)
{
    length = 0;
    std::size_t count = 0;
    for (; count < text.size() && length <= width; ++count) {
        const int advance = font ? font->advance(static_cast<unsigned char>(text[count])) : 0;
        if (advance > width - length)
            break;
        length += advance;
    }
    return text.substr(0, count);
}

/// Left edge of a line of that length in a box at x.
inline int leftEdge(AWnd::E_TEXTJUSTIFY justify, int x, int width, int length)
{
    switch (justify) {
    case AWnd::TJ_CENTRE:
        return x + (width - length) / 2;
    case AWnd::TJ_RIGHT:
        return x + width - length;
    default:
        return x;
    }
}

#pragma once

#include "platform/media/bmpfont.h"
#include "tgx/wnd/wnd.h"

#include <string_view>

/// Returns the longest part of text, from its start, that fits into width pixels, and stores its width in
/// length. With a null font every character has a width of 0. No advance is negative, so the search ends at
/// the first character that does not fit.
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

/// Returns the left edge of a line of length pixels in a box at x.
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

#pragma once

#include "platform/export.h"
#include "platform/framework/cstring.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

/// The pixels of one character, 0xAARRGGBB, including colour and shadow, with colours premultiplied by alpha.
struct Glyph {
    int left = 0; // offset of the pixels from the pen position
    int top = 0;  // offset of the pixels from the top of the line
    int width = 0;
    int height = 0;
    int stride = 0; // pixels from one row to the next: width rounded up to 8, padded with 0
    std::vector<std::uint32_t> pixels;

    /// Sets the size and makes all pixels transparent.
    void setSize(int newWidth, int newHeight)
    {
        width = newWidth;
        height = newHeight;
        stride = (newWidth + 7) & ~7; // blending processes eight pixels at a time
        pixels.assign(static_cast<std::size_t>(stride) * newHeight, 0);
    }
};

/// A bitmap font: the characters of code page 1252, rendered once. Owned by the font table of ddwin.
class TGX_PLATFORM_API bmpfont {
public:
    signed char lineHeight = 0; // pixels from one line to the next
    signed char charHeight = 0; // pixels, for vertical centring

    /// Returns the pixels from this character's pen position to the next one's, including spacing.
    int advance(unsigned char character) const { return advances[character]; }
    /// Returns the sum of the advances, at most INT_MAX.
    int stringLength(std::string_view text) const
    {
        std::int64_t length = 0;
        for (unsigned char character : text)
            length += advances[character];
        return static_cast<int>(std::min<std::int64_t>(length, INT_MAX));
    }
    /// Returns the number of pixels that all characters take in memory.
    long long pixelCount() const
    {
        long long count = 0;
        for (const Glyph& character : glyphs)
            count += static_cast<long long>(character.pixels.size());
        return count;
    }
    const Glyph& glyph(unsigned char character) const { return glyphs[character]; }
    /// Returns the index in the font table.
    int getIndex() const { return index; }

    int index = -1;
    std::array<std::int16_t, 256> advances{};
    std::array<Glyph, 256> glyphs;
};

/// The style of a font, as given by the style words of addNewFont.
struct FontStyle {
    bool bold = false;
    bool italic = false;
    bool shadow = false;
    std::uint32_t colour = 0xFFFFFF; // 0xRRGGBB
};
/// Parses "bold", "italic", "shadow" and "#rrggbb", separated by blanks or commas, in any case. Other words
/// are ignored.
TGX_PLATFORM_API FontStyle parseFontStyle(std::string_view words);

/// Makes the built-in font, which needs no file.
TGX_PLATFORM_API std::unique_ptr<bmpfont> makeBuiltInFont();

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

/// One character as it lies over the screen: 0xAARRGGBB, colour and shadow included, colours multiplied by
/// their alpha.
struct Glyph {
    int left = 0; // of the pixels, from the pen position
    int top = 0;  // of the pixels, from the line's top
    int width = 0;
    int height = 0;
    int stride = 0; // pixels from one row to the next: width rounded up to 8, the rest of a row 0
    std::vector<std::uint32_t> pixels;

    /// Takes that size, all pixels transparent.
    void setSize(int newWidth, int newHeight)
    {
        width = newWidth;
        height = newHeight;
        stride = (newWidth + 7) & ~7; // blending goes by eights, with no rest to care for
        pixels.assign(static_cast<std::size_t>(stride) * newHeight, 0);
    }
};

/// A bitmap font: characters of code page 1252, rendered once and kept. Owned by the font table of ddwin.
class TGX_PLATFORM_API bmpfont {
public:
    signed char lineHeight = 0; // pixels from one line to the next
    signed char charHeight = 0; // pixels, for vertical centring

    /// Pixels from this character's pen position to the next one's, spacing included.
    int advance(unsigned char character) const { return advances[character]; }
    /// Sum of the advances; one that an int does not hold is INT_MAX.
    int stringLength(std::string_view text) const
    {
        std::int64_t length = 0;
        for (unsigned char character : text)
            length += advances[character];
        return static_cast<int>(std::min<std::int64_t>(length, INT_MAX));
    }
    /// Pixels that all characters take in memory.
    long long pixelCount() const
    {
        long long count = 0;
        for (const Glyph& character : glyphs)
            count += static_cast<long long>(character.pixels.size());
        return count;
    }
    const Glyph& glyph(unsigned char character) const { return glyphs[character]; }
    /// Place in the font table.
    int getIndex() const { return index; }

    int index = -1;
    std::array<std::int16_t, 256> advances{};
    std::array<Glyph, 256> glyphs;
};

/// How addNewFont's style words ask for a font.
struct FontStyle {
    bool bold = false;
    bool italic = false;
    bool shadow = false;
    std::uint32_t colour = 0xFFFFFF; // 0xRRGGBB
};
/// "bold", "italic", "shadow" and "#rrggbb", divided by blanks or commas, in any case; other words are passed
/// over.
TGX_PLATFORM_API FontStyle parseFontStyle(std::string_view words);

/// The font that is there without any file, drawn by code.
TGX_PLATFORM_API std::unique_ptr<bmpfont> makeBuiltInFont();

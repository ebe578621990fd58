#pragma once

#include "platform/framework/znfixed.h"
#include "platform/media/bmpfont.h"
#include "platform/media/box.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tgx {

/// Where and how a text is drawn.
struct TextRun {
    const bmpfont* font; // null: nothing shows
    std::int32_t x;      // of the text's top left corner, in pixels
    std::int32_t y;
    std::int32_t scale; // raw fixed point
    bool isRevealed;  // scale is the share of each line that shows, from the left; otherwise the text's size
    bool breaksLines; // at line feeds and at the mark backslash, n

    /// Whether the text is drawn at another size than the font's.
    bool isScaled() const { return !isRevealed && scale != ZnFixed::one; }
};

/// A character's pixels in their place: on the screen, or, for a text drawn at another size, relative to the
/// text's corner and in the pixels of the font.
struct PlacedGlyph {
    int x;
    int y;
    int clipRight; // screen pixels: a revealed line ends here for now
    const Glyph* glyph;
};

/// Appends the characters of a text that show inside clip, in drawing order. Returns the box around what they
/// paint, inside clip.
Box layoutText(const TextRun& run, std::string_view text, const Box& clip, std::vector<PlacedGlyph>& placed);

/// Returns the screen box of a character of a scaled text, inside clip.
Box scaledGlyphBox(const TextRun& run, const PlacedGlyph& placed, const Box& clip);

} // namespace tgx

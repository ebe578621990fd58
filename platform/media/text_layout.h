#pragma once

#include "platform/framework/znfixed.h"
#include "platform/media/bmpfont.h"
#include "platform/media/box.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace tgx {

/// Position and manner of drawing a text.
struct TextRun {
    const bmpfont* font; // null draws nothing
    std::int32_t x;      // top left corner of the text, in pixels
    std::int32_t y;
    std::int32_t scale; // raw fixed point
    bool isRevealed;    // scale is the share of each line that is shown, from the left; otherwise the size
    bool breaksLines;   // at line feeds and at the two characters \n

    /// Returns whether the text is drawn at a size other than the font's.
    bool isScaled() const { return !isRevealed && scale != ZnFixed::one; }
};

/// A character with its position: on the screen or, for a scaled text, relative to the text's corner in
/// pixels of the font.
struct PlacedGlyph {
    int x;
    int y;
    int clipRight; // right edge of a partly revealed line, in screen pixels
    const Glyph* glyph;
};

/// Appends the characters of a text that are visible inside clip, in drawing order. Returns the box around
/// what they paint, inside clip.
Box layoutText(const TextRun& run, std::string_view text, const Box& clip, std::vector<PlacedGlyph>& placed);

/// Returns the screen box of a character of a scaled text, inside clip.
Box scaledGlyphBox(const TextRun& run, const PlacedGlyph& placed, const Box& clip);

} // namespace tgx

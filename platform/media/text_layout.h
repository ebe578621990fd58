#pragma once

#include "platform/display/display_list.h"
#include "platform/media/bmpfont.h"
#include "platform/media/box.h"

#include <vector>

/// A character's pixels in their place: on the screen, or, for a text drawn at another size, relative to the
/// text's corner and in the pixels of the font.
struct PlacedGlyph {
    int x;
    int y;
    int clipRight; // screen pixels: from here on a revealed line does not show yet
    const Glyph* glyph;
};

/// Whether a text is drawn at another size than the font's.
bool isScaledText(const DrawCommand& command);

/// Appends the characters of a TextOut that show inside clip, in drawing order. The box around what they
/// paint, inside clip.
Box layoutText(const DrawCommand& command, std::string_view text, const Box& clip,
               std::vector<PlacedGlyph>& placed);

/// Screen box of a character of a scaled text, inside clip.
Box scaledGlyphBox(const DrawCommand& command, const PlacedGlyph& placed, const Box& clip);

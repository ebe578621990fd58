#pragma once

#include <cstddef>

/// A character of the built-in font, drawn by hand: rows from top to bottom, divided by bars. Row 0 is the
/// top of a capital, row 7 stands on the base line.
struct DrawnGlyph {
    unsigned char character;
    signed char top;
    const char* rows;
};
extern const DrawnGlyph drawnGlyphs[];
extern const std::size_t drawnGlyphCount;

enum class Accent { grave, acute, circumflex, tilde, diaeresis, ring, cedilla, caron };

/// A letter with a mark over or under it.
struct ComposedGlyph {
    unsigned char character;
    unsigned char base;
    Accent accent;
};
extern const ComposedGlyph composedGlyphs[];
extern const std::size_t composedGlyphCount;

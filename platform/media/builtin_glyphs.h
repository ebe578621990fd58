#pragma once

#include <cstddef>

/// A character of the built-in font, drawn by hand. rows go from top to bottom and are separated by '|'. Row
/// 0 is the top of a capital letter, row 7 is just above the base line.
struct DrawnGlyph {
    unsigned char character;
    signed char top;
    const char* rows;
};
extern const DrawnGlyph drawnGlyphs[];
extern const std::size_t drawnGlyphCount;

enum class Accent { grave, acute, circumflex, tilde, diaeresis, ring, cedilla, caron };

/// A letter with a diacritic above or below it.
struct ComposedGlyph {
    unsigned char character;
    unsigned char base;
    Accent accent;
};
extern const ComposedGlyph composedGlyphs[];
extern const std::size_t composedGlyphCount;

#include "platform/media/bmpfont.h"
#include "platform/media/builtin_glyphs.h"
#include "platform/media/code_page.h"

#include <algorithm>

namespace {

constexpr int capitalTop = 3; // rows above a capital letter, for accents
constexpr int smallTop = 2;   // rows from the top of a capital letter to the top of a small letter
constexpr int height = 13;
constexpr int lineDistance = 14;
constexpr int blankAdvance = 4;
constexpr std::uint32_t ink = 0xFFFFFFFF;

/// Returns the rows of an accent.
const char* rowsOf(Accent accent, bool overCapital)
{
    switch (accent) {
    case Accent::grave:
        return "#.|.#";
    case Accent::acute:
        return ".#|#.";
    case Accent::circumflex:
        return ".#.|#.#";
    case Accent::tilde:
        return ".#.#|#.#.";
    case Accent::diaeresis:
        return "#.#";
    case Accent::ring:
        return overCapital ? ".##.|#..#|.##." : ".#.|#.#|.#.";
    case Accent::cedilla:
        return ".#|#.";
    case Accent::caron:
        return "#.#|.#.";
    }
    return "";
}

struct Bitmap {
    int width = 0;
    int height = 0;
    std::string_view rows;

    explicit Bitmap(std::string_view drawn) : rows(drawn)
    {
        width = static_cast<int>(std::min(rows.find('|'), rows.size()));
        height = static_cast<int>(std::count(rows.begin(), rows.end(), '|')) + 1;
    }
    bool at(int x, int y) const { return rows[static_cast<std::size_t>(y) * (width + 1) + x] == '#'; }
};

void draw(Glyph& glyph, const Bitmap& bitmap, int x0, int y0)
{
    for (int y = 0; y < bitmap.height; y++)
        for (int x = 0; x < bitmap.width; x++)
            if (bitmap.at(x, y))
                glyph.pixels[static_cast<std::size_t>(y0 + y) * glyph.stride + x0 + x] = ink;
}

void enter(bmpfont& font, unsigned char character, std::string_view rows, int top)
{
    const Bitmap bitmap(rows);
    Glyph& glyph = font.glyphs[character];
    glyph.top = capitalTop + top;
    glyph.setSize(bitmap.width, bitmap.height);
    draw(glyph, bitmap, 0, 0);
    font.advances[character] = static_cast<std::int16_t>(bitmap.width + 1);
}

const DrawnGlyph& drawnGlyph(unsigned char character)
{
    return *std::find_if(drawnGlyphs, drawnGlyphs + drawnGlyphCount,
                         [&](const DrawnGlyph& drawn) { return drawn.character == character; });
}

void compose(bmpfont& font, const ComposedGlyph& composed)
{
    const DrawnGlyph& drawn = drawnGlyph(composed.base);
    const bool isCapital = composed.base <= 'Z';
    std::string_view baseRows = drawn.rows;
    int baseTop = drawn.top;
    if (composed.base == 'i') { // the accent replaces the dot
        baseRows.remove_prefix(4);
        baseTop = smallTop;
    }
    const Bitmap base(baseRows);
    const Bitmap accent(rowsOf(composed.accent, isCapital));
    int accentTop = (isCapital ? 0 : smallTop) - 1 - accent.height;
    if (composed.accent == Accent::cedilla)
        accentTop = 8;
    else if (composed.accent == Accent::ring)
        accentTop++; // too tall for a gap above the letter

    Glyph& glyph = font.glyphs[composed.character];
    const int top = std::min(accentTop, baseTop);
    const int bottom = std::max(accentTop + accent.height, baseTop + base.height);
    const int width = std::max(base.width, accent.width);
    glyph.top = capitalTop + top;
    glyph.setSize(width, bottom - top);
    draw(glyph, base, (width - base.width) / 2, baseTop - top);
    draw(glyph, accent, (width - accent.width) / 2, accentTop - top);
    font.advances[composed.character] = static_cast<std::int16_t>(width + 1);
}

} // namespace

std::unique_ptr<bmpfont> makeBuiltInFont()
{
    auto font = std::make_unique<bmpfont>();
    font->charHeight = height;
    font->lineHeight = lineDistance;
    for (int character = 0x80; character < 0x100; character++)
        if (unicodeOf(static_cast<unsigned char>(character)) == 0)
            enter(*font, static_cast<unsigned char>(character), "####|#..#|#..#|#..#|#..#|#..#|#..#|####", 0);
    for (std::size_t i = 0; i < drawnGlyphCount; i++)
        enter(*font, drawnGlyphs[i].character, drawnGlyphs[i].rows, drawnGlyphs[i].top);
    for (std::size_t i = 0; i < composedGlyphCount; i++)
        compose(*font, composedGlyphs[i]);
    for (const unsigned char blank : {' ', '\t', '\xA0'})
        font->advances[blank] = blankAdvance;
    return font;
}

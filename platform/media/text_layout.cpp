#include "platform/media/text_layout.h"

#include "platform/limits.h"
#include "platform/media/int_math.h"

#include <algorithm>
#include <climits>

namespace tgx {

namespace {

// Maximum distance of a character's pixels from its pen position. Loading a font enforces it.
constexpr std::int64_t glyphReach = 4 * limits::fontPixels;

// Maximum number of characters drawn for a text. More could be visible only with a font whose characters do
// not move the pen.
constexpr std::size_t glyphsPerText = 16384;

struct Line {
    std::string_view characters;
    std::size_t lengthWithBreak;
};

Line firstLine(std::string_view text, bool breaksLines)
{
    if (!breaksLines)
        return {text, text.size()};
    for (std::size_t i = 0; i < text.size(); i++) {
        if (text[i] == '\n')
            return {text.substr(0, i), i + 1};
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == 'n')
            return {text.substr(0, i), i + 2};
    }
    return {text, text.size()};
}

/// The area, in font pixels from the text's corner, in which characters can be visible inside clip.
struct VisibleArea {
    std::int64_t left, top, right, bottom;

    VisibleArea(const TextRun& run, const Box& clip)
        : left(toFont(run, std::int64_t(clip.x0) - run.x) - glyphReach),
          top(toFont(run, std::int64_t(clip.y0) - run.y) - glyphReach),
          right(toFont(run, std::int64_t(clip.x1) - run.x) + glyphReach),
          bottom(toFont(run, std::int64_t(clip.y1) - run.y) + glyphReach)
    {}

private:
    static std::int64_t toFont(const TextRun& run, std::int64_t pixels)
    {
        if (!run.isScaled())
            return pixels;
        constexpr std::int64_t far = 1 << 30; // positions further out do not fit into PlacedGlyph
        return std::clamp(floorDiv<std::int64_t>(pixels * ZnFixed::one, run.scale), -far, far);
    }
};

int revealedUpTo(const TextRun& run, std::string_view line, const Box& clip)
{
    if (!run.isRevealed || run.scale >= ZnFixed::one)
        return INT_MAX;
    std::int64_t width = 0;
    for (unsigned char character : line)
        width += run.font->advance(character);
    return clipped(0, 0, run.x + ((width * run.scale) >> 12), 1, clip).x1;
}

/// Places the characters of a line that begins lineY font pixels below the text's corner, and extends painted
/// to include them. Returns false if more than maxPlaced would be placed.
bool placeLine(const TextRun& run, std::string_view line, std::int64_t lineY, const VisibleArea& visible,
               const Box& clip, std::size_t maxPlaced, std::vector<PlacedGlyph>& placed, Box& painted)
{
    const bmpfont& font = *run.font;
    const bool isScaled = run.isScaled();
    const int clipRight = revealedUpTo(run, line, clip);
    std::int64_t pen = 0;
    for (unsigned char character : line) {
        if (pen > visible.right)
            break;
        const Glyph& glyph = font.glyph(character);
        const std::int64_t start = pen;
        pen += font.advance(character);
        if (glyph.pixels.empty() || start < visible.left)
            continue;
        PlacedGlyph place{static_cast<int>(start) + glyph.left, static_cast<int>(lineY) + glyph.top,
                          clipRight, &glyph};
        Box box;
        if (isScaled) {
            box = scaledGlyphBox(run, place, clip);
        } else {
            place.x += run.x; // near the clip, so it cannot overflow
            place.y += run.y;
            box = intersection(
                {place.x, place.y, std::min(place.x + glyph.width, clipRight), place.y + glyph.height}, clip);
        }
        if (box.isEmpty())
            continue;
        if (placed.size() >= maxPlaced)
            return false;
        placed.push_back(place);
        painted = hull(painted, box);
    }
    return true;
}

} // namespace

Box scaledGlyphBox(const TextRun& run, const PlacedGlyph& placed, const Box& clip)
{
    // Target pixel t shows font pixel floor(t / scale), so font pixel u begins at ceil(u * scale).
    const auto edge = [&](std::int64_t fontPixel) {
        return ceilDiv<std::int64_t>(fontPixel * run.scale, ZnFixed::one);
    };
    const Glyph& glyph = *placed.glyph;
    return clipped(run.x + edge(placed.x), run.y + edge(placed.y), run.x + edge(placed.x + glyph.width),
                   run.y + edge(placed.y + glyph.height), clip);
}

Box layoutText(const TextRun& run, std::string_view text, const Box& clip, std::vector<PlacedGlyph>& placed)
{
    if (!run.font || run.scale <= 0 || clip.isEmpty())
        return {};
    const VisibleArea visible(run, clip);
    const std::size_t maxPlaced = placed.size() + glyphsPerText;
    Box painted;
    for (std::int64_t lineY = 0; !text.empty() && lineY <= visible.bottom;
         lineY += std::max<int>(run.font->lineHeight, 1)) {
        const Line line = firstLine(text, run.breaksLines);
        text.remove_prefix(line.lengthWithBreak);
        if (lineY >= visible.top &&
            !placeLine(run, line.characters, lineY, visible, clip, maxPlaced, placed, painted))
            break;
    }
    return painted;
}

} // namespace tgx

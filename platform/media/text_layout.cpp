#include "platform/media/text_layout.h"

#include "platform/limits.h"
#include "platform/media/int_math.h"

namespace {

// Pixels of a character lie this near to its pen position; loading a font sees to that.
constexpr std::int64_t glyphReach = 4 * limits::fontPixels;

// Characters of one text that are drawn. Only a font whose characters do not move the pen puts more of them
// on a screen.
constexpr std::size_t glyphsPerText = 16384;

struct Line {
    std::string_view characters;
    std::size_t lengthWithBreak;
};

// A raw text breaks at a line feed and at the mark backslash, n.
Line firstLine(std::string_view text, bool raw)
{
    if (!raw)
        return {text, text.size()};
    for (std::size_t i = 0; i < text.size(); i++) {
        if (text[i] == '\n')
            return {text.substr(0, i), i + 1};
        if (text[i] == '\\' && i + 1 < text.size() && text[i + 1] == 'n')
            return {text.substr(0, i), i + 2};
    }
    return {text, text.size()};
}

} // namespace

bool isScaledText(const DrawCommand& command)
{
    return command.mode != 1 && command.scale != ZnFixed::one;
}

Box scaledGlyphBox(const DrawCommand& command, const PlacedGlyph& placed, const Box& clip)
{
    // Target pixel t shows font pixel floor(t / scale), so font pixel u begins at ceil(u * scale).
    const auto edge = [&](std::int64_t fontPixel) {
        return ceilDiv<std::int64_t>(fontPixel * command.scale, ZnFixed::one);
    };
    const Glyph& glyph = *placed.glyph;
    return clipped(command.x + edge(placed.x), command.y + edge(placed.y),
                   command.x + edge(placed.x + glyph.width), command.y + edge(placed.y + glyph.height), clip);
}

Box layoutText(const DrawCommand& command, std::string_view text, const Box& clip,
               std::vector<PlacedGlyph>& placed)
{
    const bmpfont* font = command.font;
    if (!font || command.scale <= 0 || clip.isEmpty())
        return {};
    const bool scaled = isScaledText(command);
    // A line, in font pixels from the text's corner, and the part of that plane which the clip shows.
    const auto toFont = [&](std::int64_t pixels) {
        if (!scaled)
            return pixels;
        constexpr std::int64_t far = 1 << 30; // what lies further out would not fit a placed glyph
        return std::clamp(floorDiv<std::int64_t>(pixels * ZnFixed::one, command.scale), -far, far);
    };
    const std::int64_t left = toFont(std::int64_t(clip.x0) - command.x) - glyphReach;
    const std::int64_t right = toFont(std::int64_t(clip.x1) - command.x) + glyphReach;
    const std::int64_t top = toFont(std::int64_t(clip.y0) - command.y) - glyphReach;
    const std::int64_t bottom = toFont(std::int64_t(clip.y1) - command.y) + glyphReach;

    const std::size_t first = placed.size();
    Box painted;
    std::int64_t lineY = 0;
    while (!text.empty() && lineY <= bottom) {
        const Line line = firstLine(text, command.flags & 1);
        text.remove_prefix(line.lengthWithBreak);
        const std::int64_t thisLine = lineY;
        lineY += std::max<int>(font->lineHeight, 1);
        if (thisLine < top)
            continue;
        int clipRight = INT_MAX;
        if (command.mode == 1 && command.scale < ZnFixed::one) {
            std::int64_t width = 0;
            for (unsigned char character : line.characters)
                width += font->advance(character);
            clipRight = clipped(0, 0, command.x + ((width * command.scale) >> 12), 1, clip).x1;
        }
        std::int64_t pen = 0;
        for (unsigned char character : line.characters) {
            if (pen > right)
                break;
            const Glyph& glyph = font->glyph(character);
            const std::int64_t start = pen;
            pen += font->advance(character);
            if (glyph.pixels.empty() || start < left)
                continue;
            PlacedGlyph place{static_cast<int>(start) + glyph.left, static_cast<int>(thisLine) + glyph.top,
                              clipRight, &glyph};
            Box box;
            if (scaled) {
                box = scaledGlyphBox(command, place, clip);
            } else {
                place.x += command.x; // near the clip, so it fits
                place.y += command.y;
                box = intersection(
                    {place.x, place.y, std::min(place.x + glyph.width, clipRight), place.y + glyph.height},
                    clip);
            }
            if (box.isEmpty())
                continue;
            if (placed.size() - first >= glyphsPerText)
                return painted;
            placed.push_back(place);
            painted = hull(painted, box);
        }
    }
    return painted;
}

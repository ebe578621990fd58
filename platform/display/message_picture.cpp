#include "platform/display/message_picture.h"

#include "platform/media/bmpfont.h"
#include "platform/media/box.h"

#include <algorithm>
#include <memory>
#include <string>
#include <vector>

namespace {

constexpr std::uint32_t plateColour = 0xFF10151C;
constexpr std::uint32_t edgeColour = 0xFF5A6A7C;
constexpr std::uint32_t textColour = 0xFFE8EDF2;
constexpr std::uint32_t hintColour = 0xFF9FB2C6;
constexpr std::string_view hint = "Press a key or click to continue.";

// In pixels.
constexpr int margin = 16; // from the screen's edge to the panel
constexpr int padding = 12;
constexpr int maxTextWidth = 420;

ImageRef dimmed(const Image& screen)
{
    ImageRef picture = makeImage(screen.width, screen.height);
    for (int y = 0; y < screen.height; ++y)
        std::transform(screen.row(y), screen.row(y) + screen.width, picture->row(y),
                       [](std::uint32_t pixel) { return 0xFF000000 | (pixel >> 2 & 0x3F3F3F); });
    return picture;
}

void fill(Image& picture, const Box& box, std::uint32_t colour)
{
    const Box shown = intersection(box, {0, 0, picture.width, picture.height});
    for (int y = shown.y0; y < shown.y1; ++y)
        std::fill(picture.row(y) + shown.x0, picture.row(y) + std::max(shown.x1, shown.x0), colour);
}

/// Draws a line of text. Treats a pixel as set if its alpha is at least 128, which is enough for the built-in
/// font, because it has no partly transparent pixels.
void write(Image& picture, const bmpfont& font, int x, int y, std::string_view line, std::uint32_t colour)
{
    for (const unsigned char character : line) {
        const Glyph& glyph = font.glyph(character);
        for (int row = 0; row < glyph.height; ++row)
            for (int column = 0; column < glyph.width; ++column)
                if (glyph.pixels[static_cast<std::size_t>(row) * glyph.stride + column] >> 31) {
                    const int left = x + glyph.left + column;
                    const int top = y + glyph.top + row;
                    fill(picture, {left, top, left + 1, top + 1}, colour);
                }
        x += font.advance(character);
    }
}

/// Breaks text at line feeds, and at blanks where a line would be too wide.
std::vector<std::string> wrapped(const bmpfont& font, std::string_view text, int width)
{
    std::vector<std::string> lines(1);
    const auto addWord = [&](std::string_view word) {
        std::string& line = lines.back();
        const std::string longer = line.empty() ? std::string(word) : line + ' ' + std::string(word);
        if (line.empty() || font.stringLength(longer) <= width)
            line = longer;
        else
            lines.emplace_back(word);
    };
    while (!text.empty()) {
        const std::size_t end = std::min(text.find_first_of(" \n"), text.size());
        if (end > 0)
            addWord(text.substr(0, end));
        if (end < text.size() && text[end] == '\n')
            lines.emplace_back();
        text.remove_prefix(std::min(end + 1, text.size()));
    }
    return lines;
}

} // namespace

ImageRef messagePicture(const Image& screen, std::string_view text)
{
    const std::unique_ptr<bmpfont> font = makeBuiltInFont();
    const int room = std::max(std::min(maxTextWidth, screen.width - 2 * (margin + padding)), 1);
    std::vector<std::string> lines = wrapped(*font, text, room);
    const int lineHeight = std::max<int>(font->lineHeight, 1);
    const int maxLines =
        (screen.height - 2 * (margin + padding)) / lineHeight - 2; // minus an empty line and the hint
    lines.resize(std::min<std::size_t>(lines.size(), static_cast<std::size_t>(std::max(maxLines, 1))));

    int width = font->stringLength(hint);
    for (const std::string& line : lines)
        width = std::max(width, font->stringLength(line));
    width = std::min(width, room);
    const int height = (static_cast<int>(lines.size()) + 2) * lineHeight;
    const int x = (screen.width - width) / 2;
    int y = (screen.height - height) / 2;

    ImageRef picture = dimmed(screen);
    const Box panel{x - padding, y - padding, x + width + padding, y + height + padding};
    fill(*picture, panel, edgeColour);
    fill(*picture, {panel.x0 + 1, panel.y0 + 1, panel.x1 - 1, panel.y1 - 1}, plateColour);
    for (const std::string& line : lines) {
        write(*picture, *font, x, y, line, textColour);
        y += lineHeight;
    }
    write(*picture, *font, x, y + lineHeight, hint, hintColour);
    return picture;
}

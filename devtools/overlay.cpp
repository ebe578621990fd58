#include "devtools/overlay.h"

namespace tgx {

namespace {

constexpr int largeScreen = 1280; // width in pixels from which text is drawn at double size, and so on
constexpr int fullShare = 256;
constexpr std::string_view dots = "...";

// Measures of panels in pixels of the font.
constexpr int margin = 4; // to the edges of the room
constexpr int padding = 5;
constexpr int columnGap = 8;

constexpr std::uint32_t plateColour = 0x10151C;
constexpr int plateShare = 240;
constexpr std::uint32_t edgeColour = 0x5A6A7C;
constexpr std::uint32_t nameColour = 0x9FB2C6;

/// Blends share/256 of colour over under.
std::uint32_t mixed(std::uint32_t under, std::uint32_t colour, int share)
{
    const auto part = static_cast<std::uint32_t>(share);
    const std::uint32_t rest = fullShare - part;
    const std::uint32_t redBlue = ((under & 0xFF00FF) * rest + (colour & 0xFF00FF) * part) >> 8 & 0xFF00FF;
    const std::uint32_t green = ((under & 0x00FF00) * rest + (colour & 0x00FF00) * part) >> 8 & 0x00FF00;
    return 0xFF000000 | redBlue | green;
}

/// A line split at its tab.
struct Columns {
    std::string_view name; // empty without a tab
    std::string_view rest;
};

Columns columnsOf(std::string_view line)
{
    const std::size_t tab = line.find('\t');
    return tab == std::string_view::npos ? Columns{{}, line}
                                         : Columns{line.substr(0, tab), line.substr(tab + 1)};
}

bool isLeft(Corner corner)
{
    return corner == Corner::TopLeft || corner == Corner::BottomLeft;
}

bool isTop(Corner corner)
{
    return corner == Corner::TopLeft || corner == Corner::TopRight;
}

/// Returns at most that many lines: the first ones, and a last one with the number of the others.
std::vector<PanelLine> shortened(const std::vector<PanelLine>& lines, std::size_t most)
{
    std::vector<PanelLine> kept(lines.begin(), lines.begin() + static_cast<std::ptrdiff_t>(most - 1));
    kept.push_back({"... and " + std::to_string(lines.size() - kept.size()) + " more", nameColour});
    return kept;
}

} // namespace

Overlay::Overlay() : font(makeBuiltInFont()) {}

void Overlay::begin(const Image& screen)
{
    if (!picture || picture->width != screen.width || picture->height != screen.height)
        picture = makeImage(screen.width, screen.height);
    for (int y = 0; y < screen.height; ++y)
        std::copy_n(screen.row(y), screen.width, picture->row(y));
    ++picture->version;
    fontScale = 1 + screen.width / largeScreen;
}

void Overlay::fill(const Box& box, std::uint32_t colour, int share)
{
    const Box shown = intersection(box, whole());
    for (int y = shown.y0; y < shown.y1; ++y) {
        std::uint32_t* row = picture->row(y);
        for (int x = shown.x0; x < shown.x1; ++x)
            row[x] = mixed(row[x], colour, share);
    }
}

void Overlay::outline(const Box& box, std::uint32_t colour)
{
    if (box.isEmpty())
        return;
    fill({box.x0, box.y0, box.x1, box.y0 + 1}, colour);
    fill({box.x0, box.y1 - 1, box.x1, box.y1}, colour);
    fill({box.x0, box.y0, box.x0 + 1, box.y1}, colour);
    fill({box.x1 - 1, box.y0, box.x1, box.y1}, colour);
}

void Overlay::text(int x, int y, std::string_view line, std::uint32_t colour)
{
    for (const unsigned char character : line) {
        const Glyph& glyph = font->glyph(character);
        for (int row = 0; row < glyph.height; ++row) {
            for (int column = 0; column < glyph.width; ++column) {
                const std::uint32_t alpha =
                    glyph.pixels[static_cast<std::size_t>(row) * glyph.stride + column] >> 24;
                const int left = x + (glyph.left + column) * fontScale;
                const int top = y + (glyph.top + row) * fontScale;
                if (alpha > 0)
                    fill({left, top, left + fontScale, top + fontScale}, colour,
                         static_cast<int>(alpha + (alpha >> 7)));
            }
        }
        x += font->advance(character) * fontScale;
    }
}

std::string Overlay::fitted(std::string_view line, int pixels) const
{
    if (textWidth(line) <= pixels)
        return std::string(line);
    int left = pixels - textWidth(dots);
    std::size_t kept = 0;
    while (kept < line.size() && (left -= textWidth(line.substr(kept, 1))) >= 0)
        ++kept;
    return std::string(line.substr(0, kept)) + std::string(dots);
}

Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner)
{
    return paintPanel(overlay, lines, corner, {0, 0, overlay.width(), overlay.height()});
}

Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner, const Box& room)
{
    const int scale = overlay.scale();
    const int inset = padding * scale;
    const int around = margin * scale;
    const int mostLines = (room.height() - 2 * (around + inset)) / overlay.lineHeight();
    const int mostWidth = room.width() - 2 * (around + inset);
    if (lines.empty() || mostLines < 1 || mostWidth < 1)
        return {};
    if (static_cast<int>(lines.size()) > mostLines)
        return paintPanel(overlay, shortened(lines, static_cast<std::size_t>(mostLines)), corner, room);

    int column = 0; // offset of the texts after the names
    for (const PanelLine& line : lines)
        if (const Columns columns = columnsOf(line.text); !columns.name.empty())
            column = std::max(column, overlay.textWidth(columns.name) + columnGap * scale);
    column = std::min(column, mostWidth / 2);
    int width = 0;
    for (const PanelLine& line : lines) {
        const Columns columns = columnsOf(line.text);
        width = std::max(width, overlay.textWidth(columns.rest) + (columns.name.empty() ? 0 : column));
    }
    width = std::min(width, mostWidth) + 2 * inset;
    const int height = static_cast<int>(lines.size()) * overlay.lineHeight() + 2 * inset;
    const int x = isLeft(corner) ? room.x0 + around : room.x1 - around - width;
    const int y = isTop(corner) ? room.y0 + around : room.y1 - around - height;
    const Box box{x, y, x + width, y + height};

    overlay.fill(box, plateColour, plateShare);
    overlay.outline(box, edgeColour);
    int top = y + inset;
    for (const PanelLine& line : lines) {
        const Columns columns = columnsOf(line.text);
        const int indent = columns.name.empty() ? 0 : column;
        if (indent > 0)
            overlay.text(x + inset, top, overlay.fitted(columns.name, indent - columnGap * scale),
                         nameColour);
        overlay.text(x + inset + indent, top, overlay.fitted(columns.rest, width - 2 * inset - indent),
                     line.colour);
        top += overlay.lineHeight();
    }
    return box;
}

} // namespace tgx

#pragma once

#include "platform/media/bmpfont.h"
#include "platform/media/box.h"
#include "platform/media/image.h"

#include <string>
#include <string_view>
#include <vector>

namespace tgx {

/// Paints over a copy of the screen, with the built-in font, so the game's display list and pixels do not
/// change. Positions are pixels of the screen; parts outside it are cut off. Colours are 0xRRGGBB. begin must
/// be called first.
class Overlay {
public:
    Overlay();
    /// Starts with a copy of screen. Text is larger on a large screen.
    void begin(const Image& screen);
    const Image& getPicture() const { return *picture; }
    int width() const { return picture->width; }
    int height() const { return picture->height; }
    /// Returns how many pixels of the screen a pixel of the font is wide and high.
    int scale() const { return fontScale; }

    /// Fills a box. share, 0 to 256, is the opacity of the colour.
    void fill(const Box& box, std::uint32_t colour, int share = 256);
    /// Draws an outline one pixel wide, inside box.
    void outline(const Box& box, std::uint32_t colour);
    /// Draws one line of text in code page 1252 with its top left corner at x, y.
    void text(int x, int y, std::string_view line, std::uint32_t colour = 0xFFFFFF);
    int textWidth(std::string_view line) const { return font->stringLength(line) * fontScale; }
    int lineHeight() const { return font->lineHeight * fontScale; }
    /// Cuts a line, with dots at the end, to fit into that many pixels.
    std::string fitted(std::string_view line, int pixels) const;

private:
    Box whole() const { return {0, 0, picture->width, picture->height}; }

    std::unique_ptr<bmpfont> font;
    ImageRef picture;
    int fontScale = 1;
};

/// A line of a panel. The text before a tab is the name of the text after it.
struct PanelLine {
    std::string text;
    std::uint32_t colour = 0xFFFFFF;
};
enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };
/// Paints a dark plate with lines of text in a corner of room, and returns its box. Lines that are too long
/// are cut; if there are too many, the last one says how many more there are.
Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner, const Box& room);
/// Paints it in a corner of the screen.
Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner);

} // namespace tgx

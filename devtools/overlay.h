#pragma once

#include "platform/media/bmpfont.h"
#include "platform/media/box.h"
#include "platform/media/image.h"

#include <string>
#include <string_view>
#include <vector>

/// Paints over a copy of the screen, in the built-in font: the game's display list and pixels stay as they
/// are. Positions are pixels of the screen; what lies outside shows nothing. Colours are 0xRRGGBB. begin
/// comes before all else.
class Overlay {
public:
    Overlay();
    /// Begins with a copy of screen. On a large screen text is larger too.
    void begin(const Image& screen);
    const Image& getPicture() const { return *picture; }
    int width() const { return picture->width; }
    int height() const { return picture->height; }
    /// Pixels of the screen that one of the font takes a side.
    int scale() const { return fontScale; }

    /// share: 0 to 256, how much of colour there is in the result.
    void fill(const Box& box, std::uint32_t colour, int share = 256);
    /// One pixel wide, inside box.
    void outline(const Box& box, std::uint32_t colour);
    /// One line, its top left corner at x, y; characters of code page 1252.
    void text(int x, int y, std::string_view line, std::uint32_t colour = 0xFFFFFF);
    int textWidth(std::string_view line) const { return font->stringLength(line) * fontScale; }
    int lineHeight() const { return font->lineHeight * fontScale; }
    /// Cut, with dots, to what fits into that many pixels.
    std::string fitted(std::string_view line, int pixels) const;

private:
    Box whole() const { return {0, 0, picture->width, picture->height}; }

    std::unique_ptr<bmpfont> font;
    ImageRef picture;
    int fontScale = 1;
};

/// A line of a panel, in that colour. What stands in front of a tab is the name of what stands behind it.
struct PanelLine {
    std::string text;
    std::uint32_t colour = 0xFFFFFF;
};
enum class Corner { TopLeft, TopRight, BottomLeft, BottomRight };
/// A dark plate with lines of text in a corner of room; lines that are too long for it are cut, and where
/// they are too many the last one tells how many more there are. The box that it takes.
Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner, const Box& room);
/// In a corner of the screen.
Box paintPanel(Overlay& overlay, const std::vector<PanelLine>& lines, Corner corner);

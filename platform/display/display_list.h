#pragma once

#include "platform/export.h"
#include "platform/framework/znfixed.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <span>
#include <string_view>
#include <vector>

struct Image;
class bmpfont;

enum class DrawOp : std::uint8_t {
    Blit,
    BlitRow, // equal pieces of a bitmap beside or below each other: a Blit for each, see pieceOf
    FillRect,
    Rectangle,
    Line,
    TextOut,
    // What follows paints nothing by itself; it stands in the list for those who read it.
    AddDirtyRect,
    SetBackdropName,
    SetBackdropColour,
    DrawBackdrop,
    RedrawScreen,
    DrawScreen,
};

/// One drawing operation with its arguments as they were passed. Plain data, one cache line. Two frames are
/// the same where their commands' compared halves are.
struct alignas(64) DrawCommand {
    // Compared:
    DrawOp op = DrawOp::Blit;
    std::uint8_t flags = 0;    // TextOut: 1 for raw; BlitRow: PieceFlags
    std::int16_t mode = 0;     // of Blit and TextOut; width of a Line
    std::uint32_t subject = 0; // id of the image; index of the font + 1, 0 for none
    std::int32_t x = 0;        // target, of a BlitRow the whole row; left or x1
    std::int32_t y = 0;        // top or y1
    std::int32_t w = 0;        // width; right or x2 of FillRect, Rectangle, Line, AddDirtyRect
    std::int32_t h = 0;
    union {
        struct {
            std::int32_t sx, sy, sw, sh; // Blit: source rectangle; BlitRow: sw is a piece's side along it
        };
        struct {
            std::uint64_t textHash; // TextOut, SetBackdropName
            std::uint32_t textLength;
            std::int32_t scale; // raw fixed point
        };
    };
    std::uint32_t colour = 0; // pixel form; version of the image for Blit and BlitRow
    // Not compared:
    std::uint32_t textOffset = 0; // into the list's text bytes
    union {
        const Image* image;
        const bmpfont* font;
    };

    DrawCommand() : sx(0), sy(0), sw(0), sh(0), image(nullptr) {}

    static constexpr std::size_t comparedBytes = 44;
    bool sameAs(const DrawCommand& other) const { return std::memcmp(this, &other, comparedBytes) == 0; }
};
static_assert(sizeof(DrawCommand) == 64);

enum PieceFlags : std::uint8_t {
    pieceDown = 1,       // the pieces lie below each other, else beside
    pieceAlternates = 2, // its pieces and those of the next command were drawn in turn
};

/// How many pieces a BlitRow has.
inline int pieceCount(const DrawCommand& row)
{
    const int length = row.flags & pieceDown ? row.h : row.w;
    return length <= 0 || row.sw <= 0 ? 0 : (length - 1) / row.sw + 1;
}
/// The Blit that one of them is, 0 the first. The last one is cut to the row's end.
inline DrawCommand pieceOf(const DrawCommand& row, int index)
{
    DrawCommand piece = row;
    piece.op = DrawOp::Blit;
    piece.flags = 0;
    piece.sw = piece.sh = -1;
    const int done = index * row.sw;
    if (row.flags & pieceDown) {
        piece.y = row.y + done;
        piece.h = std::min(row.sw, row.h - done);
    } else {
        piece.x = row.x + done;
        piece.w = std::min(row.sw, row.w - done);
    }
    return piece;
}

/// The drawing operations of one frame, in call order, flat: commands in one vector, text bytes in another.
/// Recording allocates nothing once both have grown to a frame's size.
class TGX_PLATFORM_API DisplayList {
public:
    std::span<const DrawCommand> commands() const { return recorded; }
    /// Text of a TextOut, name of a SetBackdropName.
    std::string_view text(const DrawCommand& command) const
    {
        return {characters.data() + command.textOffset, command.textLength};
    }

    DrawCommand& add(DrawOp op)
    {
        DrawCommand& command = recorded.emplace_back();
        command.op = op;
        return command;
    }
    /// Stores text and enters its place, length and hash into command.
    void setText(DrawCommand& command, std::string_view text);
    /// Keeps the storage.
    void clear()
    {
        recorded.clear();
        characters.clear();
    }

private:
    std::vector<DrawCommand> recorded;
    std::vector<char> characters;
};

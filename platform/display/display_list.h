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
    BlitRow, // equal pieces of a bitmap side by side or one below the other; pieceOf returns the Blit of each
    FillRect,
    Rectangle,
    Line,
    TextOut,
    // The following operations paint nothing; they are recorded for readers of the list.
    AddDirtyRect,
    SetBackdropName,
    SetBackdropColour,
    DrawBackdrop,
    RedrawScreen,
    DrawScreen,
};

/// One drawing operation with its original arguments. Plain data, one cache line. Two commands are the same
/// if their first comparedBytes bytes are.
struct alignas(64) DrawCommand {
    // Compared:
    DrawOp op = DrawOp::Blit;
    std::uint8_t flags = 0;    // TextOut: 1 if raw; BlitRow: PieceFlags
    std::int16_t mode = 0;     // Blit, TextOut: mode; Line: width
    std::uint32_t subject = 0; // image id, or font index + 1; 0 for none
    std::int32_t x = 0;        // left edge of the target or x1; for a BlitRow, the target is the whole row
    std::int32_t y = 0;        // top edge or y1
    std::int32_t w = 0;        // width; for FillRect, Rectangle, Line and AddDirtyRect, right edge or x2
    std::int32_t h = 0;
    union {
        struct {
            std::int32_t sx, sy, sw,
                sh; // Blit: source rectangle; BlitRow: sw is the length of a piece along the row
        };
        struct {
            std::uint64_t textHash; // TextOut, SetBackdropName
            std::uint32_t textLength;
            std::int32_t scale; // raw fixed point
        };
    };
    std::uint32_t colour = 0; // pixel form; for Blit and BlitRow, the image's version
    // Not compared:
    std::uint32_t textOffset = 0; // index into the list's text bytes
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
    pieceDown = 1,       // the pieces are one below the other, otherwise side by side
    pieceAlternates = 2, // the pieces of this and the next command were drawn alternately
};

/// Returns the number of pieces of a BlitRow.
inline int pieceCount(const DrawCommand& row)
{
    const int length = row.flags & pieceDown ? row.h : row.w;
    return length <= 0 || row.sw <= 0 ? 0 : (length - 1) / row.sw + 1;
}
/// Returns the Blit of one piece; index starts at 0. The last piece is cut off at the row's end.
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

/// The drawing operations of one frame, in call order. Commands are in one vector and text bytes in another,
/// so recording allocates nothing once both have grown to a frame's size.
class TGX_PLATFORM_API DisplayList {
public:
    std::span<const DrawCommand> commands() const { return recorded; }
    /// Returns the text of a TextOut or the name of a SetBackdropName.
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
    /// Stores text, and its offset, length and hash in command.
    void setText(DrawCommand& command, std::string_view text);
    /// Removes all commands but keeps the storage.
    void clear()
    {
        recorded.clear();
        characters.clear();
    }

private:
    std::vector<DrawCommand> recorded;
    std::vector<char> characters;
};

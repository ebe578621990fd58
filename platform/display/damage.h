#pragma once

#include "platform/display/display_list.h"
#include "platform/media/box.h"
#include "platform/media/text_layout.h"

#include <vector>

struct tagRECT;

/// The painted part of a list, as the half-open range [first, end).
struct PaintedRange {
    std::size_t first = 0;
    std::size_t end = 0;
};

/// The set of screen tiles that have to be redrawn. A tile is damaged if the commands that paint it differ
/// from those of the previous frame, or if the backdrop under it has changed.
class Damage {
public:
    static constexpr int tileSize = 64; // 16 KiB of pixels: a tile fits into the L1 cache while it is drawn

    /// Sets the screen's size and marks all tiles as damaged.
    void resize(int width, int height);
    void clear();
    void markAll();
    void mark(const Box& box);
    /// Marks the tiles in which the two lists differ.
    void markDifferences(const DisplayList& before, PaintedRange painted, const DisplayList& now,
                         PaintedRange toPaint);

    bool isEmpty() const { return bounds.isEmpty(); }
    bool at(int column, int row) const { return tiles[static_cast<std::size_t>(row) * columns + column]; }
    /// Returns the box of screen pixels around all damaged tiles.
    const Box& box() const { return bounds; }
    const Box& screen() const { return screenBox; }
    int getColumns() const { return columns; }
    int getRows() const { return rows; }
    Box tileBox(int column, int row) const
    {
        return intersection(
            {column * tileSize, row * tileSize, (column + 1) * tileSize, (row + 1) * tileSize}, screenBox);
    }
    /// Collects the damaged tiles as a small number of rectangles that do not overlap.
    void collectRects(std::vector<tagRECT>& rects) const;

private:
    void fold(const DisplayList& list, const DrawCommand& command, std::vector<std::uint64_t>& hashes);

    Box screenBox;
    int columns = 0;
    int rows = 0;
    std::vector<std::uint8_t> tiles;
    Box bounds;
    std::vector<std::uint64_t> hashesBefore;
    std::vector<std::uint64_t> hashesNow;
    std::vector<tgx::PlacedGlyph> placed; // glyphs of the current text
};

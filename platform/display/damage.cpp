#include "platform/display/damage.h"

#include "platform/display/command_box.h"
#include "platform/display/ddwin.h"

namespace {

std::uint64_t hashOf(const DrawCommand& command)
{
    std::uint64_t words[DrawCommand::comparedBytes / 8 + 1] = {};
    std::memcpy(words, &command, DrawCommand::comparedBytes);
    std::uint64_t hash = 0;
    for (std::uint64_t word : words) {
        hash = (hash ^ word) * 0x9E3779B97F4A7C15u;
        hash ^= hash >> 32;
    }
    return hash;
}

} // namespace

void Damage::resize(int width, int height)
{
    screenBox = {0, 0, std::max(width, 0), std::max(height, 0)};
    columns = (screenBox.x1 + tileSize - 1) / tileSize;
    rows = (screenBox.y1 + tileSize - 1) / tileSize;
    tiles.assign(static_cast<std::size_t>(columns) * rows, 1);
    bounds = screenBox;
}

void Damage::clear()
{
    std::fill(tiles.begin(), tiles.end(), 0);
    bounds = {};
}

void Damage::markAll()
{
    std::fill(tiles.begin(), tiles.end(), 1);
    bounds = screenBox;
}

void Damage::mark(const Box& box)
{
    const Box part = intersection(box, screenBox);
    if (part.isEmpty())
        return;
    const Box inTiles{part.x0 / tileSize, part.y0 / tileSize, (part.x1 - 1) / tileSize + 1,
                      (part.y1 - 1) / tileSize + 1};
    for (int row = inTiles.y0; row < inTiles.y1; row++)
        std::fill_n(tiles.begin() + static_cast<std::ptrdiff_t>(row) * columns + inTiles.x0, inTiles.width(),
                    1);
    bounds = hull(bounds, intersection({inTiles.x0 * tileSize, inTiles.y0 * tileSize, inTiles.x1 * tileSize,
                                        inTiles.y1 * tileSize},
                                       screenBox));
}

// Adds a command to the hashes of the tiles that it paints. Order matters, because the same commands in
// another order give another picture.
void Damage::fold(const DisplayList& list, const DrawCommand& command, std::vector<std::uint64_t>& hashes)
{
    if (!paints(command.op))
        return;
    Box box;
    if (command.op == DrawOp::TextOut) {
        placed.clear();
        box = tgx::layoutText(textRunOf(command), list.text(command), screenBox, placed);
    } else {
        box = paintedBox(command, screenBox);
    }
    if (box.isEmpty())
        return;
    const std::uint64_t hash = hashOf(command);
    for (int row = box.y0 / tileSize; row <= (box.y1 - 1) / tileSize; row++) {
        for (int column = box.x0 / tileSize; column <= (box.x1 - 1) / tileSize; column++) {
            std::uint64_t& folded = hashes[static_cast<std::size_t>(row) * columns + column];
            folded = (folded ^ hash) * 0xD6E8FEB86659FD93u + 1;
        }
    }
}

void Damage::markDifferences(const DisplayList& before, PaintedRange painted, const DisplayList& now,
                             PaintedRange toPaint)
{
    const auto oldCommands = before.commands();
    const auto newCommands = now.commands();
    while (painted.first < painted.end && toPaint.first < toPaint.end &&
           oldCommands[painted.first].sameAs(newCommands[toPaint.first])) {
        painted.first++;
        toPaint.first++;
    }
    while (painted.first < painted.end && toPaint.first < toPaint.end &&
           oldCommands[painted.end - 1].sameAs(newCommands[toPaint.end - 1])) {
        painted.end--;
        toPaint.end--;
    }
    if (painted.first == painted.end && toPaint.first == toPaint.end)
        return;

    hashesBefore.assign(tiles.size(), 0);
    hashesNow.assign(tiles.size(), 0);
    for (std::size_t i = painted.first; i < painted.end; i++)
        fold(before, oldCommands[i], hashesBefore);
    for (std::size_t i = toPaint.first; i < toPaint.end; i++)
        fold(now, newCommands[i], hashesNow);
    for (int row = 0; row < rows; row++)
        for (int column = 0; column < columns; column++)
            if (const std::size_t i = static_cast<std::size_t>(row) * columns + column;
                hashesBefore[i] != hashesNow[i])
                mark(tileBox(column, row));
}

void Damage::collectRects(std::vector<tagRECT>& rects) const
{
    rects.clear();
    std::size_t previousRow = 0; // first rectangle that ends where this row begins
    for (int row = 0; row < rows; row++) {
        const std::size_t thisRow = rects.size();
        for (int column = 0; column < columns; column++) {
            if (!at(column, row))
                continue;
            tagRECT rect;
            rect.left = column * tileSize;
            while (column + 1 < columns && at(column + 1, row))
                column++;
            const Box last = tileBox(column, row);
            rect.right = last.x1;
            rect.top = last.y0;
            rect.bottom = last.y1;
            // Extends a rectangle with the same columns in the row above.
            bool grown = false;
            for (std::size_t i = previousRow; i < thisRow && !grown; i++) {
                if (rects[i].left == rect.left && rects[i].right == rect.right &&
                    rects[i].bottom == rect.top) {
                    rects[i].bottom = rect.bottom;
                    grown = true;
                }
            }
            if (!grown)
                rects.push_back(rect);
        }
        while (previousRow < rects.size() && rects[previousRow].bottom <= row * tileSize)
            previousRow++;
    }
}

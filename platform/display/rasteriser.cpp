#include "platform/display/rasteriser.h"

#include "platform/display/blit_rows.h"
#include "platform/display/command_box.h"

namespace {

constexpr int tileSize = Damage::tileSize;

// Maximum number of tiles in a run, so that its pixels fit into the L2 cache while its commands are drawn.
constexpr int tilesPerRun = 16;

/// Paints the pieces of a row that are inside clip.
void paintRow(Image& screen, const DrawCommand& row, const Box& clip, StretchBuffers& buffers)
{
    const bool isDown = (row.flags & pieceDown) != 0;
    const std::int64_t start = isDown ? row.y : row.x;
    const auto first = static_cast<int>(((isDown ? clip.y0 : clip.x0) - start) / row.sw);
    const auto last = static_cast<int>(((isDown ? clip.y1 : clip.x1) - 1 - start) / row.sw);
    for (int i = first; i <= last; ++i) {
        const DrawCommand piece = pieceOf(row, i);
        const Box box = paintedBox(piece, clip);
        if (!box.isEmpty())
            paintBlit(screen, piece, box, buffers);
    }
}

} // namespace

void Rasteriser::paint(const DisplayList& list, PaintedRange range, const BackdropPixels& backdrop,
                       const Damage& damage, Image& screen)
{
    if (damage.isEmpty())
        return;
    gather(list, range, damage);
    findStarts(damage);
    formRuns(damage);
    fillBins(damage);
    for (const Run& run : runs)
        paintRun(run, backdrop, screen);
}

void Rasteriser::gather(const DisplayList& list, PaintedRange range, const Damage& damage)
{
    items.clear();
    placed.clear();
    for (const DrawCommand& command : list.commands().subspan(range.first, range.end - range.first)) {
        if (!paints(command.op))
            continue;
        const auto glyphFirst = static_cast<std::uint32_t>(placed.size());
        const Box box = command.op == DrawOp::TextOut
                            ? tgx::layoutText(textRunOf(command), list.text(command), damage.box(), placed)
                            : paintedBox(command, damage.box());
        if (!box.isEmpty())
            items.push_back({&command, box, glyphFirst, static_cast<std::uint32_t>(placed.size())});
    }
}

void Rasteriser::findStarts(const Damage& damage)
{
    const int columns = damage.getColumns();
    const Box& area = damage.box();
    starts.assign(static_cast<std::size_t>(columns) * damage.getRows(), -1);
    for (std::size_t i = 0; i < items.size(); i++) {
        const Box& box = items[i].box;
        // A tile at the edge of the damaged area counts as covered if its part inside that area is.
        const int firstColumn = (box.x0 + tileSize - 1) / tileSize;
        const int firstRow = (box.y0 + tileSize - 1) / tileSize;
        const int endColumn = box.x1 == area.x1 ? (box.x1 + tileSize - 1) / tileSize : box.x1 / tileSize;
        const int endRow = box.y1 == area.y1 ? (box.y1 + tileSize - 1) / tileSize : box.y1 / tileSize;
        if (firstColumn >= endColumn || firstRow >= endRow || !coversAll(*items[i].command))
            continue;
        for (int row = firstRow; row < endRow; row++)
            std::fill_n(starts.begin() + static_cast<std::ptrdiff_t>(row) * columns + firstColumn,
                        endColumn - firstColumn, static_cast<std::int32_t>(i));
    }
}

void Rasteriser::formRuns(const Damage& damage)
{
    const int columns = damage.getColumns();
    runs.clear();
    runOf.assign(starts.size(), -1);
    for (int row = 0; row < damage.getRows(); row++) {
        int length = 0; // number of tiles in the run of the tile to the left
        for (int column = 0; column < columns; column++) {
            const std::size_t tile = static_cast<std::size_t>(row) * columns + column;
            if (!damage.at(column, row)) {
                length = 0;
                continue;
            }
            const Box box = damage.tileBox(column, row);
            if (length > 0 && length < tilesPerRun && runs.back().start == starts[tile]) {
                runs.back().box.x1 = box.x1;
                runs.back().lastColumn = column;
                length++;
            } else {
                runs.push_back({box, starts[tile], column, 0, 0});
                length = 1;
            }
            runOf[tile] = static_cast<std::int32_t>(runs.size() - 1);
        }
    }
}

template<class Action>
void Rasteriser::forEachRun(const Item& item, int index, int columns, Action action)
{
    const int firstColumn = item.box.x0 / tileSize;
    const int lastColumn = (item.box.x1 - 1) / tileSize;
    const int lastRow = (item.box.y1 - 1) / tileSize;
    for (int row = item.box.y0 / tileSize; row <= lastRow; row++) {
        for (int column = firstColumn; column <= lastColumn; column++) {
            const std::int32_t number = runOf[static_cast<std::size_t>(row) * columns + column];
            if (number < 0)
                continue;
            Run& run = runs[static_cast<std::size_t>(number)];
            column = run.lastColumn;
            if (index >= run.start)
                action(run);
        }
    }
}

void Rasteriser::fillBins(const Damage& damage)
{
    const int columns = damage.getColumns();
    for (std::size_t i = 0; i < items.size(); i++)
        forEachRun(items[i], static_cast<int>(i), columns, [](Run& run) { run.end++; });
    std::uint32_t total = 0;
    for (Run& run : runs) {
        run.first = total;
        total += run.end;
        run.end = run.first;
    }
    binned.resize(total);
    for (std::size_t i = 0; i < items.size(); i++)
        forEachRun(items[i], static_cast<int>(i), columns,
                   [&](Run& run) { binned[run.end++] = static_cast<std::uint32_t>(i); });
}

void Rasteriser::paintRun(const Run& run, const BackdropPixels& backdrop, Image& screen)
{
    const Box& area = run.box;
    std::uint32_t* to = screen.row(area.y0) + area.x0;
    if (run.start < 0 && backdrop.picture) {
        const Image& picture = *backdrop.picture;
        copyPixels(
            {to, screen.pitch, picture.row(area.y0) + area.x0, picture.pitch, area.width(), area.height()});
    } else if (run.start < 0) {
        fillPixels(to, screen.pitch, area.width(), area.height(), 0xFF000000 | backdrop.colour);
    }
    for (std::uint32_t i = run.first; i < run.end; i++) {
        const Item& item = items[binned[i]];
        const DrawCommand& command = *item.command;
        const Box clip = intersection(item.box, area);
        switch (command.op) {
        case DrawOp::Blit:
            paintBlit(screen, command, clip, buffers);
            break;
        case DrawOp::BlitRow:
            paintRow(screen, command, clip, buffers);
            break;
        case DrawOp::FillRect:
            paintFill(screen, command, clip);
            break;
        case DrawOp::Rectangle:
            paintOutline(screen, command, clip);
            break;
        case DrawOp::Line:
            paintLine(screen, command, clip);
            break;
        default:
            paintText(screen, command,
                      std::span(placed).subspan(item.glyphFirst, item.glyphEnd - item.glyphFirst), clip);
            break;
        }
    }
}

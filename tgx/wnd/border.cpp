#include "tgx/wnd/border.h"

#include "platform/display/msgbox.h"
#include "platform/display/surface.h"
#include "tgx/wnd/stage.h"
#include "tgx/wnd/wnd.h"

#include <algorithm>

namespace {

/// The pieces of a strip, clockwise from the top left corner.
enum Piece { TopLeft, TopEdge, TopRight, RightEdge, BottomRight, BottomEdge, BottomLeft, LeftEdge };

} // namespace

ABorder::ABorder(surface* bmp, int width, int size)
    : borderWidth(static_cast<short>(width)), borderBmp(bmp), pieceSize(static_cast<short>(size))
{}

void ABorder::draw(int x, int y, int width, int height)
{
    const int size = pieceSize;
    if (!borderBmp || size <= 0)
        return;

    const auto sourceOf = [size](Piece piece) { return piece * (size + 1); };
    borderBmp->blitRows({x + size, y, sourceOf(TopEdge)}, {x + size, y + height - size, sourceOf(BottomEdge)},
                        size, width - 2 * size, false);
    borderBmp->blitRows({x, y + size, sourceOf(LeftEdge)}, {x + width - size, y + size, sourceOf(RightEdge)},
                        size, height - 2 * size, true);

    // On a window smaller than two pieces each corner piece shows only the part at the window's corner.
    // skipX, skipY: pixels left out at the piece's left and top.
    const auto put = [&](Piece piece, int skipX, int skipY, int toX, int toY, int w, int h) {
        borderBmp->blit(toX, toY, sourceOf(piece) + skipX, skipY, w, h, -1, -1, nullptr, -1);
    };
    const int w = std::min(size, width / 2);
    const int h = std::min(size, height / 2);
    const int skipX = size - w;
    const int skipY = size - h;
    put(TopLeft, 0, 0, x, y, w, h);
    put(TopRight, skipX, 0, x + width - w, y, w, h);
    put(BottomLeft, 0, skipY, x, y + height - h, w, h);
    put(BottomRight, skipX, skipY, x + width - w, y + height - h, w, h);
}

std::unique_ptr<ABorder> ABorder::load(const CString& file, int borderWidth, int pieceSize)
{
    surface* strip = nullptr;
    if (tgx::Stage* stage = tgx::stage())
        strip = stage->createsprite(file, -1, -1, -1);
    if (!strip)
        reportNotLoaded(file);
    return std::make_unique<ABorder>(strip, borderWidth, pieceSize);
}

ABorder* AWnd::setBorder(const CString& name, int borderWidth, int pieceSize)
{
    border = ABorder::load(name, borderWidth, pieceSize);
    return border.get();
}

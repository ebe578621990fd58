#include "platform/display/command_box.h"

#include "platform/media/image.h"
#include "platform/media/int_math.h"

namespace {

struct Range {
    std::int64_t first, end;
};

// Returns the part of a blit's target, along one axis, that shows pixels inside the bitmap. The target is
// `size` long, the bitmap `side`, and the source starts at `start` and is `sourceSize` long: target pixel i
// shows source pixel start + floor(i * sourceSize / size). All products fit into 63 bits.
Range shownRange(std::int64_t size, std::int64_t start, std::int64_t sourceSize, std::int64_t side)
{
    if (size == sourceSize)
        return {std::max<std::int64_t>(0, -start), std::min(size, side - start)};
    const std::int64_t first = start < 0 ? ceilDiv(-start * size, sourceSize) : 0;
    if (start >= side)
        return {0, 0};
    return {first, std::min(size, ceilDiv((side - start) * size, sourceSize))};
}

Box blitBox(const DrawCommand& blit, const Box& clip)
{
    const BlitSource source = sourceOf(blit);
    if (source.w <= 0 || !blit.image)
        return {};
    const Range across = shownRange(blit.w, blit.sx, source.w, blit.image->width);
    const Range down = shownRange(blit.h, blit.sy, source.h, blit.image->height);
    return clipped(blit.x + across.first, blit.y + down.first, blit.x + across.end, blit.y + down.end, clip);
}

} // namespace

Box paintedBox(const DrawCommand& command, const Box& clip)
{
    switch (command.op) {
    case DrawOp::Blit:
        return blitBox(command, clip);
    case DrawOp::BlitRow:
        return command.image ? clipped(command.x, command.y, static_cast<std::int64_t>(command.x) + command.w,
                                       static_cast<std::int64_t>(command.y) + command.h, clip)
                             : Box();
    case DrawOp::FillRect:
    case DrawOp::Rectangle:
        return intersection({command.x, command.y, command.w, command.h}, clip);
    case DrawOp::Line: {
        const std::int64_t reach = std::max<int>(command.mode, 1) / 2 + 1;
        const std::int64_t x1 = command.x, y1 = command.y, x2 = command.w, y2 = command.h;
        return clipped(std::min(x1, x2) - reach, std::min(y1, y2) - reach, std::max(x1, x2) + reach + 1,
                       std::max(y1, y2) + reach + 1, clip);
    }
    default:
        return {};
    }
}

bool coversAll(const DrawCommand& command)
{
    if (command.op == DrawOp::FillRect)
        return true;
    if (command.op != DrawOp::Blit || command.mode == 2 || command.mode == 3)
        return false;
    return command.mode == 1 || command.image->coverage == Coverage::Opaque;
}

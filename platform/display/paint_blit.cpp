#include "platform/display/blit_rows.h"
#include "platform/display/command_box.h"
#include "platform/display/painters.h"

namespace {

using BlockPainter = void (*)(const PixelBlock&);

BlockPainter painterFor(const DrawCommand& command)
{
    const Coverage coverage = command.image->coverage;
    switch (command.mode) {
    case 1:
        return coverage == Coverage::Opaque ? copyPixels : copyColours;
    case 2:
        return averagePixels;
    case 3:
        return addPixels;
    default:
        return coverage == Coverage::Opaque   ? copyPixels
               : coverage == Coverage::Masked ? selectPixels
                                              : blendPixels;
    }
}

// Iterates over start + floor(i * sourceSize / targetSize) for consecutive i without a division in each step.
class SourceSteps {
public:
    SourceSteps(std::int64_t start, std::int64_t first, std::int64_t sourceSize, std::int64_t targetSize)
        : size(targetSize), step(sourceSize / targetSize), restStep(sourceSize % targetSize),
          rest(first * sourceSize % targetSize), current(start + first * sourceSize / targetSize)
    {}
    int at() const { return static_cast<int>(current); }
    void advance()
    {
        current += step;
        rest += restStep;
        if (rest >= size) {
            rest -= size;
            current++;
        }
    }

private:
    std::int64_t size, step, restStep, rest, current;
};

void paintStretched(Image& screen, const DrawCommand& command, const BlitSource& source, const Box& clip,
                    StretchBuffers& buffers)
{
    const Image& image = *command.image;
    const BlockPainter paint = painterFor(command);
    SourceSteps column(command.sx, std::int64_t(clip.x0) - command.x, source.w, command.w);
    buffers.columns.resize(static_cast<std::size_t>(clip.width()));
    for (std::int32_t& mapped : buffers.columns) {
        mapped = column.at();
        column.advance();
    }
    buffers.row.resize(buffers.columns.size());

    SourceSteps row(command.sy, std::int64_t(clip.y0) - command.y, source.h, command.h);
    for (int y = clip.y0; y < clip.y1;) {
        const int wanted = row.at();
        int end = y;
        do {
            end++;
            row.advance();
        } while (end < clip.y1 && row.at() == wanted);
        std::uint32_t* to = screen.row(y) + clip.x0;
        if (paint == copyPixels) {
            // Builds the first target row in place and copies it to the rows that repeat it.
            gatherPixels(to, image.row(wanted), buffers.columns.data(), clip.width());
            if (end > y + 1)
                copyPixels({to + screen.pitch, screen.pitch, to, 0, clip.width(), end - y - 1});
        } else {
            gatherPixels(buffers.row.data(), image.row(wanted), buffers.columns.data(), clip.width());
            paint({to, screen.pitch, buffers.row.data(), 0, clip.width(), end - y});
        }
        y = end;
    }
}

} // namespace

void paintBlit(Image& screen, const DrawCommand& command, const Box& clip, StretchBuffers& buffers)
{
    const BlitSource source = sourceOf(command);
    if (source.isStretched) {
        paintStretched(screen, command, source, clip, buffers);
        return;
    }
    const Image& image = *command.image;
    const auto sx =
        static_cast<int>(command.sx + (std::int64_t(clip.x0) -
                                       command.x)); // inside the bitmap, because clip is inside paintedBox
    const auto sy = static_cast<int>(command.sy + (std::int64_t(clip.y0) - command.y));
    painterFor(command)({screen.row(clip.y0) + clip.x0, screen.pitch, image.row(sy) + sx, image.pitch,
                         clip.width(), clip.height()});
}

void paintFill(Image& screen, const DrawCommand& command, const Box& clip)
{
    fillPixels(screen.row(clip.y0) + clip.x0, screen.pitch, clip.width(), clip.height(),
               0xFF000000 | command.colour);
}

void paintOutline(Image& screen, const DrawCommand& command, const Box& clip)
{
    const int x1 = command.x, y1 = command.y, x2 = command.w, y2 = command.h;
    if (x1 >= x2 || y1 >= y2)
        return;
    for (const Box& edge : {Box{x1, y1, x2, y1 + 1}, Box{x1, y2 - 1, x2, y2}, Box{x1, y1, x1 + 1, y2},
                            Box{x2 - 1, y1, x2, y2}}) {
        const Box part = intersection(edge, clip);
        if (!part.isEmpty())
            paintFill(screen, command, part);
    }
}

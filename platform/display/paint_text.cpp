#include "platform/display/blit_rows.h"
#include "platform/display/command_box.h"
#include "platform/display/painters.h"
#include "platform/media/int_math.h"

using tgx::PlacedGlyph;
using tgx::TextRun;

namespace {

void paintScaledGlyph(Image& screen, const TextRun& run, const PlacedGlyph& placed, const Box& clip)
{
    const Box box = scaledGlyphBox(run, placed, clip);
    const Glyph& glyph = *placed.glyph;
    const auto fontPixel = [&](std::int64_t pixel) {
        return static_cast<int>(floorDiv<std::int64_t>(pixel * ZnFixed::one, run.scale));
    };
    for (int y = box.y0; y < box.y1; y++) {
        const std::uint32_t* from =
            glyph.pixels.data() +
            static_cast<std::ptrdiff_t>(fontPixel(std::int64_t(y) - run.y) - placed.y) * glyph.stride;
        std::uint32_t* to = screen.row(y);
        for (int x = box.x0; x < box.x1; x++)
            layPixels({to + x, 0, from + fontPixel(std::int64_t(x) - run.x) - placed.x, 0, 1, 1});
    }
}

} // namespace

void paintText(Image& screen, const DrawCommand& command, std::span<const PlacedGlyph> glyphs,
               const Box& clip)
{
    const TextRun run = textRunOf(command);
    for (const PlacedGlyph& placed : glyphs) {
        if (run.isScaled()) {
            paintScaledGlyph(screen, run, placed, clip);
            continue;
        }
        const Glyph& glyph = *placed.glyph;
        const Box whole{placed.x, placed.y, placed.x + glyph.width, placed.y + glyph.height};
        const Box box = intersection(whole, {clip.x0, clip.y0, std::min(clip.x1, placed.clipRight), clip.y1});
        if (box.isEmpty())
            continue;
        const std::uint32_t* from =
            glyph.pixels.data() + static_cast<std::ptrdiff_t>(box.y0 - whole.y0) * glyph.stride;
        std::uint32_t* to = screen.row(box.y0) + box.x0;
        // Blends whole rows of the glyph including the padding, which is transparent. Screen rows are padded
        // too, so this stays in bounds.
        if (box.width() == glyph.width)
            layPixels({to, screen.pitch, from, glyph.stride, glyph.stride, box.height()});
        else
            layPixels(
                {to, screen.pitch, from + (box.x0 - whole.x0), glyph.stride, box.width(), box.height()});
    }
}

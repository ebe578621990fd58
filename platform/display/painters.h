#pragma once

#include "platform/display/display_list.h"
#include "platform/media/box.h"
#include "platform/media/image.h"
#include "platform/media/text_layout.h"

#include <span>
#include <vector>

/// Storage reused by all stretched blits.
struct StretchBuffers {
    std::vector<std::int32_t> columns;
    std::vector<std::uint32_t> row;
};

// Each function paints the part of a command inside clip, which is inside the command's paintedBox and the
// screen.

void paintBlit(Image& screen, const DrawCommand& command, const Box& clip, StretchBuffers& buffers);
void paintFill(Image& screen, const DrawCommand& command, const Box& clip);
void paintOutline(Image& screen, const DrawCommand& command, const Box& clip);
void paintLine(Image& screen, const DrawCommand& command, const Box& clip);
/// Paints a text. glyphs is the result of layoutText for the command.
void paintText(Image& screen, const DrawCommand& command, std::span<const tgx::PlacedGlyph> glyphs,
               const Box& clip);

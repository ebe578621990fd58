#pragma once

#include "platform/display/display_list.h"
#include "platform/media/box.h"
#include "platform/media/text_layout.h"

/// The source size of a blit, and whether it is stretched.
struct BlitSource {
    std::int32_t w, h; // size of the source rectangle; 0 if there is nothing to draw
    bool isStretched;
};
inline BlitSource sourceOf(const DrawCommand& blit)
{
    if (blit.w <= 0 || blit.h <= 0)
        return {0, 0, false};
    if (blit.sw == -1 && blit.sh == -1)
        return {blit.w, blit.h, false};
    if (blit.sw <= 0 || blit.sh <= 0)
        return {0, 0, false};
    return {blit.sw, blit.sh, blit.sw != blit.w || blit.sh != blit.h};
}

/// Returns the box of screen pixels inside clip that a Blit, BlitRow, FillRect, Rectangle or Line may paint.
/// Empty for all other commands; for a text, use layoutText.
Box paintedBox(const DrawCommand& command, const Box& clip);

/// Returns the arguments of a TextOut as a TextRun.
inline tgx::TextRun textRunOf(const DrawCommand& text)
{
    return {text.font, text.x, text.y, text.scale, text.mode == 1, (text.flags & 1) != 0};
}

/// Returns whether the command hides everything under its paintedBox.
bool coversAll(const DrawCommand& command);

constexpr bool paints(DrawOp op)
{
    return op <= DrawOp::TextOut;
}

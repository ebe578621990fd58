#pragma once

#include "platform/display/display_list.h"
#include "platform/media/box.h"
#include "platform/media/text_layout.h"

/// A blit with its sizes sorted out: an unstretched one has the source's size.
struct BlitSource {
    std::int32_t w, h; // of the source rectangle; 0 when nothing is to be drawn
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

/// Screen pixels that a Blit, BlitRow, FillRect, Rectangle or Line may paint, inside clip; empty for all
/// others. For a text, layoutText answers that.
Box paintedBox(const DrawCommand& command, const Box& clip);

/// The text of a TextOut.
inline tgx::TextRun textRunOf(const DrawCommand& text)
{
    return {text.font, text.x, text.y, text.scale, text.mode == 1, (text.flags & 1) != 0};
}

/// Whether the command hides all that lies under its paintedBox.
bool coversAll(const DrawCommand& command);

constexpr bool paints(DrawOp op)
{
    return op <= DrawOp::TextOut;
}

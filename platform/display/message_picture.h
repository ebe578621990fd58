#pragma once

#include "platform/export.h"
#include "platform/media/image.h"

#include <string_view>

/// Draws a message over a dimmed copy of the screen, for a system that cannot show a message box: a panel in
/// the middle, with the wrapped text in the built-in font and a last line that explains how to continue. text
/// is in code page 1252. Lines that do not fit on the screen are omitted.
TGX_PLATFORM_API ImageRef messagePicture(const Image& screen, std::string_view text);

#pragma once

#include "platform/export.h"
#include "platform/media/image.h"

#include <string_view>

/// A message over a dimmed copy of the screen, for a system that can show no box: a panel in the middle, with
/// the text in the built-in font, wrapped, and a last line that says how to go on. text in code page 1252;
/// what does not fit the screen is left out below.
TGX_PLATFORM_API ImageRef messagePicture(const Image& screen, std::string_view text);

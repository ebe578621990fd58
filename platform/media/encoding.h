#pragma once

#include "platform/export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// Returns the code page 1252 character for a Unicode character, or nothing if the code page does not have
/// it.
TGX_PLATFORM_API std::optional<char> to1252(std::uint32_t character);
/// Converts text from code page 1252 to UTF-8. Bytes that have no character become U+FFFD.
TGX_PLATFORM_API std::string utf8From1252(std::string_view text);
/// Removes the first character from text, which is UTF-8, and returns it. A broken sequence counts as one
/// U+FFFD. Returns 0 for an empty text.
TGX_PLATFORM_API std::uint32_t takeUtf8(std::string_view& text);

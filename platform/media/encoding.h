#pragma once

#include "platform/export.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The character of code page 1252 for a Unicode character; nothing for one that it does not have.
TGX_PLATFORM_API std::optional<char> to1252(std::uint32_t character);
/// Bytes that stand for no character become U+FFFD.
TGX_PLATFORM_API std::string utf8From1252(std::string_view text);
/// Takes the first character off text, which is UTF-8. A broken sequence is one character U+FFFD; 0 for an
/// empty text.
TGX_PLATFORM_API std::uint32_t takeUtf8(std::string_view& text);

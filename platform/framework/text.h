#pragma once

#include "platform/export.h"

#include <cstdarg>
#include <string>
#include <string_view>

namespace tgx {

/// Converts a letter A to Z to lower case. Leaves other characters unchanged.
constexpr char lowercased(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}
/// Returns the text with its letters A to Z in lower case, as ids and names of files are compared.
TGX_PLATFORM_API std::string lowercased(std::string_view text);
/// Returns \xNN with two digits in upper case.
TGX_PLATFORM_API std::string hexEscape(char byte);
/// Returns \u00nn with two digits in lower case.
TGX_PLATFORM_API std::string unicodeEscape(char byte);
/// Returns the text that printf writes; empty for an invalid format.
TGX_PLATFORM_API std::string formatted(const char* format, std::va_list arguments)
    __attribute__((format(printf, 1, 0)));

} // namespace tgx

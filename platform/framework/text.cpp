#include "platform/framework/text.h"

#include <cstdio>

namespace tgx {

namespace {

std::string escape(const char* start, const char* digits, char byte)
{
    const auto value = static_cast<unsigned char>(byte);
    return start + std::string{digits[value >> 4], digits[value & 15]};
}

} // namespace

std::string lowercased(std::string_view text)
{
    std::string result(text);
    for (char& c : result)
        c = lowercased(c);
    return result;
}

std::string hexEscape(char byte)
{
    return escape("\\x", "0123456789ABCDEF", byte);
}

std::string unicodeEscape(char byte)
{
    return escape("\\u00", "0123456789abcdef", byte);
}

std::string formatted(const char* format, std::va_list arguments)
{
    std::va_list measured;
    va_copy(measured, arguments);
    const int length = std::vsnprintf(nullptr, 0, format, measured);
    va_end(measured);

    std::string text(length > 0 ? static_cast<std::size_t>(length) : 0, '\0');
    if (length > 0)
        std::vsnprintf(text.data(), text.size() + 1, format, arguments);
    return text;
}

} // namespace tgx

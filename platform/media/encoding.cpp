#include "platform/media/encoding.h"

#include "platform/media/code_page.h"

namespace {

constexpr std::uint32_t replacement = 0xFFFD;

} // namespace

std::optional<char> to1252(std::uint32_t character)
{
    if (character == 0)
        return std::nullopt;
    for (unsigned byte = 1; byte < 256; ++byte) {
        if (unicodeOf(static_cast<unsigned char>(byte)) == character)
            return static_cast<char>(byte);
    }
    return std::nullopt;
}

std::string utf8From1252(std::string_view text)
{
    std::string result;
    for (char c : text) {
        const std::uint32_t known = unicodeOf(static_cast<unsigned char>(c));
        const std::uint32_t character = known ? known : replacement;
        if (character < 0x80) {
            result += static_cast<char>(character);
        } else if (character < 0x800) {
            result += static_cast<char>(0xC0 | character >> 6);
            result += static_cast<char>(0x80 | (character & 0x3F));
        } else {
            result += static_cast<char>(0xE0 | character >> 12);
            result += static_cast<char>(0x80 | (character >> 6 & 0x3F));
            result += static_cast<char>(0x80 | (character & 0x3F));
        }
    }
    return result;
}

std::uint32_t takeUtf8(std::string_view& text)
{
    if (text.empty())
        return 0;
    const auto lead = static_cast<unsigned char>(text.front());
    text.remove_prefix(1);
    if (lead < 0x80)
        return lead;
    const int following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : lead >= 0xC0 ? 1 : 0;
    std::uint32_t character = lead & (0x3Fu >> following);
    for (int i = 0; i < following; ++i) {
        if (text.empty() || (text.front() & 0xC0) != 0x80)
            return replacement;
        character = character << 6 | (static_cast<unsigned char>(text.front()) & 0x3Fu);
        text.remove_prefix(1);
    }
    return following ? character : replacement;
}

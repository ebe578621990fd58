#include "platform/display/display_list.h"

namespace {

std::uint64_t mixed(std::uint64_t value)
{
    value *= 0x9E3779B97F4A7C15u;
    return value ^ (value >> 29);
}

// Hashes eight bytes per step, because texts are hashed each time they are recorded.
std::uint64_t hashOf(std::string_view text)
{
    std::uint64_t hash = text.size();
    std::size_t at = 0;
    for (; at + 8 <= text.size(); at += 8) {
        std::uint64_t piece;
        std::memcpy(&piece, text.data() + at, 8);
        hash = mixed(hash ^ piece) + piece;
    }
    std::uint64_t rest = 0;
    for (std::size_t i = at; i < text.size(); i++)
        rest = rest << 8 | static_cast<unsigned char>(text[i]);
    return mixed(mixed(hash ^ rest) + rest);
}

} // namespace

void DisplayList::setText(DrawCommand& command, std::string_view text)
{
    command.textOffset = static_cast<std::uint32_t>(characters.size());
    command.textLength = static_cast<std::uint32_t>(text.size());
    command.textHash = hashOf(text);
    characters.insert(characters.end(), text.begin(), text.end());
}

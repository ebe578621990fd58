#include "platform/display/message_text.h"

#include "platform/framework/text.h"

#include <algorithm>
#include <cstdio>

std::string oneLine(std::string_view message)
{
    std::string line;
    for (char c : message) {
        if (c == '\n') {
            line += "\\n";
        } else if (c == '\t') {
            line += "\\t";
        } else if (c >= 0x20 && c <= 0x7E) {
            line += c;
        } else {
            line += tgx::unicodeEscape(c);
        }
    }
    return line;
}

void printMessage(std::string_view message)
{
    std::fprintf(stderr, "message: %s\n", oneLine(message).c_str());
}

void printNote(std::string_view note)
{
    std::fprintf(stderr, "note: %s\n", oneLine(note).c_str());
}

std::string boxText(const std::vector<std::string>& messages)
{
    constexpr std::size_t maxListed = 20;
    constexpr std::size_t maxCharacters = 200; // of each message
    std::string text;
    const std::size_t listed = std::min(messages.size(), maxListed);
    for (std::size_t i = 0; i < listed; ++i)
        text += (i ? "\n" : "") + messages[i].substr(0, maxCharacters) +
                (messages[i].size() > maxCharacters ? "..." : "");
    if (messages.size() > listed)
        text += "\nand " + std::to_string(messages.size() - listed) + " more";
    return text;
}

#include "platform/media/bmpfont.h"

#include "platform/framework/cstring.h"

#include <charconv>

FontStyle parseFontStyle(std::string_view words)
{
    FontStyle style;
    while (!words.empty()) {
        const std::size_t end = std::min(words.find_first_of(" \t,"), words.size());
        const std::string_view word = words.substr(0, end);
        words.remove_prefix(std::min(end + 1, words.size()));
        if (CString::equalNoCase(word, "bold"))
            style.bold = true;
        else if (CString::equalNoCase(word, "italic"))
            style.italic = true;
        else if (CString::equalNoCase(word, "shadow"))
            style.shadow = true;
        else if (word.size() == 7 && word[0] == '#') {
            std::uint32_t colour = 0;
            const auto [stop, error] = std::from_chars(word.data() + 1, word.data() + 7, colour, 16);
            if (error == std::errc() && stop == word.data() + 7)
                style.colour = colour;
        }
    }
    return style;
}

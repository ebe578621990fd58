#pragma once

#include "platform/framework/cfile.h"
#include "tgx/export.h"
#include "tgx/script/token.h"

#include <cstring>
#include <string_view>

namespace tgx {

/// First bytes of tokens that are not keywords.
constexpr unsigned char numberToken = 3;    // followed by the low and the high byte
constexpr unsigned char stringToken = 4;    // followed by the characters and a 0
constexpr unsigned char endOfLineToken = 7; // ends a line; not part of a token

/// Reads the line at the stream's position and moves to the next one. Returns 1, or 0 at the end of the
/// stream; an incomplete last line is dropped. All maxTokens entries are reset first. Stores in count the
/// number of tokens of the line, including those for which there was no entry.
TGX_API int readScriptLine(CFile* stream, TOKEN_INFO* tokens, int maxTokens, int* count);

/// Splits the line at pos into tokens and passes them to sink in order: sink.number(value),
/// sink.string(text), sink.keyword(id). The text is followed by a 0 in the stream. Returns the byte after the
/// line, or null if the stream ends inside it.
template<class Sink>
const char* scanLine(const char* pos, const char* end, Sink& sink)
{
    while (pos != end) {
        const auto first = static_cast<unsigned char>(*pos++);
        if (first == endOfLineToken)
            return pos;
        if (first == numberToken) {
            if (end - pos < 2)
                return nullptr;
            const auto low = static_cast<unsigned char>(pos[0]);
            const auto high = static_cast<unsigned char>(pos[1]);
            sink.number(static_cast<short>(high << 8 | low));
            pos += 2;
        } else if (first == stringToken) {
            const void* zero = std::memchr(pos, 0, static_cast<std::size_t>(end - pos));
            if (!zero)
                return nullptr;
            const auto* textEnd = static_cast<const char*>(zero);
            sink.string(std::string_view(pos, static_cast<std::size_t>(textEnd - pos)));
            pos = textEnd + 1;
        } else {
            sink.keyword(first);
        }
    }
    return nullptr;
}

} // namespace tgx

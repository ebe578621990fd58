#include "tgx/script/reader.h"

#include <algorithm>

namespace tgx {

namespace {

/// Stores tokens in the available entries and counts all of them.
struct TokenWriter {
    TOKEN_INFO* tokens;
    int maxTokens;
    int count = 0;

    void number(short value)
    {
        if (TOKEN_INFO* token = next(numberToken))
            token->value = value;
    }
    void string(std::string_view text)
    {
        if (TOKEN_INFO* token = next(stringToken))
            token->text.assign(text); // reuses the string's storage
    }
    void keyword(unsigned char id) { next(id); }

private:
    TOKEN_INFO* next(unsigned char id)
    {
        TOKEN_INFO* token = count < maxTokens ? tokens + count : nullptr;
        ++count;
        if (token)
            token->id = id;
        return token;
    }
};

} // namespace

int readScriptLine(CFile* stream, TOKEN_INFO* tokens, int maxTokens, int* count)
{
    // Most entries are still reset, and testing them is cheaper than writing.
    for (int i = 0; i < maxTokens; ++i) {
        TOKEN_INFO& token = tokens[i];
        if (token.id == 0 && token.value == 0 && token.text.IsEmpty())
            continue;
        token.id = 0;
        token.value = 0;
        token.text.Empty();
    }

    const std::string_view bytes = stream->bytes();
    const std::size_t start = std::min<std::size_t>(stream->GetPosition(), bytes.size());
    TokenWriter writer{tokens, maxTokens};
    const char* next = scanLine(bytes.data() + start, bytes.data() + bytes.size(), writer);
    *count = writer.count;
    stream->Seek(next ? next - bytes.data() : static_cast<long>(bytes.size()));
    return next != nullptr;
}

} // namespace tgx

#include "tgx/script/reader.h"

#include <gtest/gtest.h>

#include <string>

using namespace tgx;

using namespace std::string_literals;

namespace {

/// Reads one line and returns its tokens, such as "113 'PANEL' 10", keywords by id; "end" at the end of the
/// stream.
std::string readTokens(CFile& stream)
{
    TOKEN_INFO tokens[maxLineTokens];
    int count = -1;
    if (!readScriptLine(&stream, tokens, maxLineTokens, &count))
        return "end";
    std::string out;
    for (int i = 0; i < count; ++i) {
        const TOKEN_INFO& token = tokens[i];
        out += i ? " " : "";
        out += token.id == 4 ? std::string("'") + token.text.str() + "'"
                             : std::to_string(token.id == 3 ? token.value : token.id);
    }
    return out;
}

void attach(CMemFile& file, const std::string& bytes)
{
    file.Attach(reinterpret_cast<const unsigned char*>(bytes.data()), static_cast<unsigned>(bytes.size()));
}

TEST(ScriptReader, SplitsLinesIntoTokens)
{
    const struct {
        const char* name;
        std::string bytes, first, second;
    } rows[] = {
        {"a window", "\x71\4PANEL\0\3\x0A\0\3\xFE\xFF\3\x2C\1\3\xC8\0\7"s, "113 'PANEL' 10 -2 300 200",
         "end"},
        {"numbers of bytes that begin tokens", "\3\7\7\3\3\4\3\0\3\3\4\0\7\x0F\7"s, "1799 1027 768 4", "15"},
        {"the ends of the number range", "\3\xFF\x7F\3\0\x80\3\xFF\xFF\7"s, "32767 -32768 -1", "end"},
        {"texts of bytes that begin tokens", "\4\3\4\7\0\7\x0E\7"s, "'\3\4\7'", "14"},
        {"an empty text is a token", "\x69\4\0\4\0\7"s, "105 '' ''", "end"},
        {"a single keyword", "\x0E\7\x0F\7"s, "14", "15"},
        {"a single end of line is a line", "\7\x0F\7"s, "", "15"},
        {"a keyword byte of 0", "\0\x0E\7"s, "0 14", "end"},
        {"nothing", "", "end", "end"},
        {"a line without its end", "\x0E\7\x71\4P\0"s, "14", "end"},
        {"a number without its high byte", "\x0E\7\x71\3\7"s, "14", "end"},
        {"a text without its 0", "\x0E\7\x71\4P\7\x0F\7"s, "14", "end"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        CMemFile stream;
        attach(stream, row.bytes);
        EXPECT_EQ(readTokens(stream), row.first);
        EXPECT_EQ(readTokens(stream), row.second);
    }
}

TEST(ScriptReader, LinesOfAnyLengthAreReadCompletely)
{
    for (int length = 85; length < 310; ++length) {
        SCOPED_TRACE(length);
        const std::string text(static_cast<std::size_t>(length), 'x');
        const std::string bytes = "\x69\4"s + text + "\0\3\7\7\7"s;
        CMemFile stream;
        const std::string both = bytes + "\x0F\7";
        attach(stream, both);
        EXPECT_EQ(readTokens(stream), "105 '" + text + "' 1799");
        EXPECT_EQ(stream.GetPosition(), bytes.size());
        EXPECT_EQ(readTokens(stream), "15");
    }
}

TEST(ScriptReader, EntriesAfterTheLineAreEmpty)
{
    TOKEN_INFO tokens[maxLineTokens];
    for (TOKEN_INFO& token : tokens)
        token = {9, "left over from elsewhere", 9};
    CMemFile stream;
    const std::string bytes = "\x0E\4long enough to need storage of its own\0\3\1\0\7\x0F\7"s;
    attach(stream, bytes);
    int count = 0;
    for (int used : {3, 1}) {
        ASSERT_EQ(readScriptLine(&stream, tokens, maxLineTokens, &count), 1);
        EXPECT_EQ(count, used);
        for (int i = used; i < maxLineTokens; ++i) {
            EXPECT_EQ(tokens[i].id, 0);
            EXPECT_EQ(tokens[i].value, 0);
            EXPECT_TRUE(tokens[i].text.IsEmpty());
        }
    }
}

TEST(ScriptReader, TokensBeyondTheLimitAreCountedButNotStored)
{
    TOKEN_INFO tokens[4];
    tokens[3] = {77, "untouched", 7};
    CMemFile stream;
    const std::string bytes = "\x0E\4a\0\3\1\0\4b\0\3\2\0\x0F\7\x0E\7"s;
    attach(stream, bytes);
    int count = 0;
    EXPECT_EQ(readScriptLine(&stream, tokens, 3, &count), 1);
    EXPECT_EQ(count, 6);
    EXPECT_EQ(tokens[2].value, 1);
    EXPECT_EQ(tokens[3].id, 77);
    EXPECT_EQ(tokens[3].text, "untouched");
    EXPECT_EQ(readTokens(stream), "14");
}

} // namespace

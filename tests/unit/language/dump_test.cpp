#include "language/text/print.h"
#include "tests/unit/language/sources.h"

#include <gtest/gtest.h>

#include <random>

using namespace std::string_literals;
using tgx::script_text::print;

namespace {

TEST(Dump, PrintsTextThatBuildsToTheSameBytes)
{
    const struct {
        const char* name;
        std::string bytes, text;
    } rows[] = {
        {"a screen with a window in it",
         "\x5A\4MENU\0\3\0\0\3\0\0\3\x80\2\3\xE0\1\4menu.bmp\0\7\x0E\7"
         "\x71\4PANEL\0\3\x0A\0\3\xFE\xFF\3\x2C\1\3\xC8\0\7\x0F\7"s,
         "SCREEN \"MENU\" 0 0 640 480 \"menu.bmp\"\nBEGIN\n    WINDOW \"PANEL\" 10 -2 300 200\nEND\n"},
        {"argument words", "\x33\3\x64\0\x59\3\x32\0\7"s, "COLUMNS 100 RIGHT 50\n"},
        {"literal backslashes, and escaped ones", "\x69\4uig\\a.bmp\\x41\\\"\\\\\\\x81\0\7"s,
         R"(TEXT "uig\a.bmp\\x41\\\"\\\\\\\x81")"
         "\n"},
        {"characters, and bytes that are undefined or invisible",
         "\x69\4\xE9\x80\\\xE9\7\x81\xA0\xAD\x7F\n\0\7"s, "TEXT \"é€\\é\\x07\\x81\\xA0\\xAD\\x7F\\x0A\"\n"},
        {"lines that the toolkit refuses or misreads",
         "\7\x41\x71\0\7\4a\0\3\1\0\7\3\5\0\7\x71\7\x3D\4x\0\7\x49\7\x0E\x0E\7\x0F\7"s,
         "EMPTY\n@65 WINDOW @0\n@ \"a\" 1\n@ 5\n@ WINDOW\n@ FONT \"x\"\n@ LEFT\n@ BEGIN BEGIN\nEND\n"},
        {"an extra END", "\x0F\7\x0E\7\x0E\7"s, "END\nBEGIN\n    BEGIN\n"},
        {"an unfinished line", "\x0F\7\x71\4P"s, "END\n#! unfinished: 71 04 50\n"},
        {"nothing", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(print(row.bytes), row.text);
        EXPECT_EQ(build(parse(row.text)), row.bytes);
        EXPECT_EQ(headlines(parse(row.text)), "");
    }
}

TEST(Dump, EveryStreamSurvivesDumpAndBuild)
{
    std::mt19937 random(20240607);
    // Bytes with a meaning are frequent, the others random; half of the streams consist of complete lines.
    const std::string likely = "\3\4\7\0\\\"x41\x0E\x0F\x71\n\r#@\x81\x96"s;
    const auto anyByte = [&] {
        return random() % 3 ? likely[random() % likely.size()] : static_cast<char>(random() % 256);
    };
    const auto anyToken = [&]() -> std::string {
        switch (random() % 4) {
        case 0:
            return {'\3', anyByte(), anyByte()};
        case 1: {
            std::string text = "\4";
            for (auto length = random() % 8; length > 0; --length)
                if (const char c = anyByte())
                    text += c;
            return text + '\0';
        }
        default: {
            const char c = anyByte();
            return c == 3 || c == 4 || c == 7 ? "" : std::string(1, c);
        }
        }
    };
    for (int round = 0; round < 6000; ++round) {
        std::string bytes;
        if (round % 2)
            for (auto length = random() % 80; length > 0; --length)
                bytes += anyByte();
        else
            for (auto lines = random() % 6; lines > 0; --lines) {
                for (auto length = random() % 34; length > 0; --length)
                    bytes += anyToken();
                bytes += '\7';
            }
        const std::string text = print(bytes);
        const tgx::script_text::ParsedScript script = parse(text);
        ASSERT_EQ(headlines(script), "") << text;
        ASSERT_EQ(emit(script).bytes, bytes) << text;
    }
}

} // namespace

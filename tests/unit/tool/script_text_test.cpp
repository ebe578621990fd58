#include "tools/tgx/script_text.h"

#include <gtest/gtest.h>

#include <random>

using namespace std::string_literals;
using script_text::assemble;

namespace {

/// What the tool would report, and the bytes when there was no error.
std::string reports(std::string_view text)
{
    std::string out;
    for (const auto& each : assemble(text).diagnostics)
        out += script_text::describe("a.tgs", each) + "\n";
    return out;
}

const std::string panel = "\x71\4PANEL\0\3\x0A\0\3\xFE\xFF\3\x2C\1\3\xC8\0\7"s;

TEST(ScriptText, BuildsAndDumpsTheSameLines)
{
    const struct {
        const char* name;
        std::string text, bytes;
    } rows[] = {
        {"one window", "WINDOW \"PANEL\" 10 -2 300 200\n", panel},
        {"a screen with a window in it",
         "SCREEN \"MENU\" 0 0 640 480 \"menu.bmp\"\nBEGIN\n    WINDOW \"PANEL\" 10 -2 300 200\nEND\n",
         "\x5A\4MENU\0\3\0\0\3\0\0\3\x80\2\3\xE0\1\4menu.bmp\0\7\x0E\7"s + panel + "\x0F\7"},
        {"argument words", "COLUMNS 100 RIGHT 50\n", "\x33\3\x64\0\x59\3\x32\0\7"s},
        {"a backslash as it stands, and where it must be escaped",
         R"(TEXT "uig\a.bmp\\x41\\\"\\\\")"
         "\n",
         "\x69\4uig\\a.bmp\\x41\\\"\\\\\0\7"s},
        {"bytes without a character", "TEXT \"\\x07\\x80\\xFF\\x0A\"\n", "\x69\4\7\x80\xFF\n\0\7"s},
        {"an empty line, unknown ids, keywords anywhere", "EMPTY\n@65 WINDOW @0\n\"a\" 1\n5\n",
         "\7\x41\x71\0\7\4a\0\3\1\0\7\3\5\0\7"s},
        {"an END too many", "END\nBEGIN\n    BEGIN\n", "\x0F\7\x0E\7\x0E\7"s},
        {"an unfinished line", "END\n#! unfinished: 71 04 50\n", "\x0F\7\x71\4P"s},
        {"nothing", "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const script_text::Assembled built = assemble(row.text);
        EXPECT_FALSE(built.hasErrors()) << reports(row.text);
        EXPECT_EQ(built.bytes, row.bytes);
        EXPECT_EQ(script_text::print(row.bytes), row.text);
    }
}

TEST(ScriptText, BuildReadsWhatPeopleWrite)
{
    EXPECT_EQ(assemble("\xEF\xBB\xBF# a comment\r\n\r\n\tWINDOW\t\"PANEL\"0x0A -2 300 200# behind\r\n").bytes,
              panel);
    EXPECT_EQ(assemble("TEXT \"a # b\" # c").bytes, "\x69\4a # b\0\7"s);
    EXPECT_EQ(assemble("TEXT \"uig\\xmas\"").bytes, "\x69\4uig\\xmas\0\7"s) << "no two digits behind the x";
    EXPECT_EQ(assemble("BMPFRAME 0xFFFF").bytes, "\x27\3\xFF\xFF\7"s);
}

TEST(ScriptText, EveryStreamComesThroughDumpAndBuild)
{
    std::mt19937 random(20240607);
    // Bytes that mean something come often; the rest is anything.
    const std::string likely = "\3\4\7\0\\\"x41\x0E\x0F\x71\n\r#@"s;
    for (int round = 0; round < 3000; ++round) {
        std::string bytes;
        for (auto length = random() % 80; length > 0; --length)
            bytes += random() % 3 ? likely[random() % likely.size()] : static_cast<char>(random() % 256);
        const std::string text = script_text::print(bytes);
        const script_text::Assembled built = assemble(text);
        ASSERT_FALSE(built.hasErrors()) << text << reports(text);
        ASSERT_EQ(built.bytes, bytes) << text;
    }
}

TEST(ScriptText, TellsWhatIsWrongAndWhatWasExpected)
{
    const struct {
        const char* name;
        const char* text;
        const char* report;
    } rows[] = {
        {"an unknown keyword", "\n  LISTBOXX \"L\" 1 2 3 4",
         "a.tgs:2:3: error: unknown keyword LISTBOXX; did you mean LISTBOX?\n"},
        {"one in lower case", "window \"P\" 1 2 3 4",
         "a.tgs:1:1: error: unknown keyword window; did you mean WINDOW?\n"},
        {"one like no other", "FROBNICATE", "a.tgs:1:1: error: unknown keyword FROBNICATE\n"},
        {"no word at all", "WINDOW \"P\", 1",
         "a.tgs:1:11: error: expected a keyword, a \"string\" or a number, found ,\n"},
        {"a number too large", "BMPFRAME 32768",
         "a.tgs:1:10: error: the number 32768 does not fit; expected -32768 to 32767 or 0x0 to 0xFFFF\n"},
        {"no number", "BMPFRAME 1x", "a.tgs:1:10: error: expected a number such as -12 or 0x1F, found 1x\n"},
        {"an open string", "TEXT \"a\\\"",
         "a.tgs:1:6: error: this string has no end; expected \" before the end of the line\n"},
        {"a 0 in a string", "TEXT \"a\\x00\"",
         "a.tgs:1:8: error: a string cannot hold the character 0; it ends there\n"},
        {"an id that is none", "@7",
         "a.tgs:1:1: error: expected @ and a keyword's number, 0 to 255 but not 3, 4 or 7, found @7\n"},
        {"all of them", "FOO1\nBEGINN\nTEXT \"",
         "a.tgs:1:1: error: unknown keyword FOO1; did you mean FONT?\n"
         "a.tgs:2:1: error: unknown keyword BEGINN; did you mean BEGIN?\n"
         "a.tgs:3:6: error: this string has no end; expected \" before the end of the line\n"},
        {"a word that stands alone", "EMPTY 1",
         "a.tgs:1:1: error: EMPTY is a line without a token; it stands alone\n"},
        {"a line behind the last", "#! unfinished: 0F\nEND",
         "a.tgs:2:1: error: a line behind the unfinished one; that one comes last\n"},
        {"a mark without bytes", "#! unfinished: 0",
         "a.tgs:1:16: error: expected bytes as two hexadecimal digits each, such as 71 04\n"},
        {"a wrong count", "WINDOW \"P\" 1 2 3",
         "a.tgs:1:1: warning: WINDOW takes 5 arguments, this line has 4; expected: WINDOW \"name\" x y width "
         "height\n"},
        {"one of several counts", "POINTER",
         "a.tgs:1:1: warning: POINTER takes 1 or 2 arguments, this line has 0; expected: POINTER \"window\" "
         "\"script\"\n"},
        {"a wrong kind", "COLUMNS 1 LEFT \"x\"",
         "a.tgs:1:16: warning: expected a number or a word here: COLUMNS width|LEFT|CENTRE|RIGHT ...\n"},
        {"a kind behind the last of the form", "TABORDER \"A\" \"B\" 3",
         "a.tgs:1:18: warning: expected a string here: TABORDER \"window\" ...\n"},
        {"a word in front", "LEFT", "a.tgs:1:1: warning: no statement begins so; expected a keyword\n"},
        {"nothing wrong", "JUSTIFY CENTRE", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(reports(row.text), row.report);
    }
}

} // namespace

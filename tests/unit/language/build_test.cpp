#include "tests/unit/language/sources.h"

#include <gtest/gtest.h>

#include <span>

using namespace std::string_literals;
using tgx::script_text::ParsedScript;

namespace {

std::string messages(const ParsedScript& script)
{
    std::string out;
    for (const auto& each : script.diagnostics)
        out += describe(each);
    return out;
}

TEST(Build, CompilesText)
{
    const std::string panel = "\x71\4PANEL\0\3\x0A\0\3\xFE\xFF\3\x2C\1\3\xC8\0\7"s;
    const struct {
        const char* name;
        std::string text, bytes;
    } rows[] = {
        {"blanks, comments, line ends and a byte-order mark",
         "\xEF\xBB\xBF# a comment\r\n\r\n\tWINDOW\t\"PANEL\"0x0A -2 300 200# after\r\n", panel},
        {"a comment character in a string, and no line end", "TEXT \"a # b\" # c", "\x69\4a # b\0\7"s},
        {"a hexadecimal number", "BMPFRAME 0xFFFF", "\x27\3\xFF\xFF\7"s},
        {"no two digits after the x", "TEXT \"uig\\xmas\"", "\x69\4uig\\xmas\0\7"s},
        {"characters of code page 1252", "TEXT \"é €…ÿ\"", "\x69\4\xE9 \x80\x85\xFF\0\7"s},
        {"bytes without a character", "TEXT \"\\x81\\xFF\"", "\x69\4\x81\xFF\0\7"s},
        {"any bytes in a comment", "# caf\xE9 \xFF\nEND", "\x0F\7"},
        {"unchecked lines that the toolkit refuses", "@ WINDOW 1 LEFT\n@ \"a\"\n@65 7",
         "\x71\3\1\0\x49\7\4a\0\7\x41\3\7\0\7"s},
        {"names for numbers and strings", "DEFINE W 0x280\nDEFINE _t2 \"é\"\nDEFINE T _t2\nSCROLLBARINFO T W",
         "\x5B\4\xE9\0\3\x80\2\7"s},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(build(parse(row.text)), row.bytes);
    }
}

struct ReportRow {
    const char* name;
    const char* text;
    const char* report; // without the file's name at the start of each line
};

void compareReports(std::span<const ReportRow> rows)
{
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        std::string report;
        for (const auto& each : parse(row.text).diagnostics)
            report += headline(each).substr(std::string("a.tgs:").size()) + '\n';
        EXPECT_EQ(report, row.report);
    }
}

TEST(Build, ReportsTextsThatAreNoTokens)
{
    const ReportRow rows[] = {
        {"an unknown keyword", "\n  LISTBOXX \"L\" 1 2 3 4",
         "2:3: error: unknown keyword LISTBOXX; did you mean LISTBOX?\n"},
        {"a keyword in lower case", "window \"P\" 1 2 3 4",
         "1:1: error: unknown keyword window; did you mean WINDOW?\n"},
        {"an unknown keyword without a suggestion", "FROBNICATE", "1:1: error: unknown keyword FROBNICATE\n"},
        {"a comma after a number", "FONT 1, 2",
         "1:6: error: expected a number such as -12 or 0x1F, found 1,\n"},
        {"stray characters", "GOTO \"P\", “Q”",
         "1:9: error: expected a keyword, a \"string\" or a number, found ,\n"
         "1:11: error: expected a keyword, a \"string\" or a number, found “Q”\n"},
        {"a number too large", "BMPFRAME 32768",
         "1:10: error: the number 32768 does not fit; expected -32768 to 32767 or 0x0 to 0xFFFF\n"},
        {"an open string after a character of two bytes", "TITLES \"é\" \"a\\\"",
         "1:12: error: this string has no end; expected \" before the end of the line; \\\" is a quotation "
         "mark inside the string, and a backslash before its end is written \\\\\n"},
        {"a text in a script outside of the code page", "TEXT \"\xD0\xB6\xD0\xB6 a\xD0\xB6\"",
         "1:7: error: the character \xD0\xB6 (U+0436) and 2 others of this text have no byte in code page "
         "1252; use another character, or \\x and two digits\n"},
        {"UTF-16", "\xFF\xFE\x45", "1:1: error: the text is UTF-16; save it as UTF-8\n"},
        {"CR as line end", "BEGIN\rEND\r",
         "1:1: error: the lines end with CR only; save the text with LF or CR LF\n"},
        {"a no-break space", "FONT\xC2\xA0\x31\nFONT 1\xC2\xA0",
         "1:1: error: this word contains a no-break space (U+00A0); use a blank or remove it\n"
         "2:6: error: this word contains a no-break space (U+00A0); use a blank or remove it\n"},
        {"a byte-order mark in the middle",
         "BEGIN\n\xEF\xBB\xBF"
         "END",
         "2:1: error: this word contains a byte-order mark (U+FEFF); use a blank or remove it\n"},
        {"a word for a flag", "COMBOWRAP LEFT", "1:11: error: expected 0 or 1 here: COMBOWRAP flag\n"},
        {"a GOTO without a name", "GOTO",
         "1:1: error: GOTO needs a name; expected: GOTO \"subroutine\" [\"script\"]\n"},
        {"a 0 in a string", "TEXT \"a\\x00\"", "1:8: error: a string cannot hold the character 0\n"},
        {"a character outside of the code page", "TEXT \"aжb\"",
         "1:8: error: the character ж (U+0436) has no byte in code page 1252; use another character, or \\x "
         "and two digits\n"},
        {"text in another encoding, reported once per string", "TEXT \"caf\xE9 \xE9\"",
         "1:10: error: the byte 0xE9 is not UTF-8; save the text as UTF-8, or write \\xE9\n"},
        {"an overlong encoding of a quotation mark", "TEXT \"\xC0\xA2\"",
         "1:7: error: the byte 0xC0 is not UTF-8; save the text as UTF-8, or write \\xC0\n"},
        {"an invalid id", "@7",
         "1:1: error: expected @ and a keyword's number, 0 to 255 but not 3, 4 or 7, found @7\n"},
        {"a mark without a line", "@",
         "1:1: error: expected a line after the @, which builds it unchecked\n"},
        {"several errors", "FOO1\nBEGINN\nTEXT \"",
         "1:1: error: unknown keyword FOO1; did you mean FONT?\n"
         "2:1: error: unknown keyword BEGINN; did you mean BEGIN?\n"
         "3:6: error: this string has no end; expected \" before the end of the line\n"},
    };
    compareReports(rows);
}

TEST(Build, ReportsWhatAStatementExpects)
{
    const ReportRow rows[] = {
        {"an argument after EMPTY", "EMPTY 1",
         "1:1: error: EMPTY is a line without a token and takes no arguments\n"},
        {"a line after the unfinished one", "#! unfinished: 0F\nEND",
         "2:1: error: a line after the unfinished one, which must be the last\n"},
        {"a mark without bytes", "#! unfinished: 0",
         "1:16: error: expected bytes as two hexadecimal digits each, such as 71 04\n"},
        {"a wrong number of arguments", "WINDOW \"P\" 1 2 3",
         "1:1: error: WINDOW takes 5 arguments, this line has 4; expected: WINDOW \"name\" x y width "
         "height\n"},
        {"a keyword with several allowed numbers of arguments", "TEXTWND",
         "1:1: error: TEXTWND takes 6, 8 or 9 arguments, this line has 0; expected: TEXTWND \"name\" x y "
         "width height \"text\" [textX textY [\"bitmap\"]]\n"},
        {"too many repeated arguments",
         "LISTFIXEDROWS 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0 1 2 3 4 5 6 7 8 9 0",
         "1:73: error: a line has at most 29 arguments, this one has 30\n"},
        {"wrong kinds", "COLUMNS 1 LEFT \"x\" FONT",
         "1:16: error: expected a number or a word here: COLUMNS [width|LEFT|CENTRE|RIGHT ...]\n"
         "1:20: error: expected a number or a word here: COLUMNS [width|LEFT|CENTRE|RIGHT ...]\n"},
        {"a wrong kind in a repeated argument", "TABORDER \"A\" \"B\" 3",
         "1:18: error: expected a string here: TABORDER \"window\" ...\n"},
        {"an argument word at the start", "LEFT",
         "1:1: error: no statement begins like this; expected a keyword\n"},
        {"a string without quotes", "BMPFILE ship",
         "1:9: error: unknown name ship; a string needs quotes; expected: BMPFILE \"bitmap\"\n"},
    };
    compareReports(rows);
}

TEST(Build, ReportsDefinitionsAndIncludes)
{
    const ReportRow rows[] = {
        {"a misspelt name", "DEFINE WIDTH 3\nBMPOFFSET WIDHT WIDTH",
         "2:11: error: unknown name WIDHT; did you mean WIDTH? expected: BMPOFFSET x y\n"},
        {"a name used before its DEFINE", "FONT F\nDEFINE F 1",
         "1:6: error: unknown name F; expected: FONT font\n2:8: warning: nothing uses F\n"},
        {"a name of the wrong kind", "DEFINE F \"1\"\nFONT F",
         "2:6: error: expected a number here: FONT font\n"},
        {"a name in place of a keyword", "DEFINE F 1\nF 2\nFONT F",
         "2:1: error: F is a DEFINE, which is only valid as an argument; expected a keyword\n"},
        {"a keyword in place of a name", "DEFINE TEXT 1\nDEFINE EMPTY 1",
         "1:8: error: TEXT is a keyword and cannot be a name\n2:8: error: EMPTY is a keyword and cannot be a "
         "name\n"},
        {"two definitions", "DEFINE A 1\nDEFINE A 1\nFONT A",
         "2:8: error: A is already defined at a.tgs:1\n"},
        {"an invalid name", "DEFINE é 1\nDEFINE \"A\" 1",
         "1:8: error: expected a name of letters, digits and _; expected: DEFINE NAME value\n"
         "2:8: error: expected a name of letters, digits and _; expected: DEFINE NAME value\n"},
        {"an invalid value", "DEFINE A LEFT\nDEFINE B\nDEFINE C 1 2",
         "1:10: error: the value is a number or a string; expected: DEFINE NAME value\n"
         "2:1: error: expected: DEFINE NAME value\n3:12: error: expected: DEFINE NAME value\n"},
        {"unused names", "DEFINE B 1\nDEFINE A 1\nDEFINE C 1\nFONT C",
         "1:8: warning: nothing uses B\n2:8: warning: nothing uses A\n"},
        {"an INCLUDE without a file", "INCLUDE\nINCLUDE 3\nINCLUDE \"b\" 1",
         "1:1: error: expected: INCLUDE \"file\"\n2:9: error: expected: INCLUDE \"file\"\n3:9: error: "
         "expected: INCLUDE \"file\"\n"},
        {"an INCLUDE after another word", "BEGIN INCLUDE \"b\"",
         "1:7: error: INCLUDE must be the first word of a line\n"},
    };
    compareReports(rows);
}

TEST(Build, ShowsTheLineWithAMark)
{
    EXPECT_EQ(
        messages(parse("\n\tTITLES \"ä\" WINDOWS \x1B[2J # c")),
        "a.tgs:2:13: error: unknown name WINDOWS; a string needs quotes; expected: TITLES [\"text\" ...]\n"
        " 2 | \tTITLES \"ä\" WINDOWS ?[2J # c\n"
        "   | \t           ^~~~~~~\n"
        "a.tgs:2:21: error: expected a keyword, a \"string\" or a number, found ?[2J\n"
        " 2 | \tTITLES \"ä\" WINDOWS ?[2J # c\n"
        "   | \t                   ^~~~\n");
    EXPECT_EQ(messages(parse("ITEM \"" + std::string(100, 'a') + "\" X \"" + std::string(100, 'b') + "\"")),
              "a.tgs:1:109: error: unknown name X; a string needs quotes; expected: ITEM [\"text\" ...]\n"
              " 1 | ..." +
                  std::string(58, 'a') + "\" X \"" + std::string(47, 'b') + "...\n   |    " +
                  std::string(60, ' ') + "^\n")
        << "the part around the place";
    const ParsedScript script = parse("LEFT");
    EXPECT_EQ(
        describe(script.diagnostics.at(0), tgx::script_text::Colour::Yes),
        "\x1B[1ma.tgs:1:1: \x1B[0m\x1B[1;31merror: \x1B[0mno statement begins like this; expected a keyword\n"
        " 1 | LEFT\n   | \x1B[1;32m^~~~\x1B[0m\n");
}

TEST(Build, IncludesFilesRelativeToTheIncludingFile)
{
    const Sources sources{{
        {"ui/menu.tgs", "INCLUDE \"lib\\sizes.tgs\"\nINCLUDE \"lib/frame.tgs\"\nFONT TITLE\nINCLUDE "
                        "\"lib/frame.tgs\"\nINCLUDE \"../top.tgs\""},
        {"ui/lib/sizes.tgs", "DEFINE TITLE 2\nDEFINE NEVER 1\n"},
        {"ui/lib/frame.tgs", "# used twice\nINCLUDE \"sizes.tgs\"\nBMPFRAME TITLE\n"},
        {"top.tgs", "\nEND"},
    }};
    const ParsedScript script = sources.parse("ui/menu.tgs");
    EXPECT_EQ(headlines(script), "");
    const tgx::script_text::Emitted emitted = emit(script);
    EXPECT_EQ(emitted.bytes, "\x27\3\2\0\7\x3D\3\2\0\7\x27\3\2\0\7\x0F\7"s);
    EXPECT_EQ(sideMap(script, emitted),
              "0 3 ui/lib/frame.tgs\n5 3 ui/menu.tgs\n10 3 ui/lib/frame.tgs\n15 2 top.tgs\n");
    EXPECT_EQ(tgx::script_text::dependencies("out dir/a.tgx", "ui/menu.tgs", script),
              "out\\ dir/a.tgx: ui/menu.tgs \\\n  ui/lib/sizes.tgs \\\n  ui/lib/frame.tgs \\\n  top.tgs\n");
    ASSERT_EQ(script.lines.size(), 4u);
    EXPECT_EQ(script.lines[2].in->line, 4);
    EXPECT_EQ(script.lines[2].placeOf(1).at.column, 10) << "where the name is used";
}

TEST(Build, ListsTheIncludesThatLedToAnError)
{
    const struct {
        const char* name;
        std::map<std::string, std::string> files;
        const char* report;
    } rows[] = {
        {"an error two files deep, reported once for two paths to it",
         {{"m", "INCLUDE \"d/a\"\nINCLUDE \"d/a\""}, {"d/a", "\n  INCLUDE \"b\""}, {"d/b", "FOND 1"}},
         "d/b:1:1: error: unknown keyword FOND; did you mean FONT?\n 1 | FOND 1\n   | ^~~~\n"
         "d/a:2:11: note: included from here\nm:1:9: note: included from here\n"},
        {"a missing file, without errors for names that it may define",
         {{"m", "DEFINE UNUSED 1\nINCLUDE \"gone\"\nFONT THERE"}},
         "m:2:9: error: cannot read gone: no such file\n 2 | INCLUDE \"gone\"\n   |         ^~~~~~\n"},
        {"files that include each other",
         {{"m", "INCLUDE \"a\""}, {"a", "INCLUDE \"./m\""}},
         "a:1:9: error: files include each other: m -> a -> m\n 1 | INCLUDE \"./m\"\n   |         ^~~~~\n"
         "m:1:9: note: included from here\n"},
        {"a different value in another file",
         {{"m", "DEFINE A 1\nFONT A\nINCLUDE \"a\""}, {"a", "DEFINE A 2"}},
         "a:1:8: error: A is already defined at m:1\n 1 | DEFINE A 2\n   |        ^\nm:3:9: note: included "
         "from here\n"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        EXPECT_EQ(messages(Sources{row.files}.parse("m")), row.report);
    }
}

TEST(Build, LimitsIncludes)
{
    Sources sources;
    for (int i = 0; i < 40; ++i) // 2 to the 40th lines without a limit
        sources.files["f" + std::to_string(i)] =
            "INCLUDE \"f" + std::to_string(i + 1) + "\"\nINCLUDE \"f" + std::to_string(i + 1) + "\"\n";
    sources.files["f40"] = "#" + std::string(100'000, '-');
    EXPECT_NE(headlines(sources.parse("f0")).find("the script and its included files are larger than 4 MiB"),
              std::string::npos);

    for (int i = 0; i < 100; ++i)
        sources.files["d" + std::to_string(i)] = "INCLUDE \"d" + std::to_string(i + 1) + "\"";
    EXPECT_EQ(headlines(sources.parse("d0")), "d63:1:9: error: INCLUDE lines are nested more than 64 deep\n");
}

} // namespace

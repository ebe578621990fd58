#include "tools/tgx/reference.h"

#include "tgx/script/vocabulary.h"
#include "tools/tgx/meanings.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <set>

namespace {

TEST(Reference, TellsOfEveryStatementOnce)
{
    for (const Statement& row : vocabulary()) {
        const script_text::Meaning* meaning = script_text::meaningOf(row.id);
        EXPECT_TRUE(meaning && *meaning->text) << row.keyword << " has no line in tools/tgx/meanings.cpp";
    }
    std::set<int> told;
    for (const script_text::Meaning& row : script_text::meanings()) {
        EXPECT_TRUE(statementById(row.id)) << row.id << " is no statement: " << row.text;
        EXPECT_TRUE(told.insert(row.id).second) << row.id << " has a second line: " << row.text;
    }
}

TEST(Reference, DocumentsAreUpToDate)
{
    const struct {
        const char* file;
        std::string text;
    } rows[] = {
        {"docs/script-reference.md", script_text::referenceDocument()},
        {"editors/vim/syntax/tgs.vim", script_text::vimSyntax()},
        {"editors/textmate/tgs.tmLanguage.json", script_text::textMateGrammar()},
    };
    for (const auto& row : rows) {
        std::ifstream file(std::string(TGX_SOURCE_DIR "/") + row.file, std::ios::binary);
        const std::string kept{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
        // Not EXPECT_EQ: the whole documents would be printed.
        EXPECT_TRUE(kept == row.text) << row.file << " is out of date; write it anew with\n"
                                      << "    cmake --build build/release --target script_reference";
    }
}

} // namespace

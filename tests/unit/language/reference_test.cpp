#include "language/reference/reference.h"

#include "language/check/codes.h"
#include "language/reference/meanings.h"
#include "tests/unit/support/tgx_test.h"
#include "tgx/script/vocabulary.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <string>

using namespace tgx;

namespace {

TEST(Reference, DescribesEveryStatementOnce)
{
    for (const Statement& row : vocabulary()) {
        const tgx::script_text::Meaning* meaning = tgx::script_text::meaningOf(row.id);
        EXPECT_TRUE(meaning && *meaning->text)
            << row.keyword << " has no line in language/reference/meanings.cpp";
    }
    std::set<int> described;
    for (const tgx::script_text::Meaning& row : tgx::script_text::meanings()) {
        EXPECT_TRUE(statementById(row.id)) << row.id << " is not a statement: " << row.text;
        EXPECT_TRUE(described.insert(row.id).second) << row.id << " has a second line: " << row.text;
    }
}

bool hasWord(const std::string& text, const std::string& word)
{
    std::istringstream words(text);
    return std::find(std::istream_iterator<std::string>(words), {}, word) !=
           std::istream_iterator<std::string>();
}

TEST(Reference, ExamplesUseTheirStatement)
{
    for (const Statement& row : vocabulary()) {
        const tgx::script_text::Meaning* meaning = tgx::script_text::meaningOf(row.id);
        if (!meaning || !meaning->example) {
            EXPECT_FALSE(tgx::script_text::makesWindow(row))
                << row.keyword << " makes a window and has no example";
            continue;
        }
        const std::string name = meaning->example, folder = "examples/controls/";
        EXPECT_TRUE(
            fileContents(std::string(TGX_SOURCE_DIR "/") + folder + name + ".png").starts_with("\x89PNG"))
            << row.keyword << ": no picture " << folder << name << ".png";
        // Subroutines that an example calls are in the script of the shared parts.
        const bool isCalled = row.kind == StatementKind::Definition;
        const std::string script = folder + (isCalled ? "parts" : name) + ".tgs";
        EXPECT_TRUE(hasWord(fileContents(std::string(TGX_SOURCE_DIR "/") + script), row.keyword))
            << script << " does not use " << row.keyword;
    }
}

TEST(Reference, DocumentsAreUpToDate)
{
    const struct {
        const char* file;
        std::string text;
    } rows[] = {
        {"docs/script-reference.md", tgx::script_text::referenceDocument()},
        {"docs/check-reference.md", tgx::script_check::referenceDocument()},
        {"editors/vim/syntax/tgs.vim", tgx::script_text::vimSyntax()},
        {"editors/textmate/tgs.tmLanguage.json", tgx::script_text::textMateGrammar()},
    };
    for (const auto& row : rows) {
        const std::string kept = fileContents(std::string(TGX_SOURCE_DIR "/") + row.file);
        // EXPECT_EQ would print the whole documents.
        EXPECT_TRUE(kept == row.text) << row.file << " is out of date; regenerate it with\n"
                                      << "    cmake --build build/release --target script_reference";
    }
}

} // namespace

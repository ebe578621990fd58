#pragma once

#include <string>

struct Statement;

/// Documents that are made of the vocabulary.
namespace script_text {

/// The reference shows a picture of what such a statement makes.
bool makesWindow(const Statement& statement);
/// docs/script-reference.md.
std::string referenceDocument();
/// editors/vim/syntax/tgs.vim.
std::string vimSyntax();
/// editors/textmate/tgs.tmLanguage.json.
std::string textMateGrammar();

} // namespace script_text

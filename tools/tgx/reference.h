#pragma once

#include <string>

/// Documents that are made of the vocabulary.
namespace script_text {

/// docs/script-reference.md.
std::string referenceDocument();
/// editors/vim/syntax/tgs.vim.
std::string vimSyntax();
/// editors/textmate/tgs.tmLanguage.json.
std::string textMateGrammar();

} // namespace script_text

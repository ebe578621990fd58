#pragma once

#include <string>

namespace tgx {
struct Statement;
}

/// Documents that are generated from the vocabulary.
namespace tgx::script_text {

/// Returns whether the statement makes or shows a window. The reference shows a picture for each of these.
bool makesWindow(const Statement& statement);
/// Returns the contents of docs/script-reference.md.
std::string referenceDocument();
/// Returns the contents of editors/vim/syntax/tgs.vim.
std::string vimSyntax();
/// Returns the contents of editors/textmate/tgs.tmLanguage.json.
std::string textMateGrammar();

} // namespace tgx::script_text

#pragma once

#include "language/text/diagnostics.h"

#include <span>
#include <string>
#include <string_view>

namespace script_check {

/// What a finding's code stands for. Codes stay as they are: scripts name them to have them passed over.
struct Code {
    const char* name;
    script_text::Diagnostic::Severity severity;
    const char* summary; // a line
    const char* more;    // why it matters and what to do
    const char* wrong;   // a script that has it; "" where none can show it
    const char* right;   // the same without
};

/// All of them, errors first.
std::span<const Code> codes();
/// Null when there is none.
const Code* codeCalled(std::string_view name);

/// For --explain: one of them, or a line for each.
std::string explain(const Code& code);
std::string explainAll();
/// docs/check-reference.md.
std::string referenceDocument();

} // namespace script_check

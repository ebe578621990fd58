#pragma once

#include "language/text/diagnostics.h"

#include <span>
#include <string>
#include <string_view>

namespace tgx::script_check {

/// Describes a kind of finding. Codes are stable, because allowances in scripts name them.
struct Code {
    const char* name;
    script_text::Diagnostic::Severity severity;
    const char* summary; // one line
    const char* more;    // why it matters and what to do
    const char* wrong;   // an example script with this finding; "" if a script alone cannot show it
    const char* right;   // the corrected example
};

/// Returns all codes, errors first.
std::span<const Code> codes();
/// Returns the code of that name, or null if there is none.
const Code* codeCalled(std::string_view name);

/// Returns the text of --explain CODE.
std::string explain(const Code& code);
/// Returns a line for each code, for --explain without a code.
std::string explainAll();
/// Returns the contents of docs/check-reference.md.
std::string referenceDocument();

} // namespace tgx::script_check

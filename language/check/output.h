#pragma once

#include "language/text/diagnostics.h"

#include <string>
#include <vector>

namespace script_check {

/// As `tgx build` prints it, with the code behind the text.
std::string asText(const script_text::Diagnostic& finding, script_text::Colour colour);
/// One array for an editor: file, line, column, endColumn (from 1, in characters, the end excluded),
/// severity, code, message, and includedFrom, the lines that brought it in.
std::string asJson(const std::vector<const script_text::Diagnostic*>& findings);

} // namespace script_check

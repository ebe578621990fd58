#pragma once

#include "language/text/diagnostics.h"

#include <string>
#include <vector>

namespace tgx::script_check {

/// Returns the finding as `tgx build` prints it, followed by its code.
std::string asText(const script_text::Diagnostic& finding, script_text::Colour colour);
/// Returns a JSON array of objects with file, line, column, endColumn (in characters from 1, end exclusive),
/// severity, code, message, and includedFrom (the INCLUDE lines that led there).
std::string asJson(const std::vector<const script_text::Diagnostic*>& findings);

} // namespace tgx::script_check

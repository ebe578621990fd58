#pragma once

#include "language/text/diagnostics.h"

#include <cstddef>
#include <cstdio>
#include <string>

namespace tgx {

/// Returns Yes if stream is a terminal with colours and the environment variable NO_COLOR is not set.
script_text::Colour colourFor(std::FILE* stream);
/// Returns a count with its noun, such as "1 error" or "2 errors".
std::string counted(std::ptrdiff_t count, const char* what);

} // namespace tgx

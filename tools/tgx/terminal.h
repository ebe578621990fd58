#pragma once

#include "language/text/diagnostics.h"

#include <cstddef>
#include <cstdio>
#include <string>

/// Yes when stream is a terminal that shows colours, and the user has not asked for none (NO_COLOR).
script_text::Colour colourFor(std::FILE* stream);
/// "1 error", "2 errors".
std::string counted(std::ptrdiff_t count, const char* what);

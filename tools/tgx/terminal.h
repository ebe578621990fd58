#pragma once

#include "tools/tgx/diagnostics.h"

#include <cstdio>

/// Yes when stream is a terminal that shows colours, and the user has not asked for none (NO_COLOR).
script_text::Colour colourFor(std::FILE* stream);

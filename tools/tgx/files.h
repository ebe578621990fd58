#pragma once

#include "devtools/script_text/read_file.h"

#include <optional>
#include <string>

// Files of the command line; "-" is stdin or stdout. What goes wrong is told on stderr.

/// Nothing when it cannot be read.
std::optional<std::string> readInput(const std::string& name);
/// Writes the file whole or not at all: beside it, then renamed. False when it cannot be written.
bool writeOutput(const std::string& name, const std::string& bytes);

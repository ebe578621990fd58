#pragma once

#include "language/text/parsed_script.h"

#include <string>
#include <vector>

namespace script_text {

struct Emitted {
    std::string bytes;
    std::vector<std::size_t> offsets; // of each line in bytes
};

/// The compiled script. Only of a script without errors.
Emitted emit(const ParsedScript& script);

/// The side map: a text line for each line of the compiled script, "OFFSET LINE FILE".
std::string sideMap(const ParsedScript& script, const Emitted& emitted);

/// A rule of make: output depends on what the script includes, and on input.
std::string dependencies(const std::string& output, const std::string& input, const ParsedScript& script);

} // namespace script_text

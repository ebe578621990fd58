#pragma once

#include "language/text/parsed_script.h"

#include <string>
#include <vector>

namespace tgx::script_text {

struct Emitted {
    std::string bytes;
    std::vector<std::size_t> offsets; // where each line starts in bytes
};

/// Returns the compiled script. The script must have no errors.
Emitted emit(const ParsedScript& script);

/// Returns the map for `tgx build --map`: a text line "OFFSET LINE FILE" for each line of the compiled
/// script.
std::string sideMap(const ParsedScript& script, const Emitted& emitted);

/// Returns a make rule that says that output depends on input and on the files that the script includes.
std::string dependencies(const std::string& output, const std::string& input, const ParsedScript& script);

} // namespace tgx::script_text

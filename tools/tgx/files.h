#pragma once

#include "language/text/read_file.h"

#include <optional>
#include <string>
#include <vector>

namespace tgx {

// Files named on the command line; "-" is stdin or stdout. Errors are reported on stderr.

/// Returns the contents of the file, or nothing if it cannot be read.
std::optional<std::string> readInput(const std::string& name);
struct Output {
    std::string name;
    std::string bytes;
};
/// Writes all outputs, or returns false and writes none if one cannot be written. Each is written to a
/// temporary file, which is then renamed.
bool writeOutputs(const std::vector<Output>& outputs);
/// Returns whether two names refer to the same file, even if it does not exist yet. Empty names refer to no
/// file.
bool isSameFile(const std::string& a, const std::string& b);

} // namespace tgx

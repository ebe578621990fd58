#pragma once

#include "language/text/read_file.h"

#include <optional>
#include <string>
#include <vector>

// Files of the command line; "-" is stdin or stdout. What goes wrong is told on stderr.

/// Nothing when it cannot be read.
std::optional<std::string> readInput(const std::string& name);
struct Output {
    std::string name;
    std::string bytes;
};
/// Writes all of them or, where one cannot be written, none: beside each file, then renamed. False then.
bool writeOutputs(const std::vector<Output>& outputs);
/// Whether two names mean one file, also one that is not there yet. Empty names mean none.
bool isSameFile(const std::string& a, const std::string& b);

#pragma once

#include <optional>
#include <string>

/// Nothing, and why, when it cannot be read.
std::optional<std::string> readFile(const std::string& name, std::string& reason);
/// The same for a file that a script names: devices and pipes are refused, they may have no end.
std::optional<std::string> readIncluded(const std::string& name, std::string& reason);

#pragma once

#include <optional>
#include <string>

namespace tgx {

/// Returns the contents of a file, or nothing and sets reason if it cannot be read. The name "-" is stdin.
std::optional<std::string> readFile(const std::string& name, std::string& reason);
/// Does the same for a file that a script names. Refuses devices and pipes, which may be endless.
std::optional<std::string> readIncluded(const std::string& name, std::string& reason);

} // namespace tgx

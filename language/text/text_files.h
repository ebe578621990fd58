#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tgx::script_text {

/// Returns the files of a folder with that ending (lower case, with the dot), sorted by name; none if the
/// folder cannot be read. Paths are relative to the working directory where they are below it.
std::vector<std::string> filesIn(const std::string& folder, std::string_view ending);
/// Returns the name of the compiled script below UIG: "menu.tgx" for "scripts/menu.tgs".
std::string compiledName(const std::string& textFile);
/// Returns the path of the data directory's folder UIG, whatever its case; empty if there is none.
std::string scriptFolder();

} // namespace tgx::script_text

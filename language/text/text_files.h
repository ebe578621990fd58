#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace script_text {

/// Of ASCII letters, as names of scripts are compared.
std::string lowered(std::string_view text);
/// The files of that folder with that ending, in lower case with its dot, in the order of their names; none
/// when it cannot be read. Named as short as the working directory allows.
std::vector<std::string> filesIn(const std::string& folder, std::string_view ending);
/// The name below UIG that a text is compiled to: "menu.tgx" for "scripts/menu.tgs".
std::string compiledName(const std::string& textFile);
/// UIG of the data directory as the machine names it, in whatever case; empty when there is none.
std::string scriptFolder();

} // namespace script_text

#pragma once

#include "tools/tgx/check/check.h"

#include <string>
#include <vector>

namespace script_check {

/// The scripts of one folder, which use each other.
struct ScriptFolder {
    std::string path;
    std::string dataDirectory; // "": not known
    std::vector<ScriptFile> files;
};

/// The scripts that the arguments of a call name: files, and all scripts below folders. With a file come the
/// other scripts of its folder, unreported. A compiled script whose text lies beside it is left out, as are
/// texts that others include. dataDirectory is that of all; without one a folder called UIG lies in its own.
/// Nothing, and why, when one cannot be read.
std::vector<ScriptFolder> collect(const std::vector<std::string>& arguments, const std::string& dataDirectory,
                                  const script_text::ReadFile& read, std::string& reason);

} // namespace script_check

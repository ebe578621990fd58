#pragma once

#include "language/check/check.h"

#include <string>
#include <vector>

namespace script_check {

/// Scripts that use each other.
struct ScriptFolder {
    std::string path;
    std::string dataDirectory; // "": not known
    std::vector<ScriptFile> files;
};

/// The scripts that the arguments of a call name: files, "-" for stdin, and all scripts below folders. Those
/// of a folder belong together, below a folder UIG those of all folders, elsewhere those of folders that a
/// script names. With a file come the others that belong to it, unreported. A compiled script whose text lies
/// beside it is left out, as are texts that others include. dataDirectory is that of all; without one a
/// folder called UIG lies in its own. problems is what could not be read, a line each.
std::vector<ScriptFolder> collect(const std::vector<std::string>& arguments, const std::string& dataDirectory,
                                  const script_text::ReadFile& read, std::vector<std::string>& problems);

} // namespace script_check

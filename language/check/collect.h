#pragma once

#include "language/check/check.h"

#include <string>
#include <vector>

namespace tgx::script_check {

/// Scripts that belong together and may use each other.
struct ScriptFolder {
    std::string path;
    std::string dataDirectory; // "": unknown
    std::vector<ScriptFile> files;
};

/// Collects the scripts that the arguments name: files, "-" for stdin, and all scripts below folders. Scripts
/// of one folder belong together: below a folder UIG also those of its subfolders, elsewhere those of
/// subfolders that a script names. For a single file, the scripts that belong with it are added as
/// unreported. Skips a compiled script whose text form is in the same folder, and texts that other scripts
/// include. dataDirectory applies to all folders; if it is empty, the data directory is the parent of the
/// folder UIG. Appends a line to problems for each file or folder that cannot be read.
std::vector<ScriptFolder> collect(const std::vector<std::string>& arguments, const std::string& dataDirectory,
                                  const script_text::ReadFile& read, std::vector<std::string>& problems);

} // namespace tgx::script_check

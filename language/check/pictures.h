#pragma once

#include "language/check/findings.h"

#include <map>
#include <optional>
#include <set>
#include <string>

namespace tgx::script_check {

class Reading;

struct Picture {
    int width = 0;
    int height = 0; // pixels
    bool isOpaque = false;
};

/// Loads pictures of the data directory, each once.
class Pictures {
public:
    /// Pictures are loaded by the current window of loader.
    explicit Pictures(Reading& loader) : reading(loader) {}

    /// Returns the picture, or null if there is none or it cannot be read.
    const Picture* find(const std::string& name);
    /// Returns whether there is a file of that name, readable or not.
    bool exists(const std::string& name);

private:
    const std::string& pathOf(const std::string& name);

    Reading& reading;
    std::map<std::string, std::string> paths;               // by lower-case name; "": no file
    std::map<std::string, std::optional<Picture>> pictures; // by path
};

/// Checks the bitmaps that the lines of a script name.
void checkPictures(const Script& script, Pictures& pictures, Findings& findings);
/// Reports pictures and fonts below the data directory that no script names, at the first line of the first
/// script.
void checkUnusedFiles(const std::string& dataDirectory, const std::vector<Script*>& scripts,
                      Findings& findings);

/// Returns a hint for the name of a missing file: "; did you mean ...?" with a similar file of the same
/// folder, or an explanation of \x in names. May be empty.
std::string fileHint(const std::string& name, Findings& findings);

} // namespace tgx::script_check

#pragma once

#include "language/check/findings.h"

#include <map>
#include <optional>
#include <set>
#include <string>

namespace script_check {

class Reading;

struct Picture {
    int width = 0;
    int height = 0; // pixels
    bool isOpaque = false;
};

/// The pictures of the data directory, each loaded once.
class Pictures {
public:
    /// They are loaded by the reading's window of the moment.
    explicit Pictures(Reading& loader) : reading(loader) {}

    /// Null when there is none, or it cannot be read.
    const Picture* find(const std::string& name);
    /// Whether there is a file of that name, readable or not.
    bool isThere(const std::string& name);

private:
    const std::string& pathOf(const std::string& name);

    Reading& reading;
    std::map<std::string, std::string> paths;               // by name without case; "": no file
    std::map<std::string, std::optional<Picture>> pictures; // by path
};

/// Bitmaps that the lines of a script name.
void checkPictures(const Script& script, Pictures& pictures, Findings& findings);
/// Pictures and fonts below the data directory that no script names, told of at the first of scripts.
void checkUnusedFiles(const std::string& dataDirectory, const std::vector<Script*>& scripts,
                      Findings& findings);

/// "; did you mean ...?" with a file of the same folder of the data directory, and what \x does in a name; or
/// "".
std::string otherFile(const std::string& name, Findings& findings);

} // namespace script_check

#pragma once

#include "language/check/findings.h"
#include "language/check/script.h"
#include "platform/limits.h"

#include <deque>
#include <string>
#include <vector>

namespace script_check {

/// A script as it lies in a file.
struct ScriptFile {
    std::string path;     // how messages name it
    std::string contents; // text, or bytes of a compiled script
    bool isCompiled;
    bool isReported = true; // false: it is only there because the others use it
    std::string name = "";  // by which others ask for it, "sub\\menu.tgx"; "": that of its file
};

struct CheckOptions {
    std::string dataDirectory; // where pictures and fonts lie; "": not known, and they are not looked for
    int screenWidth = 0;       // pixels; 0: that of the first screen
    int screenHeight = 0;
    int fonts = 0;                    // that the game adds before the scripts do
    bool unusedFiles = false;         // look for pictures and fonts that nothing names
    std::vector<std::string> allowed; // codes that are passed over everywhere
    // What a read of one window may take; the toolkit's own limits.
    long scriptLines = limits::scriptLines;
    long long scriptWork = limits::scriptWork;
};

/// What was found, with the scripts to which the places lead. May be moved.
struct CheckReport {
    std::deque<Script> scripts;
    std::vector<script_text::Diagnostic> findings; // by file and line
    int broken = 0; // scripts that do not compile: only their lines have been looked at
};

/// Checks scripts that lie in one folder and use each other. read opens what INCLUDE names. For a moment the
/// toolkit's host and data directory are others; neither may be in use.
CheckReport check(std::vector<ScriptFile> files, const script_text::ReadFile& read,
                  const CheckOptions& options);

} // namespace script_check

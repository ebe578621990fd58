#pragma once

#include "language/check/findings.h"
#include "language/check/script.h"
#include "platform/limits.h"

#include <deque>
#include <string>
#include <vector>

namespace tgx::script_check {

/// A script file to check.
struct ScriptFile {
    std::string path;     // the file's name in messages
    std::string contents; // text form, or the bytes of a compiled script
    bool isCompiled;
    bool isReported = true; // false: it was only loaded because other scripts use it
    std::string name = ""; // by which other scripts refer to it, such as "sub\\menu.tgx"; "": the file's name
};

struct CheckOptions {
    std::string dataDirectory; // with pictures and fonts; "": unknown, and files are not checked
    int screenWidth = 0;       // pixels; 0: the size of the first screen
    int screenHeight = 0;
    int fonts = 0;                    // number of fonts that the game adds before the scripts do
    bool unusedFiles = false;         // also report pictures and fonts that no script names
    std::vector<std::string> allowed; // codes of findings to ignore everywhere
    // Limits for reading one window; by default those of the toolkit.
    long scriptLines = limits::scriptLines;
    long long scriptWork = limits::scriptWork;
};

/// The findings, and the scripts that their places refer to. Can be moved.
struct CheckReport {
    std::deque<Script> scripts;
    std::vector<script_text::Diagnostic> findings; // sorted by file and line
    int broken = 0; // number of scripts that do not compile, which are only checked line by line
};

/// Checks the scripts of one folder, which may use each other. read opens the files that INCLUDE names.
/// Replaces the toolkit's host and data directory while it runs; neither may be in use.
CheckReport check(std::vector<ScriptFile> files, const script_text::ReadFile& read,
                  const CheckOptions& options);

} // namespace tgx::script_check

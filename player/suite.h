#pragma once

#include "player/player.h"

namespace tgx {

/// How to run all events files below a folder.
struct TestOptions {
    std::string directory;
    std::string filter;    // run only files whose name below the folder contains it; empty: all
    std::string junitFile; // where to write the results as JUnit XML; empty: nowhere
    int jobs = 0;          // processes at a time; 0: as many as there are processors
    PlayOptions play;      // defaults for files that do not say how; each gets a folder below outDirectory
};

/// Plays each file in a process of its own. Writes a line for each to out, in the order of their names, with
/// the file's stderr below it, and a summary. Returns the exit status for main: 0 all passed, 1 some failed,
/// 2 a wrong call, which is explained on err.
TGX_PLAYER_API int runTests(const TestOptions& options, const MainWinFactory& factory, std::ostream& out,
                            std::ostream& err);

/// Adds the arguments of `tgx test` to app. options must outlive the parse.
TGX_PLAYER_API void addTestArguments(CLI::App& app, TestOptions& options);

/// Reads "DATA --script NAME ..." from the first lines of an events file into options, with DATA relative to
/// folder. Returns what is wrong with it, or "".
std::string readPlayWords(const std::vector<std::string>& words, const std::string& folder,
                          PlayOptions& options);

} // namespace tgx

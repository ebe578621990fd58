#pragma once

#include "player/player.h"

/// A run of all events files below a folder.
struct TestOptions {
    std::string directory;
    std::string filter;    // files whose name below the folder holds it; empty: all
    std::string junitFile; // empty: none
    int jobs = 0;          // processes at a time; 0: as many as there are processors
    PlayOptions play;      // for files that do not say it themselves; each gets a folder below outDirectory
};

/// Plays each file in a process of its own. A line for each on out, in the order of their names, and a
/// summary; what a file said on stderr stands below its line. Exit status for main: 0 all have passed, 1 one
/// has not, 2 a wrong call; that is told on err.
TGX_PLAYER_API int runTests(const TestOptions& options, const MainWinFactory& factory, std::ostream& out,
                            std::ostream& err);

/// Enters the arguments of `tgx test` into app. options must outlive the parse.
TGX_PLAYER_API void addTestArguments(CLI::App& app, TestOptions& options);

/// Reads "DATA --script NAME ..." of an events file's first lines into options, DATA relative to folder. What
/// is wrong, or "".
std::string readPlayWords(const std::vector<std::string>& words, const std::string& folder,
                          PlayOptions& options);

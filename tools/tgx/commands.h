#pragma once

namespace CLI {
class App;
}

// Each adds one subcommand to the program. Its callback ends with exit status 0, or throws CLI::RuntimeError
// with another: 1 the input is at fault, 2 the call is.
void addBuild(CLI::App& app);
void addDump(CLI::App& app);
void addCheck(CLI::App& app);
void addPlay(CLI::App& app);
void addTest(CLI::App& app);
void addView(CLI::App& app);
void addReference(CLI::App& app); // hidden: the build of this repository asks for it

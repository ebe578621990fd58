#pragma once

namespace CLI {
class App;
}

namespace tgx {

// Each function adds one subcommand to the program. The subcommand's callback returns for exit status 0, or
// throws CLI::RuntimeError with status 1 (invalid input) or 2 (invalid usage).
void addBuild(CLI::App& app);
void addDump(CLI::App& app);
void addCheck(CLI::App& app);
void addPlay(CLI::App& app);
void addTest(CLI::App& app);
void addView(CLI::App& app);
void addReference(CLI::App& app); // hidden; only the build of this repository uses it

} // namespace tgx

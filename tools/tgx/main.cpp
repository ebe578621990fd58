#include "language/text/diagnostics.h"
#include "platform/system/whole_file.h"
#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <iostream>
#include <new>

namespace tgx {

namespace {

constexpr int inputError = 1;
constexpr int usageError = 2;

/// Returns a one-line message that starts with the command that it is about.
std::string wrongCallText(const CLI::App* app, const CLI::Error& error)
{
    const std::vector<const CLI::App*> commands = app->get_subcommands({});
    const auto chosen =
        std::find_if(commands.begin(), commands.end(), [](const CLI::App* each) { return each->parsed(); });
    const std::string name = chosen == commands.end() ? "tgx" : "tgx " + (*chosen)->get_name();
    return name + ": " + error.what() + "; see " + name + " --help\n";
}

/// Returns a message if there is no command of that name, or "" if there is one.
std::string unknownCommandText(const CLI::App& app, const std::string& name)
{
    std::vector<std::string> names;
    for (const CLI::App* each : app.get_subcommands({})) {
        if (each->get_name() == name)
            return "";
        if (!each->get_group().empty()) // hidden
            names.push_back(each->get_name());
    }
    std::string text = "no command " + tgx::script_text::shown(name) + "; the commands are";
    for (std::size_t i = 0; i < names.size(); ++i)
        text += (i == 0 ? " " : i + 1 == names.size() ? " and " : ", ") + names[i];
    return text;
}

/// Returns the exit status.
int parseAndRun(CLI::App& app, int argc, char** argv)
{
    try {
        app.parse(argc, argv);
        if (!app.get_subcommands().empty())
            return 0;
        std::cerr << app.help();
        return usageError;
    } catch (const CLI::RuntimeError& ended) {
        return ended.get_exit_code();
    } catch (const CLI::ParseError& ended) {
        return app.exit(ended) == 0 ? 0 : usageError; // --help and --version also end here
    }
}

int run(int argc, char** argv)
{
    CLI::App app("Compiles, dumps, checks, plays and shows interface scripts.", "tgx");
    app.set_version_flag("--version", "tgx " TGX_VERSION);
    app.require_subcommand(0, 1); // parseAndRun prints the help if there is none
    app.footer("For details of a command, see tgx COMMAND --help.\n"
               "Exit status: 0 success, 1 invalid input, 2 invalid usage.");
    app.failure_message(wrongCallText);
    addBuild(app);
    addDump(app);
    addCheck(app);
    addPlay(app);
    addTest(app);
    addView(app);
    addReference(app);

    if (argc > 1 && argv[1][0] != '-') {
        if (const std::string why = unknownCommandText(app, argv[1]); !why.empty()) {
            std::cerr << "tgx: " << why << '\n';
            return usageError;
        }
    }
    tgx::removeNewFilesOnSignals();
    const int status = parseAndRun(app, argc, argv);
    return tgx::hasWrittenStdout("tgx") ? status : std::max(status, inputError);
}

} // namespace

/// Returns the exit status, also when memory is used up.
int runGuarded(int argc, char** argv)
try {
    return run(argc, argv);
} catch (const std::bad_alloc&) {
    std::cerr << "tgx: out of memory\n";
    return usageError;
}

} // namespace tgx

int main(int argc, char** argv)
{
    return tgx::runGuarded(argc, argv);
}

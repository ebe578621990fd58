#include "language/text/emit.h"
#include "language/text/print.h"
#include "language/text/text_files.h"
#include "language/text/watch.h"
#include "platform/framework/text.h"
#include "tools/tgx/commands.h"
#include "tools/tgx/files.h"
#include "tools/tgx/terminal.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <ctime>
#include <filesystem>
#include <memory>
#include <thread>

namespace tgx {

namespace {

constexpr int usageError = 2;
constexpr int inputError = 1;
constexpr std::chrono::milliseconds watchInterval(200);

struct BuildOptions {
    std::string input;
    std::string output;
    std::string map;
    std::string depfile;
    bool isWatching = false;
};

int refuse(const std::string& why)
{
    std::cerr << "tgx build: " << why << '\n';
    return usageError;
}

/// The result of one build, for the line that --watch prints.
struct Outcome {
    int status = 0;
    std::string summary;
};

Outcome buildOnce(const BuildOptions& options, script_text::WatchedFiles& watched)
{
    const std::optional<std::string> text = readInput(options.input);
    if (!text)
        return {inputError, "cannot be read"};
    const auto read = [&](const std::string& path, std::string& reason) {
        watched.add(path); // before it is read, so that no change is missed
        return readIncluded(path, reason);
    };
    const script_text::ParsedScript script =
        script_text::parse(options.input == "-" ? "stdin" : options.input, *text, read);
    for (const script_text::Diagnostic& each : script.diagnostics)
        std::cerr << script_text::describe(each, colourFor(stderr));
    for (const std::string& source : script.included)
        for (const std::string* target : {&options.output, &options.map, &options.depfile})
            if (isSameFile(source, *target))
                return {refuse(*target + " is included and would be overwritten"), "not built"};
    if (script.hasErrors()) {
        const auto errors = std::count_if(script.diagnostics.begin(), script.diagnostics.end(),
                                          [](const script_text::Diagnostic& each) {
                                              return each.severity == script_text::Diagnostic::Error;
                                          });
        return {inputError, counted(errors, "error") + ", " + options.output + " is unchanged"};
    }
    const script_text::Emitted emitted = script_text::emit(script);
    std::vector<Output> outputs{{options.output, emitted.bytes}};
    if (!options.map.empty())
        outputs.push_back({options.map, script_text::sideMap(script, emitted)});
    if (!options.depfile.empty())
        outputs.push_back(
            {options.depfile, script_text::dependencies(options.output, options.input, script)});
    if (!writeOutputs(outputs))
        return {inputError, "not written"};
    return {0, counted(static_cast<std::ptrdiff_t>(emitted.bytes.size()), "byte") + " in " + options.output};
}

volatile std::sig_atomic_t isInterrupted = 0;

/// Builds whenever a file changes, until Ctrl-C. Returns the exit status.
int watch(const BuildOptions& options)
{
    for (int each : {SIGINT, SIGTERM})
        std::signal(each, [](int) { isInterrupted = 1; });
    while (!isInterrupted) {
        script_text::WatchedFiles watched({options.input});
        const Outcome outcome = buildOnce(options, watched);
        if (outcome.status == usageError)
            return usageError;
        const std::time_t now = std::time(nullptr);
        char clock[16];
        std::strftime(clock, sizeof clock, "%H:%M:%S", std::localtime(&now));
        std::cerr << clock << ' ' << options.input << ": " << outcome.summary << '\n';
        while (!isInterrupted && !watched.haveChanged())
            std::this_thread::sleep_for(watchInterval);
    }
    return 0;
}

/// Returns whether a file is where games look for their scripts.
bool isAmongScripts(const std::string& file)
{
    const std::filesystem::path path = std::filesystem::absolute(file).lexically_normal();
    return lowercased(path.parent_path().filename().string()) == "uig";
}

/// Returns the exit status.
int build(BuildOptions options)
{
    if (options.output.empty())
        options.output = options.input == "-"
                             ? "-"
                             : std::filesystem::path(options.input).replace_extension(".tgx").string();
    if (options.map.empty() && options.output != "-" && isAmongScripts(options.output))
        options.map = options.output + ".map"; // where whoever plays the script looks for it
    std::vector<std::string> files{options.input};
    for (const std::string& target : {options.output, options.map, options.depfile}) {
        if (target.empty() || (target == "-" && files.size() == 1)) // "-" as input and output is not one file
            continue;
        for (const std::string& other : files)
            if (isSameFile(target, other))
                return refuse(other == options.input
                                  ? target +
                                        " would be overwritten by its own output; choose another name with -o"
                                  : "two outputs have the name " + target);
        files.push_back(target);
    }
    if (!options.depfile.empty() && options.output == "-")
        return refuse("--depfile needs the name of the output; set it with -o");
    if (!options.isWatching) {
        script_text::WatchedFiles none({});
        return buildOnce(options, none).status;
    }
    if (options.input == "-" || options.output == "-" || options.map == "-" || options.depfile == "-")
        return refuse("--watch only works with files, not with stdin or stdout");
    return watch(options);
}

} // namespace

void addBuild(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("build", "Compile a script from its text form");
    auto options = std::make_shared<BuildOptions>();
    command->add_option("input", options->input, "Script in text form; - for stdin")
        ->required()
        ->type_name("IN.tgs");
    command
        ->add_option("-o,--output", options->output,
                     "Compiled script; - for stdout. Defaults to IN with the extension .tgx")
        ->type_name("OUT.tgx");
    command
        ->add_option("--map", options->map,
                     "Write the source of each line of the compiled script, one per line: OFFSET LINE FILE. "
                     "Defaults to OUT.tgx.map if OUT.tgx goes into a folder UIG")
        ->type_name("FILE");
    command
        ->add_option("--depfile", options->depfile,
                     "Write the dependencies of the output as a rule for make and ninja")
        ->type_name("FILE");
    command->add_flag("--watch", options->isWatching,
                      "Build again whenever the script or an included file changes, until Ctrl-C");
    command->footer(std::string("Example: tgx build menu.tgs -o game/UIG/menu.tgx\n\n"
                                "Reports all errors. Nothing is written if there are any.\n\n") +
                    script_text::notation);
    command->callback([options] {
        if (const int status = build(*options))
            throw CLI::RuntimeError(status);
    });
}

} // namespace tgx

#include "tools/tgx/commands.h"
#include "tools/tgx/files.h"
#include "tools/tgx/script_text.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <memory>

namespace {

struct BuildOptions {
    std::string input;
    std::string output;
};

/// Exit status.
int build(const BuildOptions& options)
{
    std::string output = options.output;
    if (output.empty())
        output = options.input == "-"
                     ? "-"
                     : std::filesystem::path(options.input).replace_extension(".tgx").string();
    if (output != "-" && output == options.input) {
        std::cerr << "tgx build: " << output
                  << " would be overwritten by its own output; name another with -o\n";
        return 2;
    }
    const std::optional<std::string> text = readInput(options.input);
    if (!text)
        return 1;
    const script_text::Assembled assembled = script_text::assemble(*text);
    const std::string name = options.input == "-" ? "stdin" : options.input;
    for (const script_text::Diagnostic& each : assembled.diagnostics)
        std::cerr << script_text::describe(name, each) << '\n';
    return !assembled.hasErrors() && writeOutput(output, assembled.bytes) ? 0 : 1;
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
                     "Compiled script; - for stdout. IN with the ending .tgx if not given")
        ->type_name("OUT.tgx");
    command->footer(
        std::string(
            "Example: tgx build menu.tgs -o game/UIG/menu.tgx\n\n"
            "All errors are reported, and nothing is written when there is one. A warning tells of a line\n"
            "that can be built and that the toolkit will refuse or read otherwise.\n\n") +
        script_text::notation);
    command->callback([options] {
        if (const int status = build(*options))
            throw CLI::RuntimeError(status);
    });
}

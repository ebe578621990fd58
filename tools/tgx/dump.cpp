#include "language/text/print.h"
#include "tools/tgx/commands.h"
#include "tools/tgx/files.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace tgx {

void addDump(CLI::App& app)
{
    struct DumpOptions {
        std::string input;
        std::string output = "-";
    };
    CLI::App* command = app.add_subcommand("dump", "Print a compiled script in text form");
    auto options = std::make_shared<DumpOptions>();
    command->add_option("input", options->input, "Compiled script; - for stdin")
        ->required()
        ->type_name("IN.tgx");
    command->add_option("-o,--output", options->output, "Script in text form; stdout by default")
        ->type_name("OUT.tgs");
    command->footer(
        std::string(
            "Example: tgx dump game/UIG/menu.tgx -o menu.tgs\n\n"
            "Every compiled script has a text form from which tgx build makes the same bytes again.\n\n") +
        script_text::notation);
    command->callback([options] {
        if (options->input != "-" && isSameFile(options->input, options->output)) {
            std::cerr << "tgx dump: " << options->input
                      << " would be overwritten by its own text; choose another name with -o\n";
            throw CLI::RuntimeError(2);
        }
        const std::optional<std::string> bytes = readInput(options->input);
        if (!bytes || !writeOutputs({{options->output, script_text::print(*bytes)}}))
            throw CLI::RuntimeError(1);
    });
}

} // namespace tgx

#include "language/check/codes.h"
#include "language/reference/reference.h"
#include "tools/tgx/commands.h"
#include "tools/tgx/files.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace tgx {

void addReference(CLI::App& app)
{
    struct ReferenceOptions {
        std::string form;
        std::string output = "-";
    };
    CLI::App* command =
        app.add_subcommand("reference",
                           "Print documents generated from the tables of statements and findings")
            ->group("");
    auto options = std::make_shared<ReferenceOptions>();
    command->add_option("form", options->form, "The document, or the editor whose syntax file to print")
        ->required()
        ->check(CLI::IsMember({"markdown", "check", "vim", "textmate"}));
    command->add_option("-o,--output", options->output, "Output file; stdout by default")->type_name("FILE");
    command->callback([options] {
        const std::string text = options->form == "markdown" ? script_text::referenceDocument()
                                 : options->form == "check"  ? script_check::referenceDocument()
                                 : options->form == "vim"    ? script_text::vimSyntax()
                                                             : script_text::textMateGrammar();
        if (!writeOutputs({{options->output, text}}))
            throw CLI::RuntimeError(1);
    });
}

} // namespace tgx

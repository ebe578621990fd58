#include "language/check/codes.h"
#include "language/check/collect.h"
#include "language/check/output.h"
#include "language/text/statement_form.h"
#include "player/player.h"
#include "tools/tgx/commands.h"
#include "tools/tgx/files.h"
#include "tools/tgx/terminal.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <deque>
#include <iostream>
#include <memory>
#include <optional>

namespace tgx {

namespace {

using script_text::Diagnostic;

constexpr int usageError = 2;
constexpr int inputError = 1;

struct CheckArguments {
    std::vector<std::string> inputs;
    script_check::CheckOptions options;
    bool isJson = false;
    bool warningsAreErrors = false;
};

int refuse(const std::string& why)
{
    std::cerr << "tgx check: " << why << '\n';
    return usageError;
}

std::string unknownCode(const std::string& name)
{
    std::vector<std::string_view> names;
    for (const script_check::Code& code : script_check::codes())
        names.emplace_back(code.name);
    const std::string_view near = script_text::nearest(name, names);
    return "there is no code " + script_text::shown(name) +
           (near.empty() ? "; --explain lists all codes" : "; did you mean " + std::string(near) + "?");
}

int explain(const std::string& name)
{
    if (name.empty() || name == "all") {
        std::cout << script_check::explainAll();
        return 0;
    }
    if (const script_check::Code* code = script_check::codeCalled(name)) {
        std::cout << script_check::explain(*code);
        return 0;
    }
    return refuse(unknownCode(name));
}

std::optional<std::string> readScript(const std::string& name, std::string& reason)
{
    return name == "-" ? readInput(name) : readIncluded(name, reason);
}

int check(const CheckArguments& arguments)
{
    if (arguments.inputs.empty())
        return refuse("expected a script or a folder of scripts; see --help");
    for (const std::string& code : arguments.options.allowed)
        if (!script_check::codeCalled(code))
            return refuse(unknownCode(code));
    std::vector<std::string> problems;
    const auto folders =
        script_check::collect(arguments.inputs, arguments.options.dataDirectory, readScript, problems);
    std::deque<script_check::CheckReport> reports;
    std::ptrdiff_t scripts = 0;
    int broken = 0;
    bool lacksData = false;
    for (const script_check::ScriptFolder& folder : folders) {
        script_check::CheckOptions options = arguments.options;
        options.dataDirectory = folder.dataDirectory;
        const auto reported =
            std::count_if(folder.files.begin(), folder.files.end(),
                          [](const script_check::ScriptFile& each) { return each.isReported; });
        if (reported == 0)
            continue;
        scripts += reported;
        lacksData = lacksData || folder.dataDirectory.empty();
        reports.push_back(script_check::check(folder.files, readIncluded, options));
        broken += reports.back().broken;
    }
    for (const std::string& each : problems)
        std::cerr << each << '\n';
    if (scripts == 0)
        return problems.empty() ? refuse("no script (*.tgs, *.tgx) found") : inputError;

    std::vector<const Diagnostic*> findings;
    for (const script_check::CheckReport& report : reports)
        for (const Diagnostic& each : report.findings)
            findings.push_back(&each);
    if (arguments.isJson)
        std::cout << script_check::asJson(findings);
    else
        for (const Diagnostic* each : findings)
            std::cout << script_check::asText(*each, colourFor(stdout));
    std::cout << std::flush;

    const auto errors = std::count_if(findings.begin(), findings.end(), [](const Diagnostic* each) {
        return each->severity == Diagnostic::Error;
    });
    const auto warnings = static_cast<std::ptrdiff_t>(findings.size()) - errors;
    if (lacksData)
        std::cerr << "note: pictures and fonts are not checked; set the data directory with --data\n";
    if (broken > 0)
        std::cerr << "note: " << counted(broken, "script") << " with invalid lines "
                  << (broken == 1 ? "was" : "were") << " only checked line by line\n";
    std::cerr << counted(errors, "error") << ", " << counted(warnings, "warning") << " in "
              << counted(scripts, "script") << '\n';
    return !problems.empty() || errors > 0 || (arguments.warningsAreErrors && warnings > 0) ? inputError : 0;
}

} // namespace

void addCheck(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("check", "Find mistakes in scripts without playing them");
    auto arguments = std::make_shared<CheckArguments>();
    auto explained = std::make_shared<std::string>();
    command
        ->add_option(
            "input", arguments->inputs,
            "Scripts, in text form or compiled, and folders, with all scripts below them; - for stdin")
        ->type_name("FILE-OR-DIR");
    command
        ->add_option("--data", arguments->options.dataDirectory,
                     "Data directory with pictures and fonts. Defaults to the parent of the folder UIG that "
                     "contains the scripts")
        ->check(CLI::ExistingDirectory)
        ->type_name("DIR");
    addSizeOption(*command, arguments->options.screenWidth, arguments->options.screenHeight);
    command->get_option("--size")->description(
        "Size of the screen in pixels. Defaults to that of the first SCREEN");
    command
        ->add_option("--fonts", arguments->options.fonts,
                     "Number of fonts that the game adds in code before the scripts' fonts")
        ->check(CLI::Range(0, 255))
        ->type_name("N");
    command
        ->add_option(
            "--allow", arguments->options.allowed,
            "Codes of findings to ignore everywhere, for example in compiled scripts; can be repeated")
        ->delimiter(',')
        ->type_name("CODE,...");
    command->add_flag("--unused-files", arguments->options.unusedFiles,
                      "Also report pictures and fonts that no script names");
    command->add_flag("--json", arguments->isJson, "Print the findings as a JSON array, for editors");
    command->add_flag("-W,--warnings-as-errors", arguments->warningsAreErrors,
                      "Exit with status 1 for warnings too");
    CLI::Option* explain_option =
        command
            ->add_option("--explain", *explained,
                         "Explain the code of a finding; without CODE, list all codes")
            ->expected(0, 1)
            ->type_name("[CODE]");
    command->footer(
        "Example: tgx check game/UIG\n"
        "         tgx check --explain text-clipped\n\n"
        "Findings are printed to stdout, each with its place and a code. A comment on the line before\n"
        "silences a finding: # tgx: allow CODE\n"
        "Exit status: 0 no errors, 1 errors (with -W also warnings), 2 invalid usage.");
    command->callback([arguments, explained, explain_option] {
        const int status = explain_option->count() > 0 ? explain(*explained) : check(*arguments);
        if (status != 0)
            throw CLI::RuntimeError(status);
    });
}

} // namespace tgx

#include "player/suite.h"
#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>

namespace tgx {

void addTest(CLI::App& app)
{
    CLI::App* command = app.add_subcommand("test", "Play all events files below a folder, in parallel");
    auto options = std::make_shared<TestOptions>();
    addTestArguments(*command, *options);
    command->callback([options] {
        if (int status = runTests(*options, nullptr, std::cout, std::cerr))
            throw CLI::RuntimeError(status);
    });
}

} // namespace tgx

#include "player/player.h"
#include "tools/tgx/commands.h"

#include <CLI/CLI.hpp>

#include <memory>

namespace tgx {

void addPlay(CLI::App& app)
{
    CLI::App* command = app.add_subcommand(
        "play", "Play an interface from an events file, without a window and without a clock");
    auto options = std::make_shared<PlayOptions>();
    addPlayArguments(*command, *options);
    command->callback([options] {
        if (int status = play(*options, nullptr))
            throw CLI::RuntimeError(status);
    });
}

} // namespace tgx

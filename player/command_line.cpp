#include "player/player.h"

#include <CLI/CLI.hpp>

namespace {

/// "640x480" into options; the reason why not, or "".
std::string readSize(const std::string& size, PlayOptions& options)
{
    std::size_t divider = size.find('x');
    int width = 0, height = 0;
    constexpr int largest = 32767; // a screen's sides have 16 bits
    if (divider == std::string::npos || !CLI::detail::lexical_cast(size.substr(0, divider), width) ||
        !CLI::detail::lexical_cast(size.substr(divider + 1), height) || width < 1 || height < 1 ||
        width > largest || height > largest)
        return "expected WIDTHxHEIGHT with sides from 1 to 32767, found " + size;
    options.width = width;
    options.height = height;
    return "";
}

} // namespace

void addPlayArguments(CLI::App& app, PlayOptions& options)
{
    app.add_option("DIR", options.dataDirectory, "Data directory; scripts lie in its UIG/")->required();
    app.add_option("--script", options.script, "Compiled script, by its name below UIG/")
        ->required()
        ->type_name("NAME");
    app.add_option("--events", options.eventsFile,
                   "Events to play, - for stdin; without it 60 frames, then the picture screen.png")
        ->type_name("FILE");
    app.add_option_function<std::string>(
           "--size",
           [&options](const std::string& size) {
               std::string reason = readSize(size, options);
               if (!reason.empty())
                   throw CLI::ValidationError("--size", reason);
           },
           "Size of the screen in pixels [640x480]")
        ->type_name("WxH");
    app.add_option("--frame-ms", options.frameMs, "Milliseconds from one frame to the next [41]")
        ->check(CLI::NonNegativeNumber)
        ->type_name("N");
    app.add_option("--out", options.outDirectory, "Where files that the events write go [.]")
        ->type_name("DIR2");
}

int playMain(int argc, char** argv, const MainWinFactory& factory)
{
    CLI::App app("Plays the interface without a window and without a clock");
    PlayOptions options;
    addPlayArguments(app, options);
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(PlayStatus::WrongCall); // 0: --help
    }
    return play(options, factory);
}

#include "platform/system/whole_file.h"
#include "player/suite.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <filesystem>
#include <iostream>
#include <new>

namespace tgx {

namespace {

/// Splits "640x480" into width and height. Returns what is wrong with it, or "".
std::string readSize(const std::string& size, int& width, int& height)
{
    std::size_t divider = size.find('x');
    int w = 0, h = 0;
    constexpr int largest = 32767; // a screen's width and height are 16-bit fields
    if (divider == std::string::npos || !CLI::detail::lexical_cast(size.substr(0, divider), w) ||
        !CLI::detail::lexical_cast(size.substr(divider + 1), h) || w < 1 || h < 1 || w > largest ||
        h > largest)
        return "expected WIDTHxHEIGHT with sides from 1 to 32767, found " + size;
    width = w;
    height = h;
    return "";
}

} // namespace

void addSizeOption(CLI::App& app, int& width, int& height)
{
    app.add_option_function<std::string>(
           "--size",
           [&width, &height](const std::string& size) {
               std::string reason = readSize(size, width, height);
               if (!reason.empty())
                   throw CLI::ValidationError("--size", reason);
           },
           "Size of the screen in pixels [640x480]")
        ->type_name("WxH");
}

namespace {

/// Adds the options that name the script, the screen size and the frame time.
void addSceneArguments(CLI::App& app, PlayOptions& options)
{
    app.add_option("--script", options.script, "Compiled script, by its name below UIG/")->type_name("NAME");
    addSizeOption(app, options.width, options.height);
    app.add_option("--frame-ms", options.frameMs, "Milliseconds from one frame to the next [41]")
        ->check(CLI::NonNegativeNumber)
        ->type_name("N");
}

/// Adds the other options that `tgx play` and `tgx test` share.
void addRunArguments(CLI::App& app, PlayOptions& options, const char* outText)
{
    app.add_option("--out", options.outDirectory, outText)->type_name("DIR2");
    app.add_flag("--update", options.update, "Write expected files that are missing or differ");
    app.add_flag("--log-input", options.logInput,
                 "Print on stderr which window each input reached, and why others did not get it");
}

} // namespace

void addPlayArguments(CLI::App& app, PlayOptions& options)
{
    app.add_option("DIR", options.dataDirectory, "Data directory; scripts are in its UIG/")->required();
    addSceneArguments(app, options);
    app.get_option("--script")->required();
    app.add_option("--events", options.eventsFile,
                   "Events to play, - for stdin; without it 60 frames, then the picture screen.png")
        ->type_name("FILE");
    addRunArguments(app, options, "Where to put files that the events write [.]");
}

void addTestArguments(CLI::App& app, TestOptions& options)
{
    options.play.outDirectory = "tgx-test";
    app.add_option("DIR", options.directory, "Folder; every file *.events below it is played")->required();
    app.add_option("FILTER", options.filter, "Only files with this in their name");
    app.add_option("--jobs", options.jobs, "Processes at a time [number of processors]")
        ->check(CLI::PositiveNumber)
        ->type_name("N");
    app.add_option("--junit", options.junitFile, "Also write the results as JUnit XML")->type_name("FILE");
    app.add_option("--data", options.play.dataDirectory, "Data directory for events files that name none")
        ->type_name("DATA");
    addSceneArguments(app, options.play);
    addRunArguments(app, options.play,
                    "Where to put files that the events write, in a folder for each events file [tgx-test]");
    app.footer("The first lines of an events file say what it plays, with DATA relative to the file:\n"
               "    # tgx: play DATA --script NAME --size WxH\n"
               "The command line gives what they leave out.");
}

std::string readPlayWords(const std::vector<std::string>& words, const std::string& folder,
                          PlayOptions& options)
{
    CLI::App app;
    std::string data;
    app.add_option("DATA", data);
    addSceneArguments(app, options);
    try {
        app.parse(std::vector<std::string>(words.rbegin(), words.rend())); // CLI11 takes words from the back
    } catch (const CLI::ParseError& error) {
        return error.what();
    }
    if (!data.empty())
        options.dataDirectory = (std::filesystem::path(folder) / data).lexically_normal().string();
    return "";
}

namespace {

/// Parses the arguments and runs. Returns the exit status for main.
int parseAndRun(CLI::App& app, int argc, char** argv, const std::function<int()>& run)
{
    try {
        app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        return app.exit(error) == 0 ? 0 : static_cast<int>(PlayStatus::WrongCall); // 0: --help
    }
    removeNewFilesOnSignals();
    const int status = run();
    return hasWrittenStdout(app.get_name().empty() ? "play" : app.get_name())
               ? status
               : std::max(status, static_cast<int>(PlayStatus::WrongLine));
}

} // namespace

int playMain(int argc, char** argv, const MainWinFactory& factory)
try {
    if (argc > 1 && std::string_view(argv[1]) == "test") {
        CLI::App app("Plays every events file below a folder, several at a time", "test");
        TestOptions options;
        addTestArguments(app, options);
        return parseAndRun(app, argc - 1, argv + 1,
                           [&] { return runTests(options, factory, std::cout, std::cerr); });
    }
    CLI::App app("Plays the interface without a window and without a clock");
    PlayOptions options;
    addPlayArguments(app, options);
    app.footer("With the word test in front, plays every events file below a folder; see test --help.");
    return parseAndRun(app, argc, argv, [&] { return play(options, factory); });
} catch (const std::bad_alloc&) {
    std::cerr << "play: out of memory\n";
    return static_cast<int>(PlayStatus::WrongCall);
}

} // namespace tgx

#include "player/player.h"

#include "platform/framework/exceptions.h"
#include "platform/host/headless_host.h"
#include "platform/host/message_text.h"
#include "platform/system/clock.h"
#include "platform/system/datadir.h"
#include "platform/system/module.h"
#include "player/events.h"
#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <fstream>
#include <iostream>

namespace fs = std::filesystem;

namespace {

constexpr int bitDepth = 32;
constexpr int framesWithoutEvents = 60;

} // namespace

struct Player::Surroundings {
    std::unique_ptr<displayhost> host;
    std::string dataDirectory;
};

Player::Player(const PlayOptions& playOptions, const MainWinFactory& mainWinFactory, std::ostream& outStream,
               std::ostream& errStream)
    : options(playOptions), factory(mainWinFactory), out(outStream), err(errStream)
{
    if (!factory)
        factory = [](int width, int height, int depth) {
            return std::make_unique<AMainWin>(width, height, depth);
        };
}

Player::~Player()
{
    if (!before)
        return;
    if (mainWin)
        host->close(*mainWin);
    mainWin.reset();
    app.reset();
    displayhost::use(std::move(before->host));
    setDataDirectory(before->dataDirectory);
    useRealTime();
}

void Player::start()
{
    std::error_code error;
    if (!fs::is_directory(options.dataDirectory, error))
        throw std::runtime_error("no data directory " + quote(options.dataDirectory));

    auto headless = std::make_unique<HeadlessHost>();
    host = headless.get();
    host->onMessage = [this](const CString& text) { showMessage(text); };
    before.reset(new Surroundings{displayhost::use(std::move(headless)), dataDirectory()});
    setDataDirectory(options.dataDirectory);
    setVirtualTime(0);
    app = std::make_unique<AControlsApp>(); // without a program name: no settings are read or written
    mainWin = factory(options.width, options.height, bitDepth);
    app->mainWin = mainWin.get();
    host->open(*mainWin);
    try {
        mainWin->startup();
        mainWin->readScriptFile(CString(options.script), GetModuleHandleA(nullptr), mainScriptResource, "",
                                1);
    } catch (const CInvalidArgException&) {
        showMessage("invalid argument at the start");
    }
}

bool Player::hasEnded() const
{
    return mainWin && mainWin->running == 0;
}

void Player::showMessage(const CString& text)
{
    if (onMessage)
        onMessage(text);
    else
        err << "message: " << oneLine(text.view()) << '\n' << std::flush;
}

void Player::tick(int count)
{
    for (; count > 0 && !hasEnded(); --count)
        mainWin->runTick();
}

void Player::draw(int count)
{
    for (; count > 0 && !hasEnded(); --count) {
        advanceVirtualTime(static_cast<std::uint32_t>(options.frameMs));
        try {
            mainWin->runFrame();
        } catch (const CInvalidArgException&) {
            if (!invalidArgumentShown)
                showMessage("invalid argument in a frame");
            invalidArgumentShown = true;
        }
    }
}

std::string Player::outputPath(const std::string& name) const
{
    fs::path relative = fs::path(name).lexically_normal();
    const bool hasZero = name.find('\0') != std::string::npos; // the system would end the name there
    if (hasZero || !relative.has_filename() || relative.is_absolute() || *relative.begin() == "..")
        throw WrongLine("cannot write " + quote(name) + ": not a file name below the output directory");
    fs::path path = fs::path(options.outDirectory) / relative;
    std::error_code error; // a folder that cannot be made shows when the file is opened
    if (path.has_parent_path())
        fs::create_directories(path.parent_path(), error);
    return path.string();
}

void Player::writeFile(const std::string& name, std::string_view contents)
{
    if (name == "-") {
        out << contents << std::flush;
        return;
    }
    std::string path = outputPath(name);
    std::string temporary = path + ".new"; // renamed when it is whole
    std::ofstream file(temporary, std::ios::binary);
    file << contents;
    file.close();
    std::error_code error;
    if (file)
        fs::rename(temporary, path, error);
    if (!file || error) {
        fs::remove(temporary, error);
        throw WrongLine("cannot write " + quote(name));
    }
}

std::optional<std::string> Player::runLine(std::string_view line, int number)
{
    if (line.ends_with('\r'))
        line.remove_suffix(1);
    try {
        std::size_t start = line.find_first_not_of(" \t");
        if (start == std::string_view::npos || line[start] == '#')
            return std::nullopt;
        runEvent(*this, splitWords(line), number);
    } catch (const WrongLine& wrong) {
        return wrong.what();
    }
    return std::nullopt;
}

PlayStatus Player::runEvents(std::istream& events, const std::string& name)
{
    std::string line;
    for (int number = 1; !hasEnded() && std::getline(events, line); ++number) {
        if (auto reason = runLine(line, number)) {
            err << name << ':' << number << ": " << *reason << '\n' << std::flush;
            return PlayStatus::WrongLine;
        }
    }
    return PlayStatus::Done;
}

PlayStatus Player::runWithoutEvents()
{
    for (int i = 0; i < framesWithoutEvents; ++i) {
        auto reason = runLine("frame");
        if (!reason && i + 1 == framesWithoutEvents && !hasEnded())
            reason = runLine("shot screen.png");
        if (reason) {
            err << options.script << ": " << *reason << '\n' << std::flush;
            return PlayStatus::WrongLine;
        }
    }
    return PlayStatus::Done;
}

PlayStatus Player::run()
{
    try {
        std::ifstream file; // opened first: a wrong call runs nothing
        bool fromStdin = options.eventsFile == "-";
        if (!options.eventsFile.empty() && !fromStdin) {
            file.open(options.eventsFile, std::ios::binary);
            if (!file || fs::is_directory(options.eventsFile))
                throw std::runtime_error("cannot read the events file " + quote(options.eventsFile));
        }
        start();
        if (options.eventsFile.empty())
            return runWithoutEvents();
        return runEvents(fromStdin ? std::cin : file, options.eventsFile);
    } catch (const std::runtime_error& wrongCall) {
        err << "play: " << wrongCall.what() << '\n' << std::flush;
        return PlayStatus::WrongCall;
    }
}

int play(const PlayOptions& options, const MainWinFactory& factory)
{
    return static_cast<int>(Player(options, factory, std::cout, std::cerr).run());
}

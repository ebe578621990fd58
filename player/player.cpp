#include "player/player.h"

#include "platform/display/message_text.h"
#include "platform/framework/datadir.h"
#include "platform/framework/exceptions.h"
#include "platform/host/headless/headless_host.h"
#include "platform/system/clock.h"
#include "platform/system/module.h"
#include "player/files.h"
#include "player/message_places.h"
#include "player/reach.h"
#include "player/script_lines.h"
#include "player/words.h"
#include "tgx/frame/mainwin.h"

#include <filesystem>
#include <ostream>

namespace fs = std::filesystem;

namespace tgx {

namespace {

constexpr int bitDepth = 32;

PointerAct actOf(PlayedInput::Kind kind)
{
    switch (kind) {
    case PlayedInput::Kind::Press:
        return PointerAct::Press;
    case PlayedInput::Kind::Release:
        return PointerAct::Release;
    default:
        return PointerAct::Point;
    }
}

} // namespace

struct Player::Surroundings {
    std::unique_ptr<displayhost> host;
    OtherDataDirectory data; // restores the previous one at the end
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
    shut();
    displayhost::use(std::move(before->host));
    useRealTime();
}

void Player::start()
{
    std::error_code error;
    if (!fs::is_directory(options.dataDirectory, error))
        throw std::runtime_error("no data directory " + quoteName(options.dataDirectory));
    before.reset(new Surroundings{displayhost::use(nullptr), OtherDataDirectory(options.dataDirectory)});
    open();
}

void Player::open()
{
    auto headless = std::make_unique<HeadlessHost>();
    host = headless.get();
    host->onMessage = [this](const CString& text) { showMessage(text, ""); };
    host->onFailure = [this](const CString& text, const std::string& cause) { showMessage(text, cause); };
    displayhost::use(std::move(headless));
    setVirtualTime(0);
    invalidArgumentShown = false;
    isFresh = true;
    app = std::make_unique<AControlsApp>(); // without a program name: no settings are read or written
    mainWin = factory(options.width, options.height, bitDepth);
    app->mainWin = mainWin.get();
    messagePlaces = std::make_unique<MessagePlaces>(*mainWin);
    scriptLines = std::make_unique<ScriptLinesOnDisk>();
    host->open(*mainWin);
    try {
        mainWin->startup();
        mainWin->readScriptFile(CString(options.script), GetModuleHandleA(nullptr), mainScriptResource, "",
                                1);
    } catch (const CInvalidArgException&) {
        showMessage("invalid argument at the start", "");
    }
}

void Player::shut()
{
    if (mainWin)
        host->close(*mainWin);
    messagePlaces.reset();
    mainWin.reset();
    app.reset();
    input.clear();
}

bool Player::hasEnded() const
{
    return mainWin && mainWin->running == 0;
}

void Player::showMessage(const CString& text, const std::string& cause)
{
    messages.push_back({text.str(), place(), scriptPlaceOf(text), cause});
    const Message& message = messages.back();
    if (onMessage) {
        onMessage(text);
    } else if (!options.messagesFail) { // else reported at the end of the part, unless a line expected it
        err << "message: " << oneLine(message.text) << '\n';
        if (!message.scriptPlace.empty())
            err << message.scriptPlace << ": note: the message comes from this line\n";
        explain(message);
        err << std::flush;
    }
}

std::string Player::scriptPlaceOf(const CString& message)
{
    const std::optional<ScriptPlace> found =
        messagePlaces ? messagePlaces->find(message.view()) : std::nullopt;
    return found ? scriptLines->of(found->file).placeOf(found->offset) : "";
}

/// Prints notes that many messages may need, once in a run.
void Player::explain(const Message& message)
{
    noteOnce(message.cause);
    if (isAboutALine(message.text) && message.scriptPlace.empty())
        noteOnce("line numbers in messages count the statements of the compiled script, as tgx dump prints "
                 "them; with its map beside it (tgx build --map) messages also name the line of the text");
}

void Player::noteOnce(const std::string& note)
{
    if (!note.empty() && notes.insert(note).second)
        err << "note: " << oneLine(note) << '\n';
}

void Player::tick(int count)
{
    for (; count > 0 && !hasEnded(); --count) {
        const std::string reached = logOfNextTick();
        try {
            mainWin->runTick();
        } catch (...) {
            err << reached;
            throw;
        }
        if (!reached.empty() &&
            host->input().empty()) // else the previous tick has not ended yet, so this one took nothing
            err << reached << std::flush;
    }
}

/// Passes the next input to the host. Returns the line about what it reaches, "" without --log-input.
std::string Player::logOfNextTick()
{
    const PlayedInput::Next& next = input.handTo(host->input());
    if (!options.logInput || !next.transition)
        return "";
    const PlayedInput::Entry& transition = *next.transition;
    const int x = next.move ? next.move->x : mainWin->mouseX;
    const int y = next.move ? next.move->y : mainWin->mouseY;
    const std::string reached = transition.kind == PlayedInput::Kind::Key
                                    ? describeKeyReach(*mainWin, transition.name, x, y)
                                    : describeReach(*mainWin, transition.name, x, y, actOf(transition.kind));
    return transition.place + reached + '\n';
}

bool Player::hasWaitingInput() const
{
    return !input.empty() || !host->input().empty();
}

void Player::draw(int count)
{
    for (; count > 0 && !hasEnded(); --count) {
        advanceVirtualTime(static_cast<std::uint32_t>(options.frameMs));
        try {
            mainWin->runFrame();
        } catch (const CInvalidArgException&) {
            if (!invalidArgumentShown)
                showMessage("invalid argument in a frame", "");
            invalidArgumentShown = true;
        }
    }
}

void Player::frame()
{
    tick(1);
    draw(1);
}

std::string Player::outputPath(const std::string& name) const
{
    if (!staysBelow(name))
        throw WrongLine("cannot write " + quoteName(name) + ": not a file name below the output directory");
    const std::string path = (fs::path(options.outDirectory) / fs::path(name).lexically_normal()).string();
    makeFoldersOf(path);
    return path;
}

void Player::writeFile(const std::string& name, std::string_view contents)
{
    if (name == "-") {
        out << contents << std::flush;
        return;
    }
    if (!writeWhole(outputPath(name), contents))
        throw WrongLine("cannot write " + quoteName(name));
}

} // namespace tgx

#include "devtools/workbench.h"

#include "platform/framework/exceptions.h"
#include "platform/host/image_file.h"
#include "platform/host/message_text.h"
#include "platform/system/clock.h"
#include "platform/system/datadir.h"
#include "player/files.h"
#include "player/words.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>

namespace fs = std::filesystem;

namespace {

// A change shows within a second, and looking costs little beside a frame.
constexpr std::uint32_t lookMillis = 200;
constexpr std::uint32_t pictureLookMillis = 500; // there may be many of them

constexpr int averagedFrames = 32;
constexpr int recordedFrameMs = 17; // the host runs 60 ticks a second

std::string keyHelp(const DevToolsOptions& options)
{
    std::string help;
    const auto add = [&help](int code, const char* what) {
        if (code >= VK_F1 && code <= VK_F12)
            help += (help.empty() ? "F" : "   F") + std::to_string(code - VK_F1 + 1) + ' ' + what;
    };
    add(options.inspectorKey, "inspector");
    add(options.fullScreenKey, "whole screen");
    add(options.pictureKey, "picture");
    add(options.recorderKey, "record");
    return help;
}

} // namespace

Workbench::Workbench(AMainWin& mainWin, DevToolsOptions toolOptions)
    : game(mainWin), options(std::move(toolOptions)), sources(options.sources), origins(sources),
      inspector(mainWin, origins, options), state(mainWin, origins)
{
    buildSources();
    pictures.haveChanged();
    game.setScriptObserver(&origins);
    notices.tell(keyHelp(options));
    displayhost::current(); // chosen now, if none was
    displayhost::use(std::make_unique<WatchingHost>(displayhost::use(nullptr), *this));
}

Workbench::~Workbench()
{
    saveRecording();
    game.setScriptObserver(nullptr);
    const std::unique_ptr<displayhost> own = displayhost::use(nullptr);
    if (auto* watching = dynamic_cast<WatchingHost*>(own.get()))
        displayhost::use(watching->release());
}

// What passes between game and host

bool Workbench::takesInput(const InputQueue::Event& event)
{
    using Kind = InputQueue::Kind;
    const int keys[] = {options.inspectorKey, options.fullScreenKey, options.pictureKey, options.recorderKey};
    const bool isKey = event.kind == Kind::Key || event.kind == Kind::Hold;
    if (!isKey || event.code == 0 ||
        std::find(std::begin(keys), std::end(keys), event.code) == std::end(keys))
        return false;
    if (event.kind == Kind::Key && !event.repeat)
        keyPressed(event.code);
    return true;
}

void Workbench::tickBegins(const InputQueue& next, bool takesInput)
{
    if (recorder)
        recorder->tickBegins(next, takesInput);
}

void Workbench::frameBegins()
{
    if (options.reloads)
        lookForChanges();
    showFaults();
    state.follow();
    if (!state.isRestoring())
        heldPicture.reset();
    frameStart = Clock::now();
}

const Image& Workbench::pictureOf(const Image& screen, std::span<const tagRECT> changed)
{
    measure(screen, changed);
    const bool hasNotices = notices.isShowing();
    if (!heldPicture && !hasNotices && !inspector.isOn())
        return screen;
    overlay.begin(heldPicture ? *heldPicture : screen);
    if (inspector.isOn() && !heldPicture)
        inspector.paint(overlay, cost);
    if (hasNotices)
        notices.paint(overlay);
    return overlay.getPicture();
}

void Workbench::measure(const Image& screen, std::span<const tagRECT> changed)
{
    cost.micros = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - frameStart).count();
    cost.averageMicros += (cost.micros - cost.averageMicros) / averagedFrames;
    cost.commands = static_cast<int>(game.getLastFrame().commands().size());
    cost.changedPixels = 0;
    for (const tagRECT& each : changed) {
        const Box box =
            intersection({each.left, each.top, each.right, each.bottom}, {0, 0, screen.width, screen.height});
        if (!box.isEmpty())
            cost.changedPixels += static_cast<long>(box.width()) * box.height();
    }
}

/// In the panel instead of a box that holds the game up.
void Workbench::showMessage(const CString& text)
{
    std::string message = oneLine(text.view());
    int line = 0;
    char script[256] = "";
    const bool isLineMessage =
        std::sscanf(text.str().c_str(), "Encountered an error on line %d in %255s", &line, script) == 2;
    const std::string place = isLineMessage ? sources.placeOfLine(script, line) : "";
    if (!place.empty())
        message = place + ": " + message;
    std::cerr << "message: " << message << '\n';
    if (!isLineMessage) // the line itself is among the faults
        notices.tell(std::move(message));
}

// Keys

void Workbench::keyPressed(int code)
{
    if (code == options.inspectorKey)
        inspector.next();
    else if (code == options.fullScreenKey)
        switchFullScreen();
    else if (code == options.pictureKey)
        savePicture();
    else if (code == options.recorderKey)
        switchRecorder();
}

void Workbench::switchFullScreen()
{
    game.fullScreen = !game.fullScreen;
    displayhost::current().followFullScreen(game);
}

/// The first free one of STEM-1ENDING, STEM-2ENDING and so on.
std::string Workbench::outPath(const char* stem, const char* ending) const
{
    for (int number = 1;; ++number) {
        const fs::path path = fs::path(options.outDirectory) / (stem + std::to_string(number) + ending);
        std::error_code failure;
        if (!fs::exists(path, failure))
            return path.string();
    }
}

void Workbench::savePicture()
{
    const std::string path = outPath("picture-", ".png");
    makeFoldersOf(path);
    notices.tell(writePng(game.getScreenImage(), path) ? "picture written: " + path
                                                       : "cannot write the picture " + path);
}

void Workbench::switchRecorder()
{
    if (recorder) {
        saveRecording();
        return;
    }
    const fs::path out = options.outDirectory.empty() ? fs::path(".") : fs::path(options.outDirectory);
    std::error_code failure;
    const fs::path data = fs::proximate(dataDirectory(), out, failure);
    recorder.emplace(game, "# tgx: play " + quoteWord((failure ? fs::path(dataDirectory()) : data).string()) +
                               " --script " + quoteWord(options.script) + " --size " +
                               std::to_string(game.screenWidth) + 'x' + std::to_string(game.screenHeight) +
                               " --frame-ms " + std::to_string(recordedFrameMs) + '\n');
    notices.setStatus("recording");
}

void Workbench::saveRecording()
{
    if (!recorder)
        return;
    const std::string path = outPath("recording-", ".events");
    makeFoldersOf(path);
    const bool isWritten = writeWhole(path, recorder->events());
    if (!isWritten)
        std::cerr << recorder->events(); // not lost
    notices.tell(isWritten ? "recording written: " + path : "cannot write the recording " + path);
    std::cerr << (isWritten ? "recording written: " : "cannot write the recording ") << path << '\n';
    recorder.reset();
    notices.setStatus("");
}

// Reading anew

void Workbench::lookForChanges()
{
    const std::uint32_t now = timeGetTime();
    if (now - lastLook < lookMillis || state.isRestoring())
        return;
    lastLook = now;
    bool isChanged = false;
    if (sources.haveChanged()) {
        if (!buildSources())
            return; // what is there goes on until the text is mended
        isChanged = true;
    }
    if (now - lastPictureLook >= pictureLookMillis) {
        lastPictureLook = now;
        if (pictures.haveChanged()) {
            game.reloadsurfaces(); // those of the game itself
            isChanged = true;
        }
    }
    if (isChanged)
        readAnew();
}

bool Workbench::buildSources()
{
    const bool isBuilt = sources.build();
    for (const std::string& each : sources.getReports())
        std::cerr << each;
    return isBuilt;
}

/// Of the text, and of lines that failed when they were read.
void Workbench::showFaults()
{
    std::vector<std::string> faults = sources.getFaults();
    faults.insert(faults.end(), origins.getFailures().begin(), origins.getFailures().end());
    if (faults != notices.getFaults())
        notices.setFaults(std::move(faults));
}

void Workbench::readAnew()
{
    state.keep();
    if (recorder)
        recorder->readAnew();
    heldPicture = copyImage(game.getScreenImage());
    game.recreateScreenList();
    game.beginFontsAnew();
    origins.clear();
    try {
        game.startup();
        if (options.readsScript)
            game.readScriptFile(CString(options.script), GetModuleHandleA(nullptr), mainScriptResource, "",
                                1);
    } catch (const CInvalidArgException&) {
        notices.tell("invalid argument while the interface was read again");
    }
    game.redrawScreen();
    state.restore();
    notices.tell("read again");
}

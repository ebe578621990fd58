#include "devtools/workbench.h"

#include "platform/display/message_text.h"
#include "platform/framework/datadir.h"
#include "platform/framework/exceptions.h"
#include "platform/media/image_file.h"
#include "platform/system/clock.h"
#include "player/files.h"
#include "player/words.h"
#include "tgx/base/swapped.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iostream>
#include <stdexcept>

namespace fs = std::filesystem;

namespace tgx {

namespace {

// Changes appear within a second, and checking for them is cheap compared with a frame.
constexpr std::uint32_t lookMillis = 200;
constexpr std::uint32_t pictureLookMillis = 500; // there may be many of them

constexpr std::string_view missingFile = "cannot load ";
constexpr double averagedFrames = 60;
constexpr int recordedFrameMs = 17; // the host runs 60 ticks a second

} // namespace

Workbench::Workbench(AMainWin& mainWin, DevToolsOptions toolOptions)
    : game(mainWin), options(std::move(toolOptions)), sources(options.sources, options.script),
      origins(sources), inspector(mainWin, origins, options), screenChooser(mainWin, sources, options.script),
      state(mainWin, origins), messagePlaces(mainWin)
{
    if (dynamic_cast<WatchingHost*>(&displayhost::current()))
        throw std::logic_error("the game has devtools already");
    buildSources();
    game.addScriptObserver(origins);
    notices.tell(describeKeys(options));
    fullScreenBefore = game.fullScreen;
    auto watching = std::make_unique<WatchingHost>(displayhost::use(nullptr), *this);
    host = watching.get();
    displayhost::use(std::move(watching));
}

Workbench::~Workbench()
{
    saveRecording();
    game.removeScriptObserver(origins);
    game.fullScreen = fullScreenBefore;
    if (&displayhost::current() == host) {
        const std::unique_ptr<displayhost> own = displayhost::use(nullptr);
        displayhost::use(host->release());
    }
}

// What passes between game and host

bool Workbench::takesInput(const InputQueue::Event& event)
{
    using Kind = InputQueue::Kind;
    const int keys[] = {options.inspectorKey, options.fullScreenKey, options.pictureKey, options.recorderKey,
                        options.screensKey};
    if (event.kind != Kind::Key && event.kind != Kind::Hold)
        return false;
    const bool isOurs =
        event.code != 0 && std::find(std::begin(keys), std::end(keys), event.code) != std::end(keys);
    if (!isOurs && !screenChooser.isOpen())
        return false;
    if (isOurs && event.kind == Kind::Key && !event.repeat)
        keyPressed(event.code);
    else if (!isOurs && event.kind == Kind::Key)
        screenChooser.keyPressed(event.code);
    return true;
}

void Workbench::tickBegins(const InputQueue& next, bool takesNew)
{
    if (recorder)
        recorder->tickBegins(next, takesNew);
}

void Workbench::frameBegins()
{
    if (isReading)
        return;
    cost = measured;
    cost.commands = static_cast<int>(game.getLastFrame().commands().size());
    if (options.reloads)
        lookForChanges();
    showFaults();
    state.follow();
    for (std::string& each : state.takeLost())
        notices.tell(std::move(each));
    if (!state.isRestoring())
        heldPicture.reset();
    frameStart = Clock::now();
}

const Image& Workbench::pictureOf(const Image& screen, std::span<const tagRECT> changed)
{
    measure(screen, changed);
    const bool hasNotices = notices.isShowing();
    if (!heldPicture && !hasNotices && !inspector.isOn() && !screenChooser.isOpen())
        return screen;
    overlay.begin(heldPicture ? *heldPicture : screen);
    if (inspector.isOn() && !heldPicture)
        inspector.paint(overlay, cost);
    if (screenChooser.isOpen())
        screenChooser.paint(overlay);
    if (hasNotices)
        notices.paint(overlay);
    return overlay.getPicture();
}

void Workbench::measure(const Image& screen, std::span<const tagRECT> changed)
{
    measured.micros =
        std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - frameStart).count();
    averageMicros += (static_cast<double>(measured.micros) - averageMicros) / averagedFrames;
    measured.averageMicros = std::lround(averageMicros);
    measured.changedPixels = 0;
    for (const tagRECT& each : changed) {
        const Box box =
            intersection({each.left, each.top, each.right, each.bottom}, {0, 0, screen.width, screen.height});
        if (!box.isEmpty())
            measured.changedPixels += static_cast<long>(box.width()) * box.height();
    }
}

/// Shows a message in the panel instead of a box that blocks the game; of messages with a common cause, only
/// the cause.
void Workbench::showMessage(const CString& text, const std::string& cause)
{
    const bool isShownAsFault = isAboutALine(text.view()); // by showFaults, with its place
    if (isShownAsFault && cause.empty())
        return;
    std::string message = oneLine(text.view());
    const std::optional<ScriptPlace> found = messagePlaces.find(text.view());
    const std::string place = placeOf(found);
    if (!isShownAsFault) {
        std::cerr << "message: " << message << '\n';
        if (!place.empty())
            std::cerr << place << ": note: the message comes from this line\n";
    }
    if (!cause.empty()) {
        if (missing.emplace(oneLine(cause), found).second) // until the next reload
            std::cerr << "note: " << oneLine(cause) << '\n';
        faultsAreStale = true;
    } else if (message.starts_with(missingFile)) {
        missing.emplace(std::move(message), found);
        faultsAreStale = true;
    } else {
        notices.tell(place.empty() ? std::move(message) : place + ": " + message);
    }
}

std::string Workbench::placeOf(const std::optional<ScriptPlace>& place) const
{
    return place ? origins.placeIn(place->file, place->offset) : "";
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
    else if (code == options.screensKey)
        switchScreenList();
}

void Workbench::switchScreenList()
{
    if (screenChooser.isOpen())
        screenChooser.close();
    else if (!screenChooser.open())
        notices.tell("no script has a screen with a name");
}

void Workbench::switchFullScreen()
{
    game.fullScreen = !game.fullScreen;
    displayhost::current().followFullScreen(game);
}

/// Returns the path of the first file that does not exist yet: STEM1ENDING, STEM2ENDING and so on.
std::string Workbench::outPath(const char* stem, const char* ending) const
{
    for (int number = 1;; ++number) {
        const fs::path path = fs::path(options.outDirectory) / (stem + std::to_string(number) + ending);
        std::error_code failure;
        if (!fs::exists(path, failure))
            return path.string();
    }
}

void Workbench::tellWritten(const std::string& what, const std::string& path, bool isWritten)
{
    const std::string text = (isWritten ? what + " written: " : "cannot write the " + what + ' ') + path;
    std::cerr << text << '\n';
    notices.tell(text);
}

void Workbench::savePicture()
{
    const std::string path = outPath("picture-", ".png");
    makeFoldersOf(path);
    const bool isWritten = writePng(game.getScreenImage(), path);
    tellWritten("picture", path, isWritten);
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
    const std::string textOnly =
        sources.isFromText(options.script) && !findDataFile("UIG\\" + options.script)
            ? "# " + options.script + " is there as text only: tgx build makes the file that this plays on.\n"
            : "";
    recorder.emplace(game, "# tgx: play " + quoteWord((failure ? fs::path(dataDirectory()) : data).string()) +
                               " --script " + quoteWord(options.script) + " --size " +
                               std::to_string(game.screenWidth) + 'x' + std::to_string(game.screenHeight) +
                               " --frame-ms " + std::to_string(recordedFrameMs) + '\n' + textOnly);
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
        std::cerr << recorder->events(); // so that it is not lost
    tellWritten("recording", path, isWritten);
    recorder.reset();
    notices.setStatus("");
}

// Reloading

void Workbench::lookForChanges()
{
    const std::uint32_t now = timeGetTime();
    if (now - lastLook < lookMillis)
        return;
    lastLook = now;
    // A script with an error keeps its last good form.
    bool isChanged = sources.haveChanged() && buildSources();
    if (now - lastPictureLook >= pictureLookMillis) {
        lastPictureLook = now;
        if (pictures.haveChanged(game)) {
            game.reloadsurfaces(); // also those that the game itself made
            isChanged = true;
        }
    }
    if (isChanged)
        readAnew();
}

bool Workbench::buildSources()
{
    const bool isChanged = sources.build();
    faultsAreStale = true;
    for (const std::string& each : sources.getReports())
        std::cerr << each;
    return isChanged;
}

/// Shows errors in text, lines that failed when they were read, and missing files.
void Workbench::showFaults()
{
    const std::vector<std::string>& failures = origins.getFailures();
    if (!faultsAreStale && printedFailures == failures.size())
        return;
    faultsAreStale = false;
    for (; printedFailures < failures.size(); ++printedFailures)
        std::cerr << failures[printedFailures] << '\n';
    std::vector<std::string> faults = sources.getFaults();
    faults.insert(faults.end(), failures.begin(), failures.end());
    for (const auto& [message, wantedBy] : missing) {
        const std::string place = placeOf(wantedBy);
        faults.push_back(place.empty() ? message : place + ": " + message);
    }
    notices.setFaults(std::move(faults));
}

void Workbench::readAnew()
{
    state.keep();
    screenChooser.close(); // its screens may be gone
    if (recorder)
        recorder->readAnew();
    if (!heldPicture)
        heldPicture = copyImage(game.getScreenImage());
    game.recreateScreenList();
    game.beginFontsAnew();
    origins.clear();
    printedFailures = 0;
    missing.clear();
    messagePlaces.clear();
    faultsAreStale = true;
    const Swapped reading(isReading, true);
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

} // namespace tgx

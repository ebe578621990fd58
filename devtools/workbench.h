#pragma once

#include "devtools/devtools.h"
#include "devtools/host.h"
#include "devtools/inspector.h"
#include "devtools/kept_state.h"
#include "devtools/notices.h"
#include "devtools/origins.h"
#include "devtools/overlay.h"
#include "devtools/pictures.h"
#include "devtools/recorder.h"
#include "devtools/screen_chooser.h"
#include "devtools/sources.h"
#include "player/message_places.h"

#include <chrono>
#include <map>
#include <optional>

namespace tgx {

/// The implementation of DevTools: sits between game and host, and carries out the keys.
class Workbench : public HostWatcher {
public:
    Workbench(AMainWin& game, DevToolsOptions options);
    ~Workbench() override;

    bool takesInput(const InputQueue::Event& event) override;
    void tickBegins(const InputQueue& next, bool takesNew) override;
    void frameBegins() override;
    const Image& pictureOf(const Image& screen, std::span<const tagRECT> changed) override;
    void showMessage(const CString& text, const std::string& cause) override;

    const Notices& getNotices() const { return notices; }
    const Origins& getOrigins() const { return origins; }

private:
    using Clock = std::chrono::steady_clock;

    void keyPressed(int code);
    void switchFullScreen();
    void switchScreenList();
    std::string placeOf(const std::optional<ScriptPlace>& place) const;
    void tellWritten(const std::string& what, const std::string& path, bool isWritten);
    void savePicture();
    void switchRecorder();
    void saveRecording();
    void lookForChanges();
    void readAnew();
    bool buildSources();
    void showFaults();
    std::string outPath(const char* stem, const char* ending) const;
    void measure(const Image& screen, std::span<const tagRECT> changed);

    AMainWin& game;
    const DevToolsOptions options;
    Sources sources;
    Origins origins;
    Inspector inspector;
    ScreenChooser screenChooser;
    Notices notices;
    std::optional<Recorder> recorder;
    InterfaceState state;
    Overlay overlay;

    WatchingHost* host = nullptr; // owned by displayhost's use
    int fullScreenBefore = 0;     // restored at the end, because the game stores it in its settings
    bool isReading = false;       // during a reload, when the game's startup may run frames

    FrameCost cost;     // of the last complete frame
    FrameCost measured; // of the frame that is being shown
    double averageMicros = 0;
    MessagePlaces messagePlaces;
    /// What is missing since the last read, with the line that wants it.
    std::map<std::string, std::optional<ScriptPlace>> missing;
    std::size_t printedFailures = 0;
    bool faultsAreStale = false; // the panel must be updated
    Clock::time_point frameStart;
    std::uint32_t lastLook = 0; // milliseconds of timeGetTime
    std::uint32_t lastPictureLook = 0;
    WatchedPictures pictures;
    ImageRef heldPicture; // shown while screens are restored, so that they do not flash up
};

} // namespace tgx

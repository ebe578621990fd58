#pragma once

#include "devtools/recording.h"
#include "devtools/spot.h"
#include "platform/display/input_queue.h"

#include <array>
#include <bitset>
#include <optional>
#include <string>
#include <vector>

class AMainWin;

namespace tgx {

/// Records input as an events file for tgx play: by the id of the target window if that has the same effect,
/// else as moves and transitions. It keeps track of where the pointer will be during playback, which is the
/// middle of a window when the user pointed anywhere on it.
class Recorder {
public:
    /// heading is the comment lines at the start of the file. Does not own game.
    Recorder(AMainWin& game, std::string heading);
    /// Called before each tick. If it takes input, it takes it from the head of next.
    void tickBegins(const InputQueue& next, bool takesInput);
    /// Called when the interface is reloaded. Its state is restored in the following ticks, so screens that
    /// open before the next input are not recorded.
    void readAnew();
    /// Returns the whole file so far. Does not access the game.
    std::string events() const;

private:
    using Step = RecordedStep;
    /// Where the pointer will be during playback.
    struct PlaybackPointer {
        ScreenPoint point;
        std::optional<ScreenPoint> realPoint = {}; // where the real pointer was at that time
        bool keysFollowed = false;                 // keys have been pressed since
        int movesOnList = 0;                       // after the second move the hot row is known
    };
    /// A press of the left button that may become a click.
    struct Press {
        long tick;
        Spot spot;
        PointingLine click;
        std::vector<Step> stepsIfNoClick;
        std::optional<PlaybackPointer> playbackIfNoClick;
    };
    /// Where the real pointer has come to rest, if the playback's pointer is elsewhere.
    struct Rest {
        Step step;
        PlaybackPointer playbackPointer;
    };

    void followScreens();
    void followPointer();
    void take(const InputQueue& next);
    void pointerMoved();
    void press(MouseButton button);
    void release(MouseButton button);
    void doubleClick(MouseButton button);
    void cancel(MouseButton button);
    void wheel(bool up);
    void key(const InputQueue::Event& event);
    void hold(const InputQueue::Event& event);
    void noteRest();
    bool noteIfLost(const std::string& what);

    void addTransition(std::string line)
    {
        steps.push_back({.kind = Step::Kind::Transition, .tick = tick, .line = std::move(line)});
    }
    Step pointingStep(const PointingLine& line) const;
    void point(PointerAct act);
    void pointForKeys();
    void pointAtHotCell(const Spot& spot);
    void addPointing(const Spot& spot);
    bool isPlaybackOn(const Spot& spot) const;
    void giveUpClick();

    AMainWin& game;
    std::string opening; // first lines of the file
    std::vector<Step> steps;
    long tick = -1; // present tick
    ScreenPoint pointer;
    long arrival = -1;                              // tick in which the pointer reached its position
    std::optional<PlaybackPointer> playbackPointer; // nothing: unknown
    std::optional<Rest> rest;
    std::optional<Press> pressed;
    std::bitset<3> heldButtons;
    std::array<std::optional<std::size_t>, 3> lostPresses; // indices of their steps
    // Ids as written in events lines, or "none".
    std::string shownScreen;
    std::string shownPopup;
    bool isRestoring = false; // after a reload, until the next input
};

} // namespace tgx

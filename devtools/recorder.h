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

/// Writes down input as an events file for tgx play: by the id of the window that is meant where that says
/// the same, else as moves and transitions. It follows where the pointer would be when the file is played,
/// which is the middle of a window where the person pointed somewhere on it.
class Recorder {
public:
    /// heading: the first lines of the file, comments. game is not owned.
    Recorder(AMainWin& game, std::string heading);
    /// Before each tick; what stands at the head of next is what it takes.
    void tickBegins(const InputQueue& next, bool takesInput);
    /// The interface has been taken down and read again, and comes back to where it was in the ticks behind
    /// this: screens that open before the next input are not written.
    void readAnew();
    /// The whole file so far. Does not touch the game.
    std::string events() const;

private:
    using Step = RecordedStep;
    /// Where the pointer is in the playing.
    struct Played {
        ScreenPoint point;
        std::optional<ScreenPoint> stoodFor = {}; // where it was here
        bool hasKeys = false;                     // have come since
        int movesOnList = 0;                      // behind the second the hot row is known
    };
    /// A press of the left button that may become a click.
    struct Press {
        long tick;
        Spot spot;
        PointingLine click;
        std::vector<Step> raw; // what it is otherwise
        std::optional<Played> rawPlayed;
    };
    /// Where the pointer has come to rest, other than where it would be.
    struct Rest {
        Step step;
        Played played;
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
    bool isLost(const std::string& what);

    void addTransition(std::string line)
    {
        steps.push_back({.kind = Step::Kind::Transition, .tick = tick, .line = std::move(line)});
    }
    Step pointingStep(const PointingLine& line) const;
    void point(PointerAct act);
    void pointForKeys();
    void pointAtHotCell(const Spot& spot);
    void addPointing(const Spot& spot);
    bool isPlayedOn(const Spot& spot) const;
    void giveUpClick();

    AMainWin& game;
    std::string opening; // the first lines
    std::vector<Step> steps;
    long tick = -1; // the present one
    ScreenPoint pointer;
    long arrival = -1;            // tick in which the pointer came there
    std::optional<Played> played; // nothing: not known
    std::optional<Rest> rest;
    std::optional<Press> pressed;
    std::bitset<3> heldButtons;
    std::array<std::optional<std::size_t>, 3> lostPresses; // steps
    // Ids as a line has them, or none.
    std::string shownScreen;
    std::string shownPopup;
    bool comesBack = false; // the interface, behind readAnew
};

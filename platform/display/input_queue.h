#pragma once

#include "platform/export.h"

#include <bitset>
#include <cstdint>
#include <deque>
#include <optional>

class ddwin;

enum class MouseButton : std::uint8_t { Left, Right, Middle };

/// What a person did, in order. One transition is handed out a tick, and every pointer move that stands in
/// front of it, so that a press and its release between two ticks are two ticks and nothing is lost.
class TGX_PLATFORM_API InputQueue {
public:
    enum class Kind : std::uint8_t {
        Move,
        Press,
        Release,
        DoubleClick,
        Cancel,
        WheelUp,
        WheelDown,
        Key,
        Hold
    };
    struct Event {
        Kind kind;
        MouseButton button = MouseButton::Left;
        std::uint8_t code = 0;
        std::uint8_t secondCode = 0;
        char character = 0;
        bool repeat = false;
        bool held = false;     // of Hold
        bool isPlaced = false; // of buttons and notches: x and y say where the pointer was
        std::int16_t x = 0;
        std::int16_t y = 0;
        std::uint32_t time = 0;
    };
    static bool isTransition(const Event& event)
    {
        return event.kind != Kind::Move && event.kind != Kind::Hold && event.kind != Kind::Cancel;
    }
    /// Where the pointer is when a button or the wheel is used, screen pixels. The tick that takes the event
    /// puts it there, whatever has moved it since.
    struct Place {
        int x;
        int y;
    };

    /// Time is that of timeGetTime when the event came in, for what may grow stale.
    void move(int x, int y);
    void press(MouseButton button, std::optional<Place> at = {});
    void release(MouseButton button, std::optional<Place> at = {});
    /// Sets its flag alone; from the next tick on the button counts as pressed, until its release.
    void doubleClick(MouseButton button, std::optional<Place> at = {});
    /// The button is no longer held, and that is no click: no release follows.
    void cancel(MouseButton button);
    void wheel(bool up, std::optional<Place> at = {});
    /// code 0 is no key. secondCode goes to keyCode2. repeat: the platform's repeat of a held key.
    void key(std::uint8_t code, char character, std::uint8_t secondCode = 0, bool repeat = false);
    /// An event of another queue, after those that wait here.
    void add(const Event& event);
    /// The oldest one, out of the queue. There has to be one.
    Event take();
    /// Those that wait, the oldest first.
    const std::deque<Event>& getEvents() const { return events; }
    /// How many of them the next tick takes: up to the first transition. A release waits for one tick after
    /// the double click that it ends.
    std::size_t countForNextTick() const;
    bool empty() const { return events.empty(); }
    void clear();

    /// Begins a tick: the flags of one tick and the key fields of window go back to 0, the moves at the head
    /// are applied, then one transition. A key counts as held until endTick.
    void beginTick(ddwin& window);
    /// Ends the tick: a key that no hold() keeps is no longer held.
    void endTick(ddwin& window);
    /// A key that is held, or not, from now on, apart from its events.
    void hold(ddwin& window, std::uint8_t code, bool held);
    /// The same in the order of the events: behind those that wait, with the tick that takes the next
    /// transition. So Shift still counts as held for a key that was typed with it, when both have been let go
    /// before the tick.
    void holdInTurn(std::uint8_t code, bool held);
    /// Drops the moves that stand in front of the first transition: the pointer has been put elsewhere since.
    void dropMovesAtHead();
    /// Drops moves, wheel notches and repeats that have waited for longer than this many milliseconds;
    /// presses, releases and keys stay.
    void dropStale(std::uint32_t now, std::uint32_t oldest);

    /// Drops the transitions from that event on, counted from the oldest: nobody meant them for what is shown
    /// by now. A button that was held before them is cancelled, and one that went down with them stays up,
    /// also when its release comes later.
    void dropFrom(std::size_t first);
    /// Drops all of them in this way, and cancels the buttons that window holds down by what it has taken
    /// already: their releases are dropped too.
    void dropAll(ddwin& window);

private:
    static bool isMove(const Event& event) { return event.kind == Kind::Move; }
    void addNow(Event event);
    void apply(ddwin& window, const Event& event);
    std::deque<Event> events;
    std::uint8_t tickKey = 0; // counts as held until the tick has ended, 0 for none
    bool tickKeyWasHeld = false;
    std::bitset<3> droppedPresses; // buttons whose release is dropped too
    std::bitset<3> doubleClicked;  // buttons that count as pressed from the next tick on
};

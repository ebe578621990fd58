#pragma once

#include "platform/display/input_queue.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

/// Input that events have queued. It goes over to the host's queue tick by tick, the moves at the head and
/// one transition at a time: the host's queue does not tell what a tick took, so it never holds more than
/// that.
class PlayedInput {
public:
    enum class Kind { Move, Press, Release, Other, Key };
    struct Entry {
        Kind kind;
        std::string name; // as an events line would say it: "press left"
        std::string place;
        std::function<void(InputQueue&)> queue;
        int x = 0; // of a move
        int y = 0;
    };
    /// What the next tick takes, if it takes new input.
    struct Next {
        std::optional<Entry> move; // the last of them
        std::optional<Entry> transition;
    };

    /// FILE:LINE of the events that follow.
    void setPlace(const std::string& text) { place = text; }
    void move(int x, int y);
    void press(MouseButton button);
    void release(MouseButton button);
    void doubleClick(MouseButton button);
    void wheel(bool up);
    void key(std::uint8_t code, char character);

    bool empty() const { return waiting.empty(); }
    void clear();
    /// Before a tick. queue: the host's, empty when the tick before took what it held.
    const Next& handTo(InputQueue& queue);

private:
    void add(Kind kind, std::string name, std::function<void(InputQueue&)> queue);

    std::deque<Entry> waiting;
    Next next;
    std::string place;
};

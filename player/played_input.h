#pragma once

#include "platform/display/input_queue.h"

#include <deque>
#include <functional>
#include <optional>
#include <string>

namespace tgx {

/// Input that events have queued. Before each tick the moves at the head and one transition are passed to the
/// host's queue. It never holds more than that, because it does not report what a tick took.
class PlayedInput {
public:
    enum class Kind { Move, Press, Release, Other, Key };
    struct Entry {
        Kind kind;
        std::string name; // as in an events line: "press left"
        std::string place;
        std::function<void(InputQueue&)> queue;
        int x = 0; // of a move, screen pixels
        int y = 0;
    };
    /// The input for the next tick, if it takes new input.
    struct Next {
        std::optional<Entry> move; // the last of them
        std::optional<Entry> transition;
    };

    /// Sets the FILE:LINE of the events that follow.
    void setPlace(const std::string& text) { place = text; }
    void move(int x, int y);
    void press(MouseButton button);
    void release(MouseButton button);
    void doubleClick(MouseButton button);
    void wheel(bool up);
    void key(std::uint8_t code, char character);

    bool empty() const { return waiting.empty(); }
    void clear();
    /// Passes the input for the next tick to the host's queue, which is empty if the last tick took its
    /// content.
    const Next& handTo(InputQueue& queue);

private:
    void add(Kind kind, std::string name, std::function<void(InputQueue&)> queue);

    std::deque<Entry> waiting;
    Next next;
    std::string place;
};

} // namespace tgx

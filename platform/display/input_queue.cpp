#include "platform/display/input_queue.h"

#include "platform/display/ddwin.h"
#include "platform/system/clock.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <utility>

namespace {

std::int16_t coordinate(int value)
{
    using Limits = std::numeric_limits<std::int16_t>;
    return static_cast<std::int16_t>(std::clamp<int>(value, Limits::min(), Limits::max()));
}

/// References to the three fields of a button in ddwin.
struct ButtonFields {
    int& down;
    int& up;
    int& doubleClick;
};

ButtonFields fieldsOf(ddwin& window, MouseButton button)
{
    switch (button) {
    case MouseButton::Right:
        return {window.rButtonDown, window.rButtonUp, window.rButtonDblClk};
    case MouseButton::Middle:
        return {window.mButtonDown, window.mButtonUp, window.mButtonDblClk};
    case MouseButton::Left:
        break;
    }
    return {window.lButtonDown, window.lButtonUp, window.lButtonDblClk};
}

void clearOneTickFields(ddwin& window)
{
    for (MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        fieldsOf(window, button).up = 0;
        fieldsOf(window, button).doubleClick = 0;
    }
    window.wheelUp = 0;
    window.wheelDown = 0;
    window.keyCode = 0;
    window.keyCode2 = 0;
    window.keyChar = 0;
}

InputQueue::Event placed(InputQueue::Event event, std::optional<InputQueue::Place> at)
{
    if (at) {
        event.isPlaced = true;
        event.x = coordinate(at->x);
        event.y = coordinate(at->y);
    }
    return event;
}

void movePointer(ddwin& window, const InputQueue::Event& event)
{
    window.prevMouseX = window.mouseX;
    window.prevMouseY = window.mouseY;
    window.mouseX = event.x;
    window.mouseY = event.y;
}

} // namespace

void InputQueue::addTimed(Event event)
{
    event.time = timeGetTime();
    add(event);
}

void InputQueue::add(const Event& event)
{
    const auto button = static_cast<std::size_t>(event.button);
    if (event.kind == Kind::Release && droppedPresses.test(button)) {
        droppedPresses.reset(button);
        return;
    }
    if (event.kind == Kind::Press || event.kind == Kind::DoubleClick)
        droppedPresses.reset(button);
    events.push_back(event);
}

void InputQueue::move(int x, int y)
{
    addTimed({.kind = Kind::Move, .x = coordinate(x), .y = coordinate(y)});
}

void InputQueue::press(MouseButton button, std::optional<Place> at)
{
    addTimed(placed({.kind = Kind::Press, .button = button}, at));
}

void InputQueue::release(MouseButton button, std::optional<Place> at)
{
    addTimed(placed({.kind = Kind::Release, .button = button}, at));
}

void InputQueue::doubleClick(MouseButton button, std::optional<Place> at)
{
    addTimed(placed({.kind = Kind::DoubleClick, .button = button}, at));
}

void InputQueue::cancel(MouseButton button)
{
    addTimed({.kind = Kind::Cancel, .button = button});
}

void InputQueue::wheel(bool up, std::optional<Place> at)
{
    addTimed(placed({.kind = up ? Kind::WheelUp : Kind::WheelDown}, at));
}

void InputQueue::key(std::uint8_t code, char character, std::uint8_t secondCode, bool repeat)
{
    addTimed({.kind = Kind::Key,
              .code = code,
              .secondCode = secondCode,
              .character = character,
              .repeat = repeat});
}

void InputQueue::holdInTurn(std::uint8_t code, bool held)
{
    addTimed({.kind = Kind::Hold, .code = code, .held = held});
}

void InputQueue::beginTick(ddwin& window)
{
    endTick(window); // in case the previous tick was not ended
    clearOneTickFields(window);
    std::size_t count = countForNextTick();
    const std::bitset<3> pressed = std::exchange(doubleClicked, {});
    for (MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        if (pressed.test(static_cast<std::size_t>(button)))
            fieldsOf(window, button).down = 1;
    }
    for (; count > 0; --count)
        apply(window, take());
}

std::size_t InputQueue::countForNextTick() const
{
    const auto transition = std::find_if(events.begin(), events.end(), isTransition);
    const auto count = static_cast<std::size_t>(transition - events.begin());
    const bool isTaken =
        transition != events.end() && !(transition->kind == Kind::Release &&
                                        doubleClicked.test(static_cast<std::size_t>(transition->button)));
    return count + isTaken;
}

void InputQueue::clear()
{
    events.clear();
    doubleClicked.reset();
    droppedPresses.reset();
}

InputQueue::Event InputQueue::take()
{
    const Event event = events.front();
    events.pop_front();
    return event;
}

void InputQueue::apply(ddwin& window, const Event& event)
{
    if (event.isPlaced && (event.x != window.mouseX || event.y != window.mouseY))
        movePointer(window, event);
    switch (event.kind) {
    case Kind::Move:
        movePointer(window, event);
        break;
    case Kind::Press:
        fieldsOf(window, event.button).down = 1;
        break;
    case Kind::Release:
        fieldsOf(window, event.button).down = 0;
        fieldsOf(window, event.button).up = 1;
        break;
    case Kind::DoubleClick:
        fieldsOf(window, event.button).doubleClick = 1;
        doubleClicked.set(static_cast<std::size_t>(event.button));
        break;
    case Kind::Cancel:
        fieldsOf(window, event.button).down = 0;
        doubleClicked.reset(static_cast<std::size_t>(event.button));
        if (event.button == MouseButton::Left) {
            window.pressCancelled = 1;
            window.mouseDownCount = 0; // a press in the same tick starts counting again
        }
        break;
    case Kind::WheelUp:
        window.wheelUp = 1;
        break;
    case Kind::WheelDown:
        window.wheelDown = 1;
        break;
    case Kind::Key:
        window.keyCode = event.code;
        window.keyCode2 = event.secondCode;
        window.keyChar = event.character;
        tickKey = event.code;
        tickKeyWasHeld = window.keyDown[event.code] != 0;
        if (event.code != 0)
            window.keyDown[event.code] = 1;
        break;
    case Kind::Hold:
        hold(window, event.code, event.held);
        break;
    }
}

void InputQueue::endTick(ddwin& window)
{
    if (tickKey != 0)
        window.keyDown[tickKey] = tickKeyWasHeld;
    tickKey = 0;
}

void InputQueue::hold(ddwin& window, std::uint8_t code, bool held)
{
    if (code == 0)
        return;
    if (code == tickKey)
        tickKeyWasHeld = held; // its event keeps it held until the tick ends
    else
        window.keyDown[code] = held;
}

void InputQueue::dropFrom(std::size_t first)
{
    std::size_t kept = first;
    for (std::size_t i = first; i < events.size(); ++i) {
        Event event = events[i];
        const auto button = static_cast<std::size_t>(event.button);
        if (event.kind == Kind::Press || event.kind == Kind::DoubleClick) {
            droppedPresses.set(button);
            continue;
        }
        if (event.kind == Kind::Release) {
            if (droppedPresses.test(button)) {
                droppedPresses.reset(button);
                continue;
            }
            event.kind = Kind::Cancel;
        }
        if (!isTransition(event))
            events[kept++] = event;
    }
    events.resize(std::min(kept, events.size()));
}

void InputQueue::dropAll(ddwin& window)
{
    for (MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        const auto index = static_cast<std::size_t>(button);
        if (!fieldsOf(window, button).down && !doubleClicked.test(index))
            continue;
        apply(window, {.kind = Kind::Cancel, .button = button});
        droppedPresses.set(index);
    }
    dropFrom(0);
}

void InputQueue::dropMovesAtHead()
{
    const auto end = std::find_if(events.begin(), events.end(), isTransition);
    events.erase(std::remove_if(events.begin(), end, isMove), end);
}

void InputQueue::dropStale(std::uint32_t now, std::uint32_t oldest)
{
    if (events.empty())
        return;
    const auto isStale = [&](const Event& event) { return now - event.time > oldest; };
    std::erase_if(events, [&](const Event& event) {
        const bool isWheel = event.kind == Kind::WheelUp || event.kind == Kind::WheelDown;
        return isStale(event) && (isWheel || event.repeat);
    });
    // The last of several stale moves is kept, because the events after it start from that position.
    auto end = events.begin(); // end of the kept events
    for (const Event& event : events) {
        const bool isFirst = end == events.begin();
        if (isFirst || !isMove(event) || !isMove(*std::prev(end)) || !isStale(*std::prev(end)))
            ++end;
        *std::prev(end) = event;
    }
    events.erase(end, events.end());
}

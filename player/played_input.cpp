#include "player/played_input.h"

#include "player/keys.h"

#include <cstdio>

namespace tgx {

namespace {

/// Returns a key code with at least two digits, as events lines write it.
std::string codeText(std::uint8_t code)
{
    char text[8];
    std::snprintf(text, sizeof text, "%02d", code);
    return text;
}

} // namespace

void PlayedInput::add(Kind kind, std::string name, std::function<void(InputQueue&)> queue)
{
    waiting.push_back({kind, std::move(name), place, std::move(queue)});
}

void PlayedInput::move(int x, int y)
{
    add(Kind::Move, "move", [x, y](InputQueue& queue) { queue.move(x, y); });
    waiting.back().x = x;
    waiting.back().y = y;
}

void PlayedInput::press(MouseButton button)
{
    add(button == MouseButton::Left ? Kind::Press : Kind::Other, std::string("press ") + buttonName(button),
        [button](InputQueue& queue) { queue.press(button); });
}

void PlayedInput::release(MouseButton button)
{
    add(button == MouseButton::Left ? Kind::Release : Kind::Other,
        std::string("release ") + buttonName(button), [button](InputQueue& queue) { queue.release(button); });
}

void PlayedInput::doubleClick(MouseButton button)
{
    add(Kind::Other, std::string("doubleclick ") + buttonName(button),
        [button](InputQueue& queue) { queue.doubleClick(button); });
}

void PlayedInput::wheel(bool up)
{
    add(Kind::Other, up ? "wheel up" : "wheel down", [up](InputQueue& queue) { queue.wheel(up); });
}

void PlayedInput::key(std::uint8_t code, char character)
{
    add(Kind::Key, "key " + codeText(code),
        [code, character](InputQueue& queue) { queue.key(code, character); });
}

void PlayedInput::clear()
{
    waiting.clear();
    next = {};
}

const PlayedInput::Next& PlayedInput::handTo(InputQueue& queue)
{
    if (queue.empty())
        next = {};
    while (!waiting.empty() && !next.transition) {
        Entry& entry = waiting.front();
        entry.queue(queue);
        (entry.kind == Kind::Move ? next.move : next.transition) = std::move(entry);
        waiting.pop_front();
    }
    return next;
}

} // namespace tgx

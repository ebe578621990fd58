#pragma once

#include "platform/display/input_queue.h"

#include <cctype>
#include <sstream>
#include <string>

/// Queues input in words: "move X Y", "press BUTTON", "release BUTTON", "doubleclick BUTTON", "cancel
/// BUTTON", "wheel up|down", "key CODE [CHARACTER [SECOND CODE]]", "pad CODE", "hold CODE", "down CODE
/// [CHARACTER]" (a hold and its key, in the order of a real window) and "up CODE". Codes and characters are
/// numbers or letters. Returns false if the words mean no input.
inline bool queueInput(InputQueue& input, const std::string& action)
{
    std::istringstream words(action);
    std::string what, which;
    words >> what;
    const auto code = [&] {
        which = "0";
        words >> which;
        return static_cast<std::uint8_t>(std::isalpha(which[0]) ? which[0] : std::stoi(which));
    };
    const auto button = [&] {
        words >> which;
        return which == "right"    ? MouseButton::Right
               : which == "middle" ? MouseButton::Middle
                                   : MouseButton::Left;
    };
    if (int x = 0, y = 0; what == "move" && words >> x >> y)
        input.move(x, y);
    else if (what == "press")
        input.press(button());
    else if (what == "release")
        input.release(button());
    else if (what == "doubleclick")
        input.doubleClick(button());
    else if (what == "cancel")
        input.cancel(button());
    else if (what == "wheel" && words >> which)
        input.wheel(which == "up");
    else if (what == "hold" || what == "up")
        input.holdInTurn(code(), what == "hold");
    else if (what == "down" || what == "key" || what == "pad") {
        const std::uint8_t key = code();
        const auto character = static_cast<char>(code());
        if (what == "down")
            input.holdInTurn(key, true);
        input.key(key, character, what == "pad" ? key : code());
    } else
        return false;
    return true;
}

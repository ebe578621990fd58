#pragma once

#include <SDL.h>

#include <array>
#include <cstdint>
#include <vector>

class InputQueue;

/// Game controllers, as many as are plugged in, as the keys: directions, Return, Esc, Home and End. A held
/// direction repeats as a held key does.
class SdlController {
public:
    ~SdlController();
    /// True when the event was one of a controller.
    bool handle(const SDL_Event& event, InputQueue& input);
    /// Sends the repeats that are due. now in milliseconds.
    void repeat(std::uint32_t now, InputQueue& input);
    /// Lets go of everything, as when the window loses the focus.
    void letGo(InputQueue& input);
    void closeAll();

private:
    enum Source : std::uint8_t { Pad = 1, Stick = 2 };
    struct Direction {
        std::uint8_t code;
        std::uint8_t heldBy = 0; // sources
        std::uint32_t nextRepeat = 0;
    };
    void setDirection(Direction& direction, Source source, bool held, InputQueue& input);
    void moveStick(Direction& negative, Direction& positive, int value, InputQueue& input);

    std::array<Direction, 4> directions = {{{0x25}, {0x26}, {0x27}, {0x28}}}; // left, up, right, down
    std::vector<SDL_GameController*> open;
};

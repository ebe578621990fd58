#pragma once

#include "platform/display/keys.h"

#include <SDL.h>

#include <array>
#include <cstdint>
#include <vector>

class InputQueue;

/// Translates all connected game controllers to keys: directions, Return, Esc, Home and End. A held direction
/// repeats like a held key. A key is released when no controller holds it any more.
class SdlController {
public:
    ~SdlController();
    /// Handles an event. Returns whether it came from a controller.
    bool handle(const SDL_Event& event, InputQueue& input);
    /// Sends the key repeats that are due. now is in milliseconds.
    void repeat(std::uint32_t now, InputQueue& input);
    /// Releases all keys, for a window that loses the focus.
    void releaseAll(InputQueue& input);
    void closeAll();

private:
    enum Source : std::uint8_t { Button = 1, Stick = 2 };
    struct Key {
        std::uint8_t code;
        bool repeats = false;
        std::uint8_t heldBy = 0; // set of Source
        std::uint32_t nextRepeat = 0;
    };
    enum Place : std::size_t { Left, Up, Right, Down, Return, Esc, Home, End };
    struct Pad {
        SDL_JoystickID id;
        SDL_GameController* device = nullptr;
        // Indexed by Place.
        std::array<Key, 8> keys = {{{VK_LEFT, true},
                                    {VK_UP, true},
                                    {VK_RIGHT, true},
                                    {VK_DOWN, true},
                                    {VK_RETURN},
                                    {VK_ESCAPE},
                                    {VK_HOME},
                                    {VK_END}}};
    };
    static Key* keyOfButton(Pad& pad, std::uint8_t button);
    Pad& padOf(SDL_JoystickID id);
    void add(int deviceIndex);
    void remove(SDL_JoystickID id, InputQueue& input);
    void setKey(Key& key, Source source, bool held, InputQueue& input);
    void moveStick(Key& negative, Key& positive, int value, InputQueue& input);
    void releaseAll(Pad& pad, InputQueue& input);
    bool isHeld(std::uint8_t code) const;

    std::vector<Pad> pads;
};

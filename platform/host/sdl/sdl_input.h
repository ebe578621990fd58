#pragma once

#include "platform/display/input_queue.h"
#include "platform/host/sdl/screen_fit.h"

#include <SDL.h>

#include <array>
#include <bitset>
#include <climits>
#include <cstdint>
#include <optional>
#include <string_view>

/// Turns the window's mouse and key events into transitions of the input queue.
class SdlInput {
public:
    explicit SdlInput(InputQueue& target) : queue(target) {}

    /// Where the screen lies in the window, in the units of mouse events.
    void setFit(const ScreenFit& newFit) { fit = newFit; }
    const ScreenFit& getFit() const { return fit; }

    void handle(const SDL_Event& event);
    /// Behind the last event there is: a key that waited for its character goes without.
    void flush() { sendWaitingKey(0); }
    /// Lets go of all that is held, as when the window loses the focus. No button clicks by that.
    void letGo();
    /// The pointer has left the window: it is over nothing, unless a button holds it.
    void pointerLeft();
    /// The toolkit has put the pointer to this place of the screen. Motion that began before comes no more.
    void pointerWasMoved(int screenX, int screenY, std::uint32_t now);

private:
    void handleMotion(const SDL_MouseMotionEvent& motion);
    void handleButton(const SDL_MouseButtonEvent& event);
    void handleKeyDown(const SDL_KeyboardEvent& event);
    void handleKeyUp(const SDL_KeyboardEvent& event);
    bool isHeld(std::uint8_t code) const;
    void setCode(SDL_Scancode key, std::uint8_t code);
    void handleText(std::string_view text);
    void sendWaitingKey(char character);
    void moveTo(ScreenFit::Point place);
    void movePointer(int windowX, int windowY);
    ScreenFit::Point pointerAt(int windowX, int windowY) const;
    std::optional<InputQueue::Place> placeOf(int windowX, int windowY) const;
    bool isSecondClick(const SDL_MouseButtonEvent& event);

    InputQueue& queue;
    ScreenFit fit;
    ScreenFit::Point last = {INT_MIN, INT_MIN}; // what the queue knows last; at first nothing
    std::bitset<3> heldButtons;
    // The last press, window units. A second one at its place in time makes a double click of the two.
    struct Press {
        int button = -1;
        int x = 0;
        int y = 0;
        bool wasSecond = false;
    };
    Press lastPress;
    // Virtual key codes of the keys that are down, by scancode; 0 for one that is not.
    std::array<std::uint8_t, SDL_NUM_SCANCODES> codes{};
    // A key event waits for the text event right behind it, so that one transition has code and character.
    std::uint8_t waitingKey = 0;
    bool waitingIsRepeat = false;
    bool waitingIsCommand = false; // held with Ctrl, Alt or Super: it types nothing
    // The motion event that moving the pointer brings, in window units, until it has come.
    bool awaitsOwnMotion = false;
    ScreenFit::Point ownMotion = {0, 0};
    std::uint32_t ownMotionSince = 0;
};

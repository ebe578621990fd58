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

/// Translates the window's mouse and key events to events of the input queue.
class SdlInput {
public:
    explicit SdlInput(InputQueue& target) : queue(target) {}

    /// Sets the position of the screen in the window, in the units of mouse events.
    void setFit(const ScreenFit& newFit) { fit = newFit; }
    const ScreenFit& getFit() const { return fit; }

    void handle(const SDL_Event& event);
    /// Must be called after the last pending event. Sends a key that was waiting for its character without
    /// one.
    void flush() { sendWaitingKey(0); }
    /// Releases all keys and cancels all buttons without a click, for a window that loses the focus.
    void releaseAll();
    /// Must be called when the pointer has left the window. It is over nothing then, unless a button is held.
    void pointerLeft();
    /// Must be called when the toolkit has moved the pointer to this position on the screen. Motion events
    /// from before are ignored.
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
    ScreenFit::Point last = {INT_MIN, INT_MIN}; // last position sent to the queue
    std::bitset<3> heldButtons;
    // The last press, in window units. A second press soon after at the same position is a double click.
    struct Press {
        int button = -1;
        int x = 0;
        int y = 0;
        bool wasSecond = false;
    };
    Press lastPress;
    // Virtual key codes of the keys that are down, indexed by scancode; 0 for a key that is up.
    std::array<std::uint8_t, SDL_NUM_SCANCODES> codes{};
    // A key event waits for the text event that follows it, so that one transition has both code and
    // character.
    std::uint8_t waitingKey = 0;
    bool waitingIsRepeat = false;
    bool waitingIsCommand = false; // pressed with Ctrl, Alt or Super, so it types nothing
    // The motion event, in window units, that is expected because the toolkit moved the pointer.
    bool awaitsOwnMotion = false;
    ScreenFit::Point ownMotion = {0, 0};
    std::uint32_t ownMotionSince = 0;
};

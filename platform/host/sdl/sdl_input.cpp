#include "platform/host/sdl/sdl_input.h"

#include "platform/display/keys.h"
#include "platform/host/sdl/sdl_keys.h"
#include "platform/media/encoding.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <utility>

namespace {

/// How long to wait for the motion event of a pointer move of the toolkit. Not every system sends one.
constexpr std::uint32_t ownMotionMillis = 100;

/// Maximum distance between the presses of a double click along each axis, in window units.
constexpr int doubleClickRadius = 4;

/// Reported position of a pointer that is not over the screen.
constexpr ScreenFit::Point offScreen{-1, -1};

/// Returns whether a key with these modifiers is a command of the system or the program and types nothing. On
/// many keyboards, right Alt is AltGr, which does type characters; some systems report it together with Ctrl.
bool isCommand(unsigned modifiers)
{
    const bool hasAltGr = modifiers & (KMOD_RALT | KMOD_MODE);
    return (modifiers & (KMOD_LALT | KMOD_GUI)) || ((modifiers & KMOD_CTRL) && !hasAltGr);
}

std::optional<MouseButton> buttonOf(std::uint8_t button)
{
    switch (button) {
    case SDL_BUTTON_LEFT:
        return MouseButton::Left;
    case SDL_BUTTON_RIGHT:
        return MouseButton::Right;
    case SDL_BUTTON_MIDDLE:
        return MouseButton::Middle;
    default:
        return std::nullopt;
    }
}

} // namespace

void SdlInput::handle(const SDL_Event& event)
{
    if (event.type != SDL_TEXTINPUT)
        flush();
    switch (event.type) {
    case SDL_MOUSEMOTION:
        handleMotion(event.motion);
        break;
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
        handleButton(event.button);
        break;
    case SDL_MOUSEWHEEL: {
        const int notches = event.wheel.direction == SDL_MOUSEWHEEL_FLIPPED ? -event.wheel.y : event.wheel.y;
        for (int i = 0; i < std::abs(notches); ++i)
            queue.wheel(notches > 0, placeOf(event.wheel.mouseX, event.wheel.mouseY));
        break;
    }
    case SDL_KEYDOWN:
        handleKeyDown(event.key);
        break;
    case SDL_KEYUP:
        handleKeyUp(event.key);
        break;
    case SDL_TEXTINPUT:
        handleText(event.text.text);
        break;
    default:
        break;
    }
}

void SdlInput::moveTo(ScreenFit::Point place)
{
    if (place.x == last.x && place.y == last.y)
        return; // still the same screen pixel, in a large window
    last = place;
    queue.move(place.x, place.y);
}

void SdlInput::handleMotion(const SDL_MouseMotionEvent& motion)
{
    if (awaitsOwnMotion) {
        const bool isOwn = std::abs(motion.x - ownMotion.x) <= 1 && std::abs(motion.y - ownMotion.y) <= 1;
        const bool isOverdue = SDL_GetTicks() - ownMotionSince > ownMotionMillis;
        awaitsOwnMotion = !isOwn && !isOverdue;
        if (!isOverdue)
            return; // caused by the toolkit's move, or older
    }
    movePointer(motion.x, motion.y);
}

/// Returns the pointer's position on the screen, or nothing while a move by the toolkit is pending.
std::optional<InputQueue::Place> SdlInput::placeOf(int windowX, int windowY) const
{
    if (awaitsOwnMotion)
        return std::nullopt;
    const ScreenFit::Point at = pointerAt(windowX, windowY);
    return InputQueue::Place{at.x, at.y};
}

/// Returns the pointer's position on the screen. Outside the screen it is offScreen or, while a button is
/// held, for example on a lever, the nearest position on the screen.
ScreenFit::Point SdlInput::pointerAt(int windowX, int windowY) const
{
    return fit.contains(windowX, windowY) || heldButtons.any() ? fit.toScreen(windowX, windowY) : offScreen;
}

void SdlInput::movePointer(int windowX, int windowY)
{
    moveTo(pointerAt(windowX, windowY));
}

void SdlInput::pointerLeft()
{
    flush();
    if (heldButtons.none())
        moveTo(offScreen);
}

/// Returns whether a press is the second one of a double click. SDL has checked the time (event.clicks), but
/// it also counts presses further away, and third and fourth clicks.
bool SdlInput::isSecondClick(const SDL_MouseButtonEvent& event)
{
    const bool isSecond = event.clicks > 1 && lastPress.button == event.button && !lastPress.wasSecond &&
                          std::abs(event.x - lastPress.x) <= doubleClickRadius &&
                          std::abs(event.y - lastPress.y) <= doubleClickRadius;
    lastPress = {event.button, event.x, event.y, isSecond};
    return isSecond;
}

void SdlInput::handleButton(const SDL_MouseButtonEvent& event)
{
    const std::optional<MouseButton> button = buttonOf(event.button);
    if (!button)
        return;
    const auto index = static_cast<std::size_t>(*button);
    if (event.state == SDL_PRESSED) {
        // A click that raises the window may arrive without a preceding motion event.
        if (!awaitsOwnMotion)
            movePointer(event.x, event.y);
        if (!fit.contains(event.x, event.y))
            return;
        if (isSecondClick(event))
            queue.doubleClick(*button, placeOf(event.x, event.y));
        else
            queue.press(*button, placeOf(event.x, event.y));
        heldButtons.set(index);
    } else if (heldButtons.test(index)) {
        if (!awaitsOwnMotion)
            movePointer(event.x, event.y);
        queue.release(*button, placeOf(event.x, event.y));
        heldButtons.reset(index);
    }
}

void SdlInput::handleKeyDown(const SDL_KeyboardEvent& event)
{
    const std::uint8_t code = virtualKeyOf(event.keysym);
    if (code == 0)
        return;
    setCode(event.keysym.scancode, code);
    waitingKey = code;
    waitingIsRepeat = event.repeat != 0;
    waitingIsCommand = isCommand(event.keysym.mod);
}

/// Releases the code with which the key went down, even if it has another code now.
void SdlInput::handleKeyUp(const SDL_KeyboardEvent& event)
{
    setCode(event.keysym.scancode, 0);
}

bool SdlInput::isHeld(std::uint8_t code) const
{
    return std::find(codes.begin(), codes.end(), code) != codes.end();
}

/// Sets the code of a pressed key, 0 when it is released. Some keys share a code, such as the two Shift keys,
/// which is held while any of them is.
void SdlInput::setCode(SDL_Scancode key, std::uint8_t code)
{
    const auto place = static_cast<std::size_t>(key);
    if (place >= codes.size() || codes[place] == code)
        return;
    const std::uint8_t old = std::exchange(codes[place], std::uint8_t{0});
    if (old != 0 && !isHeld(old))
        queue.holdInTurn(old, false);
    if (code != 0 && !isHeld(code))
        queue.holdInTurn(code, true);
    codes[place] = code;
}

void SdlInput::handleText(std::string_view text)
{
    if (!typesText(waitingKey))
        flush();
    if (waitingKey != 0 && waitingIsCommand)
        return; // some systems send the letter nevertheless
    while (!text.empty()) {
        const std::optional<char> character = to1252(takeUtf8(text));
        if (!character)
            continue;
        if (waitingKey != 0)
            sendWaitingKey(*character);
        else
            queue.key(VK_PACKET, *character);
    }
}

void SdlInput::sendWaitingKey(char character)
{
    if (waitingKey == 0)
        return;
    queue.key(waitingKey, character ? character : controlCharacterOf(waitingKey), 0, waitingIsRepeat);
    waitingKey = 0;
}

void SdlInput::releaseAll()
{
    flush();
    for (MouseButton button : {MouseButton::Left, MouseButton::Right, MouseButton::Middle}) {
        if (heldButtons.test(static_cast<std::size_t>(button)))
            queue.cancel(button);
    }
    heldButtons.reset();
    for (std::size_t key = 0; key < codes.size(); ++key)
        setCode(static_cast<SDL_Scancode>(key), 0);
}

void SdlInput::pointerWasMoved(int screenX, int screenY, std::uint32_t now)
{
    last = {screenX, screenY};
    ownMotion = fit.toWindow(screenX, screenY);
    ownMotionSince = now;
    awaitsOwnMotion = true;
}

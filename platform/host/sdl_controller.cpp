#include "platform/host/sdl_controller.h"

#include "platform/display/keys.h"
#include "platform/host/input_queue.h"
#include "platform/host/sdl_keys.h"

#include <algorithm>

namespace {

// A stick presses beyond the first value and lets go below the second, so that one held at the edge does not
// flutter.
constexpr int pressBeyond = 16000;
constexpr int releaseBelow = 12000;
constexpr std::uint32_t firstRepeatMillis = 400;
constexpr std::uint32_t nextRepeatMillis = 80;

std::uint8_t keyOfButton(std::uint8_t button)
{
    switch (button) {
    case SDL_CONTROLLER_BUTTON_A:
        return VK_RETURN;
    case SDL_CONTROLLER_BUTTON_B:
        return VK_ESCAPE;
    case SDL_CONTROLLER_BUTTON_LEFTSHOULDER:
        return VK_HOME;
    case SDL_CONTROLLER_BUTTON_RIGHTSHOULDER:
        return VK_END;
    default:
        return 0;
    }
}

int directionOfButton(std::uint8_t button)
{
    switch (button) {
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
        return 0;
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
        return 1;
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
        return 2;
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
        return 3;
    default:
        return -1;
    }
}

void typeKey(std::uint8_t code, bool repeat, InputQueue& input)
{
    input.key(code, controlCharacterOf(code), code, repeat);
}

} // namespace

SdlController::~SdlController()
{
    closeAll();
}

void SdlController::closeAll()
{
    for (SDL_GameController* controller : open)
        SDL_GameControllerClose(controller);
    open.clear();
}

bool SdlController::handle(const SDL_Event& event, InputQueue& input)
{
    switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
        if (SDL_GameController* controller = SDL_GameControllerOpen(event.cdevice.which))
            open.push_back(controller);
        return true;
    case SDL_CONTROLLERDEVICEREMOVED:
        letGo(input);
        std::erase_if(open, [&](SDL_GameController* controller) {
            if (SDL_GameControllerGetAttached(controller))
                return false;
            SDL_GameControllerClose(controller);
            return true;
        });
        return true;
    case SDL_CONTROLLERBUTTONDOWN:
    case SDL_CONTROLLERBUTTONUP: {
        const bool held = event.type == SDL_CONTROLLERBUTTONDOWN;
        const int direction = directionOfButton(event.cbutton.button);
        if (direction >= 0)
            setDirection(directions[static_cast<std::size_t>(direction)], Pad, held, input);
        else if (const std::uint8_t code = keyOfButton(event.cbutton.button)) {
            input.holdInTurn(code, held);
            if (held)
                typeKey(code, false, input);
        }
        return true;
    }
    case SDL_CONTROLLERAXISMOTION:
        if (event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTX)
            moveStick(directions[0], directions[2], event.caxis.value, input);
        else if (event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTY)
            moveStick(directions[1], directions[3], event.caxis.value, input);
        return true;
    default:
        return false;
    }
}

void SdlController::moveStick(Direction& negative, Direction& positive, int value, InputQueue& input)
{
    const auto isPushed = [](const Direction& direction, int way) {
        return way > (direction.heldBy & Stick ? releaseBelow : pressBeyond);
    };
    setDirection(negative, Stick, isPushed(negative, -value), input);
    setDirection(positive, Stick, isPushed(positive, value), input);
}

void SdlController::setDirection(Direction& direction, Source source, bool held, InputQueue& input)
{
    const bool wasHeld = direction.heldBy != 0;
    direction.heldBy =
        static_cast<std::uint8_t>(held ? direction.heldBy | source : direction.heldBy & ~source);
    const bool isHeld = direction.heldBy != 0;
    if (isHeld == wasHeld)
        return;
    input.holdInTurn(direction.code, isHeld);
    if (isHeld) {
        typeKey(direction.code, false, input);
        direction.nextRepeat = SDL_GetTicks() + firstRepeatMillis;
    }
}

void SdlController::repeat(std::uint32_t now, InputQueue& input)
{
    for (Direction& direction : directions) {
        if (direction.heldBy == 0 || !SDL_TICKS_PASSED(now, direction.nextRepeat))
            continue;
        typeKey(direction.code, true, input);
        direction.nextRepeat = now + nextRepeatMillis;
    }
}

void SdlController::letGo(InputQueue& input)
{
    for (Direction& direction : directions) {
        setDirection(direction, Pad, false, input);
        setDirection(direction, Stick, false, input);
    }
    for (std::uint8_t code : {VK_RETURN, VK_ESCAPE, VK_HOME, VK_END})
        input.holdInTurn(code, false);
}

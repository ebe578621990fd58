#include "platform/host/sdl/sdl_controller.h"

#include "platform/display/input_queue.h"
#include "platform/host/sdl/sdl_keys.h"

#include <algorithm>

namespace {

// A stick presses its key above the first value and releases it below the second, so that a stick near the
// threshold does not flicker.
constexpr int pressBeyond = 16000;
constexpr int releaseBelow = 12000;
constexpr std::uint32_t firstRepeatMillis = 400;
constexpr std::uint32_t nextRepeatMillis = 80;

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
    for (const Pad& pad : pads) {
        if (pad.device)
            SDL_GameControllerClose(pad.device);
    }
    pads.clear();
}

SdlController::Pad& SdlController::padOf(SDL_JoystickID id)
{
    const auto found = std::find_if(pads.begin(), pads.end(), [id](const Pad& pad) { return pad.id == id; });
    return found == pads.end() ? pads.emplace_back(Pad{id}) : *found;
}

void SdlController::add(int deviceIndex)
{
    SDL_GameController* device = SDL_GameControllerOpen(deviceIndex);
    if (!device)
        return;
    Pad& pad = padOf(SDL_JoystickInstanceID(SDL_GameControllerGetJoystick(device)));
    if (pad.device)
        SDL_GameControllerClose(device); // otherwise its use count would be 2
    pad.device = device;
}

void SdlController::remove(SDL_JoystickID id, InputQueue& input)
{
    const auto found = std::find_if(pads.begin(), pads.end(), [id](const Pad& pad) { return pad.id == id; });
    if (found == pads.end())
        return;
    releaseAll(*found, input);
    if (found->device)
        SDL_GameControllerClose(found->device);
    pads.erase(found);
}

SdlController::Key* SdlController::keyOfButton(Pad& pad, std::uint8_t button)
{
    switch (button) {
    case SDL_CONTROLLER_BUTTON_DPAD_LEFT:
        return &pad.keys[Left];
    case SDL_CONTROLLER_BUTTON_DPAD_UP:
        return &pad.keys[Up];
    case SDL_CONTROLLER_BUTTON_DPAD_RIGHT:
        return &pad.keys[Right];
    case SDL_CONTROLLER_BUTTON_DPAD_DOWN:
        return &pad.keys[Down];
    case SDL_CONTROLLER_BUTTON_A:
        return &pad.keys[Return];
    case SDL_CONTROLLER_BUTTON_B:
        return &pad.keys[Esc];
    case SDL_CONTROLLER_BUTTON_LEFTSHOULDER:
        return &pad.keys[Home];
    case SDL_CONTROLLER_BUTTON_RIGHTSHOULDER:
        return &pad.keys[End];
    default:
        return nullptr;
    }
}

bool SdlController::handle(const SDL_Event& event, InputQueue& input)
{
    switch (event.type) {
    case SDL_CONTROLLERDEVICEADDED:
        add(event.cdevice.which);
        return true;
    case SDL_CONTROLLERDEVICEREMOVED:
        remove(event.cdevice.which, input);
        return true;
    case SDL_CONTROLLERBUTTONDOWN:
    case SDL_CONTROLLERBUTTONUP:
        if (Key* key = keyOfButton(padOf(event.cbutton.which), event.cbutton.button))
            setKey(*key, Button, event.type == SDL_CONTROLLERBUTTONDOWN, input);
        return true;
    case SDL_CONTROLLERAXISMOTION: {
        Pad& pad = padOf(event.caxis.which);
        if (event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTX)
            moveStick(pad.keys[Left], pad.keys[Right], event.caxis.value, input);
        else if (event.caxis.axis == SDL_CONTROLLER_AXIS_LEFTY)
            moveStick(pad.keys[Up], pad.keys[Down], event.caxis.value, input);
        return true;
    }
    default:
        return false;
    }
}

void SdlController::moveStick(Key& negative, Key& positive, int value, InputQueue& input)
{
    const auto isPushed = [](const Key& key, int way) {
        return way > (key.heldBy & Stick ? releaseBelow : pressBeyond);
    };
    setKey(negative, Stick, isPushed(negative, -value), input);
    setKey(positive, Stick, isPushed(positive, value), input);
}

void SdlController::setKey(Key& key, Source source, bool held, InputQueue& input)
{
    const bool wasHeld = key.heldBy != 0;
    key.heldBy = static_cast<std::uint8_t>(held ? key.heldBy | source : key.heldBy & ~source);
    const bool isHeldNow = key.heldBy != 0;
    if (isHeldNow == wasHeld)
        return;
    if (isHeldNow) {
        input.holdInTurn(key.code, true);
        typeKey(key.code, false, input);
        key.nextRepeat = SDL_GetTicks() + firstRepeatMillis;
    } else if (!isHeld(key.code)) {
        input.holdInTurn(key.code, false);
    }
}

bool SdlController::isHeld(std::uint8_t code) const
{
    for (const Pad& pad : pads) {
        for (const Key& key : pad.keys) {
            if (key.code == code && key.heldBy != 0)
                return true;
        }
    }
    return false;
}

void SdlController::repeat(std::uint32_t now, InputQueue& input)
{
    for (Pad& pad : pads) {
        for (Key& key : pad.keys) {
            if (!key.repeats || key.heldBy == 0 || !SDL_TICKS_PASSED(now, key.nextRepeat))
                continue;
            typeKey(key.code, true, input);
            key.nextRepeat = now + nextRepeatMillis;
        }
    }
}

void SdlController::releaseAll(Pad& pad, InputQueue& input)
{
    for (Key& key : pad.keys) {
        setKey(key, Button, false, input);
        setKey(key, Stick, false, input);
    }
}

void SdlController::releaseAll(InputQueue& input)
{
    for (Pad& pad : pads)
        releaseAll(pad, input);
}

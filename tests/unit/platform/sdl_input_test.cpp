// The effect of window events on the keys and buttons that are held. Needs no window, because events are
// plain values.

#include "platform/display/ddwin.h"
#include "platform/host/headless/headless_host.h"
#include "platform/host/sdl/sdl_controller.h"
#include "platform/host/sdl/sdl_input.h"

#include <gtest/gtest.h>

namespace {

class SdlInputTest : public testing::Test {
protected:
    SdlInputTest()
    {
        before = displayhost::use(std::make_unique<HeadlessHost>());
        wnd = std::make_unique<ddwin>();
        keys = std::make_unique<SdlInput>(queue());
        keys->setFit(ScreenFit::of(640, 480, 640, 480));
    }
    ~SdlInputTest() override
    {
        wnd.reset();
        displayhost::use(std::move(before));
    }
    InputQueue& queue() { return displayhost::current().input(); }
    void key(bool down, SDL_Scancode place, SDL_Keycode meaning, int modifiers = 0)
    {
        SDL_Event event{};
        event.type = down ? SDL_KEYDOWN : SDL_KEYUP;
        event.key.keysym.scancode = place;
        event.key.keysym.sym = meaning;
        event.key.keysym.mod = static_cast<Uint16>(modifiers);
        keys->handle(event);
    }
    void mouse(bool down, int button, int x, int y, int clicks = 1)
    {
        SDL_Event event{};
        event.type = down ? SDL_MOUSEBUTTONDOWN : SDL_MOUSEBUTTONUP;
        event.button.button = static_cast<Uint8>(button);
        event.button.state = down ? SDL_PRESSED : SDL_RELEASED;
        event.button.clicks = static_cast<Uint8>(clicks);
        event.button.x = x;
        event.button.y = y;
        keys->handle(event);
    }
    void motion(int x, int y)
    {
        SDL_Event event{};
        event.type = SDL_MOUSEMOTION;
        event.motion.x = x;
        event.motion.y = y;
        keys->handle(event);
    }
    void text(const char* typed)
    {
        SDL_Event event{};
        event.type = SDL_TEXTINPUT;
        SDL_strlcpy(event.text.text, typed, sizeof event.text.text);
        keys->handle(event);
    }
    void pad(SDL_JoystickID id, bool down, int button)
    {
        SDL_Event event{};
        event.type = down ? SDL_CONTROLLERBUTTONDOWN : SDL_CONTROLLERBUTTONUP;
        event.cbutton.which = id;
        event.cbutton.button = static_cast<Uint8>(button);
        EXPECT_TRUE(pads.handle(event, queue()));
    }
    void stick(SDL_JoystickID id, int axis, int value)
    {
        SDL_Event event{};
        event.type = SDL_CONTROLLERAXISMOTION;
        event.caxis.which = id;
        event.caxis.axis = static_cast<Uint8>(axis);
        event.caxis.value = static_cast<Sint16>(value);
        pads.handle(event, queue());
    }
    void unplug(SDL_JoystickID id)
    {
        SDL_Event event{};
        event.type = SDL_CONTROLLERDEVICEREMOVED;
        event.cdevice.which = id;
        pads.handle(event, queue());
    }
    /// Returns the codes of the keys that are held after all input has been taken, in ascending order.
    std::vector<int> held()
    {
        keys->flush();
        do {
            wnd->runTick();
        } while (!queue().empty());
        wnd->runTick();
        std::vector<int> codes;
        for (int code = 0; code < 256; ++code)
            if (wnd->keyDown[code])
                codes.push_back(code);
        return codes;
    }
    using Codes = std::vector<int>;

    std::unique_ptr<displayhost> before;
    std::unique_ptr<ddwin> wnd;
    std::unique_ptr<SdlInput> keys;
    SdlController pads;
};

TEST_F(SdlInputTest, AKeyReleasesTheCodeThatItWasPressedWith)
{
    key(true, SDL_SCANCODE_KP_4, SDLK_KP_4);
    EXPECT_EQ(held(), Codes{VK_LEFT});
    key(false, SDL_SCANCODE_KP_4, SDLK_KP_4, KMOD_NUM);
    EXPECT_EQ(held(), Codes{}) << "Num Lock was switched while the key was down";

    key(true, SDL_SCANCODE_Y, SDLK_y);
    key(false, SDL_SCANCODE_Y, SDLK_z);
    EXPECT_EQ(held(), Codes{}) << "the layout was switched while the key was down";

    key(true, SDL_SCANCODE_Y, SDLK_y);
    key(true, SDL_SCANCODE_Y, SDLK_z);
    EXPECT_EQ(held(), Codes{'Z'}) << "a repeat after the switch";
    key(false, SDL_SCANCODE_Y, SDLK_z);
    EXPECT_EQ(held(), Codes{});
}

TEST_F(SdlInputTest, AKeyCodeIsHeldWhileAnyOfItsKeysIs)
{
    key(true, SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
    key(true, SDL_SCANCODE_RSHIFT, SDLK_RSHIFT);
    key(false, SDL_SCANCODE_LSHIFT, SDLK_LSHIFT);
    EXPECT_EQ(held(), Codes{VK_SHIFT});
    key(false, SDL_SCANCODE_RSHIFT, SDLK_RSHIFT, KMOD_SHIFT);
    EXPECT_EQ(held(), Codes{});
    key(false, SDL_SCANCODE_A, SDLK_a);
    EXPECT_EQ(held(), Codes{}) << "the key went down before the window existed";
}

TEST_F(SdlInputTest, LosingTheFocusReleasesEverything)
{
    key(true, SDL_SCANCODE_A, SDLK_a);
    mouse(true, SDL_BUTTON_LEFT, 30, 40);
    mouse(true, SDL_BUTTON_RIGHT, 30, 40);
    pad(1, true, SDL_CONTROLLER_BUTTON_DPAD_LEFT);
    pad(2, true, SDL_CONTROLLER_BUTTON_A);
    EXPECT_EQ(held(), (Codes{VK_RETURN, VK_LEFT, 'A'}));
    EXPECT_EQ(wnd->lButtonDown + wnd->rButtonDown, 2);
    keys->releaseAll();
    pads.releaseAll(queue());
    EXPECT_EQ(held(), Codes{});
    EXPECT_EQ(wnd->lButtonDown + wnd->rButtonDown, 0);
    mouse(false, SDL_BUTTON_LEFT, 30, 40);
    pad(2, false, SDL_CONTROLLER_BUTTON_A);
    EXPECT_TRUE(queue().empty()) << "later releases have no effect";
}

TEST_F(SdlInputTest, KeysOfOtherScriptsHaveCodesAndCommandsTypeNothing)
{
    const struct {
        const char* name;
        SDL_Scancode place;
        SDL_Keycode meaning;
        int modifiers;
        const char* typed;
        int code, character;
    } rows[] = {
        {"a letter", SDL_SCANCODE_Q, SDLK_a, 0, "a", 'A', 'a'},
        {"a Cyrillic letter, by the key's position", SDL_SCANCODE_F, 0x430, 0, "\xD0\xB0", 'F', 0},
        {"a Cyrillic letter on a punctuation key", SDL_SCANCODE_SEMICOLON, 0x436, 0, "\xD0\xB6", 0xBA, 0},
        {"an accented letter on a digit's key", SDL_SCANCODE_2, 0xE9, 0, "\xC3\xA9", '2', 0xE9},
        {"with Alt", SDL_SCANCODE_A, SDLK_a, KMOD_LALT, "a", 'A', 0},
        {"with Super", SDL_SCANCODE_A, SDLK_a, KMOD_LGUI, "a", 'A', 0},
        {"with Ctrl", SDL_SCANCODE_A, SDLK_a, KMOD_LCTRL, "a", 'A', 0},
        {"with AltGr", SDL_SCANCODE_Q, SDLK_q, KMOD_RALT, "@", 'Q', '@'},
        {"with AltGr that is reported with Ctrl", SDL_SCANCODE_Q, SDLK_q, KMOD_RALT | KMOD_LCTRL, "@", 'Q',
         '@'},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        key(true, row.place, row.meaning, row.modifiers);
        text(row.typed);
        keys->flush();
        wnd->runTick();
        EXPECT_EQ(wnd->keyCode, row.code);
        EXPECT_EQ(static_cast<unsigned char>(wnd->keyChar), row.character);
        key(false, row.place, row.meaning, row.modifiers);
        held();
    }
}

TEST_F(SdlInputTest, ADoubleClickIsTwoPressesOfOneButtonAtOnePosition)
{
    const struct {
        const char* name;
        int button, x, y, clicks, isDouble;
    } rows[] = {
        {"the first press", SDL_BUTTON_LEFT, 100, 100, 1, 0},
        {"the second, slightly moved", SDL_BUTTON_LEFT, 104, 96, 2, 1},
        {"the third is a first one again", SDL_BUTTON_LEFT, 104, 96, 3, 0},
        {"the fourth completes it", SDL_BUTTON_LEFT, 104, 96, 4, 1},
        {"a row below", SDL_BUTTON_LEFT, 104, 116, 5, 0},
        {"again at that position", SDL_BUTTON_LEFT, 104, 116, 6, 1},
        {"too late", SDL_BUTTON_LEFT, 104, 116, 1, 0},
        {"another button", SDL_BUTTON_RIGHT, 104, 116, 1, 0},
        {"the left button after the right one", SDL_BUTTON_LEFT, 104, 116, 2, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        mouse(true, row.button, row.x, row.y, row.clicks);
        wnd->runTick();
        EXPECT_EQ(wnd->lButtonDblClk || wnd->rButtonDblClk, row.isDouble);
        mouse(false, row.button, row.x, row.y, row.clicks);
        held();
    }
}

TEST_F(SdlInputTest, OutsideTheScreenThePointerIsOverNothing)
{
    keys->setFit(ScreenFit::of(640, 480, 840, 480)); // a bar of 100 pixels on each side
    motion(50, 200);
    mouse(true, SDL_BUTTON_LEFT, 50, 200);
    held();
    EXPECT_EQ(wnd->mouseX, -1);
    EXPECT_EQ(wnd->lButtonDown, 0);

    mouse(true, SDL_BUTTON_LEFT, 100, 200);
    motion(50, 200);
    held();
    EXPECT_EQ(wnd->mouseX, 0) << "a held lever can still reach its end";
    EXPECT_EQ(wnd->lButtonDown, 1);
    mouse(false, SDL_BUTTON_LEFT, 50, 200);
    wnd->runTick();
    EXPECT_EQ(wnd->lButtonUp, 1);
    motion(51, 200);
    held();
    EXPECT_EQ(wnd->mouseX, -1);
}

TEST_F(SdlInputTest, AControllerKeyIsReleasedByItsLastHolder)
{
    key(true, SDL_SCANCODE_RETURN, SDLK_RETURN);
    key(true, SDL_SCANCODE_HOME, SDLK_HOME);
    pad(1, true, SDL_CONTROLLER_BUTTON_DPAD_UP);
    pad(2, true, SDL_CONTROLLER_BUTTON_DPAD_UP);
    pad(2, true, SDL_CONTROLLER_BUTTON_RIGHTSHOULDER);
    unplug(1);
    EXPECT_EQ(held(), (Codes{VK_RETURN, VK_END, VK_HOME, VK_UP}))
        << "the keyboard and the other controller still hold theirs";
    unplug(2);
    EXPECT_EQ(held(), (Codes{VK_RETURN, VK_HOME}));

    stick(3, SDL_CONTROLLER_AXIS_LEFTX, 20000);
    pad(3, true, SDL_CONTROLLER_BUTTON_DPAD_RIGHT);
    stick(3, SDL_CONTROLLER_AXIS_LEFTX, 0);
    EXPECT_EQ(held(), (Codes{VK_RETURN, VK_HOME, VK_RIGHT})) << "still held by the directional pad";
    pad(3, false, SDL_CONTROLLER_BUTTON_DPAD_RIGHT);
    EXPECT_EQ(held(), (Codes{VK_RETURN, VK_HOME}));
}

} // namespace

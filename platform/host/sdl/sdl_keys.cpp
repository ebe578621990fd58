#include "platform/host/sdl/sdl_keys.h"

#include "platform/display/keys.h"

#include <algorithm>
#include <iterator>

namespace {

struct KeyRow {
    SDL_Keycode key;
    std::uint8_t code;
};

constexpr std::uint8_t numpad0 = 0x60;
constexpr std::uint8_t numpadPoint = 0x6E;

constexpr KeyRow keys[] = {
    {SDLK_BACKSPACE, VK_BACK}, {SDLK_TAB, VK_TAB},         {SDLK_RETURN, VK_RETURN},
    {SDLK_RETURN2, VK_RETURN}, {SDLK_KP_ENTER, VK_RETURN}, {SDLK_LSHIFT, VK_SHIFT},
    {SDLK_RSHIFT, VK_SHIFT},   {SDLK_LCTRL, 0x11},         {SDLK_RCTRL, 0x11},
    {SDLK_LALT, 0x12},         {SDLK_RALT, 0x12},          {SDLK_PAUSE, 0x13},
    {SDLK_CAPSLOCK, 0x14},     {SDLK_ESCAPE, VK_ESCAPE},   {SDLK_SPACE, VK_SPACE},
    {SDLK_PAGEUP, 0x21},       {SDLK_PAGEDOWN, 0x22},      {SDLK_END, VK_END},
    {SDLK_HOME, VK_HOME},      {SDLK_LEFT, VK_LEFT},       {SDLK_UP, VK_UP},
    {SDLK_RIGHT, VK_RIGHT},    {SDLK_DOWN, VK_DOWN},       {SDLK_PRINTSCREEN, 0x2C},
    {SDLK_INSERT, VK_INSERT},  {SDLK_DELETE, VK_DELETE},   {SDLK_LGUI, 0x5B},
    {SDLK_RGUI, 0x5C},         {SDLK_APPLICATION, 0x5D},   {SDLK_KP_MULTIPLY, 0x6A},
    {SDLK_KP_PLUS, 0x6B},      {SDLK_KP_MINUS, 0x6D},      {SDLK_KP_DIVIDE, 0x6F},
    {SDLK_NUMLOCKCLEAR, 0x90}, {SDLK_SCROLLLOCK, 0x91},    {SDLK_SEMICOLON, 0xBA},
    {SDLK_EQUALS, 0xBB},       {SDLK_COMMA, 0xBC},         {SDLK_MINUS, 0xBD},
    {SDLK_PERIOD, 0xBE},       {SDLK_SLASH, 0xBF},         {SDLK_BACKQUOTE, 0xC0},
    {SDLK_LEFTBRACKET, 0xDB},  {SDLK_BACKSLASH, 0xDC},     {SDLK_RIGHTBRACKET, 0xDD},
    {SDLK_QUOTE, 0xDE},        {SDLK_LESS, 0xE2},
};

/// The meaning of the number pad's keys while Num Lock is off.
constexpr KeyRow numpadWithoutLock[] = {
    {SDLK_KP_0, VK_INSERT}, {SDLK_KP_1, VK_END}, {SDLK_KP_2, VK_DOWN},       {SDLK_KP_3, 0x22},
    {SDLK_KP_4, VK_LEFT},   {SDLK_KP_5, 0x0C},   {SDLK_KP_6, VK_RIGHT},      {SDLK_KP_7, VK_HOME},
    {SDLK_KP_8, VK_UP},     {SDLK_KP_9, 0x21},   {SDLK_KP_PERIOD, VK_DELETE}};

template<std::size_t count>
std::uint8_t lookUp(const KeyRow (&rows)[count], SDL_Keycode key)
{
    const auto found =
        std::find_if(std::begin(rows), std::end(rows), [key](const KeyRow& row) { return row.key == key; });
    return found == std::end(rows) ? 0 : found->code;
}

std::uint8_t numpadKey(const SDL_Keysym& key)
{
    if (!(key.mod & KMOD_NUM))
        return lookUp(numpadWithoutLock, key.sym);
    if (key.sym >= SDLK_KP_1 && key.sym <= SDLK_KP_9)
        return static_cast<std::uint8_t>(numpad0 + 1 + (key.sym - SDLK_KP_1));
    return key.sym == SDLK_KP_0 ? numpad0 : key.sym == SDLK_KP_PERIOD ? numpadPoint : 0;
}

/// Returns the key at that physical position on a US keyboard, or SDLK_UNKNOWN if it types nothing.
SDL_Keycode keyAtPlace(SDL_Scancode place)
{
    if (place >= SDL_SCANCODE_A && place <= SDL_SCANCODE_Z)
        return SDLK_a + (place - SDL_SCANCODE_A);
    if (place >= SDL_SCANCODE_1 && place <= SDL_SCANCODE_9)
        return SDLK_1 + (place - SDL_SCANCODE_1);
    switch (place) {
    case SDL_SCANCODE_0:
        return SDLK_0;
    case SDL_SCANCODE_MINUS:
        return SDLK_MINUS;
    case SDL_SCANCODE_EQUALS:
        return SDLK_EQUALS;
    case SDL_SCANCODE_LEFTBRACKET:
        return SDLK_LEFTBRACKET;
    case SDL_SCANCODE_RIGHTBRACKET:
        return SDLK_RIGHTBRACKET;
    case SDL_SCANCODE_BACKSLASH:
        return SDLK_BACKSLASH;
    case SDL_SCANCODE_SEMICOLON:
        return SDLK_SEMICOLON;
    case SDL_SCANCODE_APOSTROPHE:
        return SDLK_QUOTE;
    case SDL_SCANCODE_GRAVE:
        return SDLK_BACKQUOTE;
    case SDL_SCANCODE_COMMA:
        return SDLK_COMMA;
    case SDL_SCANCODE_PERIOD:
        return SDLK_PERIOD;
    case SDL_SCANCODE_SLASH:
        return SDLK_SLASH;
    default:
        return SDLK_UNKNOWN;
    }
}

std::uint8_t codeOf(const SDL_Keysym& key)
{
    if (key.sym >= SDLK_a && key.sym <= SDLK_z)
        return static_cast<std::uint8_t>('A' + (key.sym - SDLK_a));
    if (key.sym >= SDLK_0 && key.sym <= SDLK_9)
        return static_cast<std::uint8_t>(key.sym);
    if (key.sym >= SDLK_F1 && key.sym <= SDLK_F12)
        return static_cast<std::uint8_t>(VK_F1 + (key.sym - SDLK_F1));
    if (const std::uint8_t code = numpadKey(key))
        return code;
    return lookUp(keys, key.sym);
}

} // namespace

std::uint8_t virtualKeyOf(const SDL_Keysym& key)
{
    if (const std::uint8_t code = codeOf(key))
        return code;
    // The key types a character of another script, such as a Cyrillic letter, so its physical position
    // decides.
    SDL_Keysym atPlace = key;
    atPlace.sym = keyAtPlace(key.scancode);
    return codeOf(atPlace);
}

char controlCharacterOf(std::uint8_t virtualKey)
{
    const bool types =
        virtualKey == VK_BACK || virtualKey == VK_TAB || virtualKey == VK_RETURN || virtualKey == VK_ESCAPE;
    return types ? static_cast<char>(virtualKey) : 0; // code and character have the same value
}

bool typesText(std::uint8_t virtualKey)
{
    return virtualKey == VK_SPACE || (virtualKey >= '0' && virtualKey <= '9') ||
           (virtualKey >= 'A' && virtualKey <= 'Z') || (virtualKey >= numpad0 && virtualKey <= 0x6F) ||
           virtualKey >= 0xBA;
}

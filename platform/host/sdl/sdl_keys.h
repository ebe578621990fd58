#pragma once

#include <SDL.h>

#include <cstdint>

/// The virtual key code of a key, 0 for one that has none.
std::uint8_t virtualKeyOf(const SDL_Keysym& key);
/// The character of a key that types one without a text event: Return, Tab, Esc and Backspace. Else 0.
char controlCharacterOf(std::uint8_t virtualKey);
/// Whether the key can be the one that a text event, right behind it, comes from.
bool typesText(std::uint8_t virtualKey);

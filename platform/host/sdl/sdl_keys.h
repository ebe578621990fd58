#pragma once

#include <SDL.h>

#include <cstdint>

/// Returns the virtual key code of a key, or 0 if it has none.
std::uint8_t virtualKeyOf(const SDL_Keysym& key);
/// Returns the character of a key that types one without a text event, which are Return, Tab, Esc and
/// Backspace, otherwise 0.
char controlCharacterOf(std::uint8_t virtualKey);
/// Returns whether a text event that follows the key's event can belong to it.
bool typesText(std::uint8_t virtualKey);

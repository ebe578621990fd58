#pragma once

/// Marks what the player library exports. Everything else is hidden (-fvisibility=hidden).
#define TGX_PLAYER_API __attribute__((visibility("default")))
/// Marks what it hands to the other libraries of this repository alone: headers with nothing else are not
/// installed.
#define TGX_PLAYER_INTERNAL __attribute__((visibility("default")))

#pragma once

/// Marks what the player library exports. All other symbols are hidden (-fvisibility=hidden).
#define TGX_PLAYER_API __attribute__((visibility("default")))
/// Marks what it exports only for the other libraries of this repository. Headers with nothing else are not
/// installed.
#define TGX_PLAYER_INTERNAL __attribute__((visibility("default")))

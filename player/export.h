#pragma once

/// Marks what the player library exports. Everything else is hidden (-fvisibility=hidden).
#define TGX_PLAYER_API __attribute__((visibility("default")))

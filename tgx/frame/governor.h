#pragma once

#include "tgx/export.h"

#include <cstdint>

/// Determines how many animation ticks a frame stands for, so that animations keep their speed at any frame
/// rate.
class TGX_API FrameGovernor {
public:
    /// Returns the ticks for a frame drawn at now, in milliseconds: 0 to skip, 1, or more to catch up. Stores
    /// the measured rate.
    int stepFor(std::uint32_t now, int targetFPS);
    /// Stores now, in milliseconds, as the time from which the next frame is measured.
    void frameStarted(std::uint32_t now) { lastDrawTime = now; }
    int getCurrentFPS() const { return currentFPS; }

private:
    std::uint32_t lastDrawTime = 0; // milliseconds
    int currentFPS = 0;             // frames per second, from the last frame; 0 if it took more than a second
    int slowFrames = 0;             // consecutive frames at or below the target rate
    int skipCounter = 0;            // frames since the last step
};

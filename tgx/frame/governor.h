#pragma once

#include "tgx/export.h"

#include <cstdint>

/// Works out how many animation ticks a frame stands for, so that animations keep their speed whatever the
/// frame rate.
class TGX_API FrameGovernor {
public:
    /// Ticks for a frame drawn at now, milliseconds: 0 to skip, 1, or more to catch up. Stores the measured
    /// rate.
    int stepFor(std::uint32_t now, int targetFPS);
    /// The next frame is measured from now on.
    void frameStarted(std::uint32_t now) { lastDrawTime = now; }
    int getCurrentFPS() const { return currentFPS; }

private:
    std::uint32_t lastDrawTime = 0; // milliseconds
    int currentFPS = 0;             // of the last frame; 0 for one that took more than a second
    int slowFrames = 0;             // in a row, at or below the target
    int skipCounter = 0;            // frames since the last step
};

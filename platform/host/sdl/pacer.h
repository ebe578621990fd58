#pragma once

#include <algorithm>
#include <cstdint>

/// Determines when ticks and frames are due. Times are in microseconds of a monotonic clock.
class Pacer {
public:
    static constexpr std::int64_t tickMicros = 1'000'000 / 60;
    static constexpr std::int64_t unseenFrameMicros = 1'000'000 / 10;
    /// Maximum number of ticks to catch up on at once after a stall. Any more are skipped, or slow ticks
    /// would pile up.
    static constexpr int ticksAtOnce = 4;

    /// Starts the clock. framesPerSecond is the display's refresh rate; at most 60 frames are run.
    void start(std::int64_t now, int framesPerSecond)
    {
        frameMicros = 1'000'000 / std::clamp(framesPerSecond, 1, 60);
        nextTick = now;
        nextFrame = now;
    }
    /// Returns the earliest time at which a tick or a frame is due.
    std::int64_t nextDue() const { return std::min(nextTick, nextFrame); }
    int takeTicks(std::int64_t now)
    {
        int ticks = 0;
        for (; nextTick <= now && ticks < ticksAtOnce; ++ticks)
            nextTick += tickMicros;
        if (nextTick <= now)
            nextTick = now + tickMicros;
        return ticks;
    }
    /// Returns 1 if a frame is due, otherwise 0. If the window cannot be seen (isUnseen), frames still run,
    /// but slowly, because a change of screen, a wipe and the exit need them.
    int takeFrame(std::int64_t now, bool isUnseen = false)
    {
        if (nextFrame > now)
            return 0;
        // Keeps in step with the display as long as frames are on time. A late frame is followed by a pause
        // of at least half a period.
        const std::int64_t period = isUnseen ? unseenFrameMicros : frameMicros;
        nextFrame = std::max(nextFrame + period, now + period / 2);
        return 1;
    }

private:
    std::int64_t nextTick = 0;
    std::int64_t nextFrame = 0;
    std::int64_t frameMicros = tickMicros;
};

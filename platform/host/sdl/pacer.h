#pragma once

#include <algorithm>
#include <cstdint>

/// Says when a tick and when a frame is due. Times are microseconds of a clock that never goes back.
class Pacer {
public:
    static constexpr std::int64_t tickMicros = 1'000'000 / 60;
    static constexpr std::int64_t unseenFrameMicros = 1'000'000 / 10;
    /// Ticks that are made up at once behind a stall. What goes beyond is forgotten, or a slow tick would
    /// bring ever more.
    static constexpr int ticksAtOnce = 4;

    /// framesPerSecond: of the display; no more than 60 are run.
    void start(std::int64_t now, int framesPerSecond)
    {
        frameMicros = 1'000'000 / std::clamp(framesPerSecond, 1, 60);
        nextTick = now;
        nextFrame = now;
    }
    /// Earliest time at which one of the two is due.
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
    /// isUnseen: nobody sees the window. Frames go on slowly then, for what ends only with frames: a change
    /// of screen, a wipe, the exit.
    int takeFrame(std::int64_t now, bool isUnseen = false)
    {
        if (nextFrame > now)
            return 0;
        // In step with the display as long as frames keep up; a late one is followed by a pause of half a
        // period at least.
        const std::int64_t period = isUnseen ? unseenFrameMicros : frameMicros;
        nextFrame = std::max(nextFrame + period, now + period / 2);
        return 1;
    }

private:
    std::int64_t nextTick = 0;
    std::int64_t nextFrame = 0;
    std::int64_t frameMicros = tickMicros;
};

#pragma once

#include <algorithm>
#include <cstdint>

/// How a screen lies in a window: as large as it fits with its shape kept, in the middle, bars at the sides.
struct ScreenFit {
    int x = 0; // of the shown screen, window pixels
    int y = 0;
    int w = 1;
    int h = 1;
    int screenWidth = 1;
    int screenHeight = 1;

    struct Point {
        int x;
        int y;
    };

    static ScreenFit of(int screenWidth, int screenHeight, int windowWidth, int windowHeight)
    {
        ScreenFit fit;
        fit.screenWidth = std::max(screenWidth, 1);
        fit.screenHeight = std::max(screenHeight, 1);
        windowWidth = std::max(windowWidth, 1);
        windowHeight = std::max(windowHeight, 1);
        const std::int64_t byWidth = std::int64_t{windowWidth} * fit.screenHeight;
        const std::int64_t byHeight = std::int64_t{windowHeight} * fit.screenWidth;
        fit.w =
            byWidth <= byHeight ? windowWidth : std::max(1, static_cast<int>(byHeight / fit.screenHeight));
        fit.h = byWidth <= byHeight ? std::max(1, static_cast<int>(byWidth / fit.screenWidth)) : windowHeight;
        fit.x = (windowWidth - fit.w) / 2;
        fit.y = (windowHeight - fit.h) / 2;
        return fit;
    }
    /// Whole screen pixels: every one is shown as large as the next.
    bool isWholeScale() const { return w % screenWidth == 0 && h % screenHeight == 0; }
    bool contains(int windowX, int windowY) const
    {
        return windowX >= x && windowX < x + w && windowY >= y && windowY < y + h;
    }
    /// The screen pixel under a place of the window; from outside, the nearest.
    Point toScreen(int windowX, int windowY) const
    {
        return {axisToScreen(windowX - x, w, screenWidth), axisToScreen(windowY - y, h, screenHeight)};
    }
    /// The place of the window in the middle of a screen pixel.
    Point toWindow(int screenX, int screenY) const
    {
        return {x + axisToWindow(screenX, w, screenWidth), y + axisToWindow(screenY, h, screenHeight)};
    }

private:
    static int axisToScreen(int offset, int shown, int screen)
    {
        return static_cast<int>(std::clamp<std::int64_t>(offset, 0, shown - 1) * screen / shown);
    }
    static int axisToWindow(int position, int shown, int screen)
    {
        const std::int64_t held = std::clamp(position, 0, screen - 1);
        return static_cast<int>((2 * held + 1) * shown / (2 * std::int64_t{screen}));
    }
};

#pragma once

#include <algorithm>
#include <cstdint>

/// Position of the screen in a window: centred, as large as possible with its aspect ratio, with bars at the
/// sides.
struct ScreenFit {
    int x = 0; // position of the screen, in window pixels
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
    /// Returns whether the scale is a whole number, so that all screen pixels have the same size.
    bool isWholeScale() const { return w % screenWidth == 0 && h % screenHeight == 0; }
    bool contains(int windowX, int windowY) const
    {
        return windowX >= x && windowX < x + w && windowY >= y && windowY < y + h;
    }
    /// Returns the screen pixel at a position in the window, or the nearest one from outside the screen.
    Point toScreen(int windowX, int windowY) const
    {
        return {axisToScreen(windowX - x, w, screenWidth), axisToScreen(windowY - y, h, screenHeight)};
    }
    /// Returns the position in the window of the middle of a screen pixel.
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
        const std::int64_t clamped = std::clamp(position, 0, screen - 1);
        return static_cast<int>((2 * clamped + 1) * shown / (2 * std::int64_t{screen}));
    }
};

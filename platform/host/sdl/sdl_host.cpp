#include "platform/host/sdl/sdl_host.h"

#include "platform/display/ddwin.h"
#include "platform/display/message_picture.h"
#include "platform/display/message_text.h"
#include "platform/display/settings_internal.h"
#include "platform/host/sdl/pacer.h"
#include "platform/host/sdl/sdl_controller.h"
#include "platform/host/sdl/sdl_input.h"
#include "platform/media/encoding.h"
#include "platform/system/clock.h"

#include <SDL.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

namespace {

std::int64_t nowMicros()
{
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

bool isSetInEnvironment(const char* name)
{
    const char* value = std::getenv(name);
    return value && *value;
}

std::string windowTitle()
{
    return settingsProgramName().empty() ? "TGX" : utf8From1252(settingsProgramName());
}

class SdlHost : public displayhost {
public:
    ~SdlHost() override { closeWindow(); }

    bool open(ddwin& newGame) override;
    void close(ddwin& closed) override;
    void show(const Image& screen, std::span<const tagRECT> changed) override;
    void pump(ddwin& polled) override;
    void setCursor(CursorShape shape) override;
    void movePointer(int x, int y) override;
    void showMessage(const CString& text) override;
    void showFailure(const CString& text, const std::string& cause) override;
    void waitForWork(int& ticks, int& frames) override;
    void followFullScreen(ddwin& window) override;
    bool dropsLostInput() const override { return true; }

private:
    bool startVideo();
    bool createWindow();
    bool createRenderer();
    bool prepareTexture(const Image& screen);
    void upload(const Image& screen, const tagRECT& area);
    void present();
    void destroyWindow();
    void closeWindow();
    void updateFit();
    bool handleSystemEvent(const SDL_Event& event);
    void handleWindowEvent(const SDL_WindowEvent& event);
    void followTopMost();
    void releaseAll();
    void showGatheredMessages();
    void showInWindow(const std::string& text);
    bool isMinimised() const { return SDL_GetWindowFlags(window) & SDL_WINDOW_MINIMIZED; }

    ddwin* game = nullptr; // not owned; the game whose window is open
    SDL_Window* window = nullptr;
    SDL_Renderer* renderer = nullptr;
    SDL_Texture* texture = nullptr;
    SDL_Rect windowedPlace = {}; // position and size before full screen; width 0 if there is none
    SDL_Cursor* cursors[2] = {}; // indexed by CursorShape
    CursorShape cursor = CursorShape::Normal;
    int textureWidth = 0;
    int textureHeight = 0;
    bool hasVideo = false; // started by this host
    bool hasController = false;
    bool pixelsAreLost = true;   // the texture does not contain the screen
    Uint32 lastPump = 0;         // milliseconds of SDL_GetTicks
    bool hasPendingMove = false; // a move made while the window was in the background is pending
    bool windowIsStale = true;   // the window does not show the texture
    Pacer pacer;
    SdlInput mouseAndKeys{input()};
    SdlController controllers;
    std::vector<std::string> messages; // messages of the current frame
};

// Opening and closing

bool SdlHost::startVideo()
{
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1"); // Ctrl+C ends the program as usual
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    SDL_SetMainReady();
    if (SDL_InitSubSystem(SDL_INIT_VIDEO) == 0) {
        hasVideo = true;
        // Drivers that show nothing are used only if the user has named them.
        const std::string_view driver = SDL_GetCurrentVideoDriver();
        if ((driver != "dummy" && driver != "offscreen") || isSetInEnvironment("SDL_VIDEODRIVER"))
            return true;
        SDL_SetError("no display found");
    }
    return false;
}

bool SdlHost::createWindow()
{
    Uint32 flags = SDL_WINDOW_RESIZABLE;
    const bool isFullScreen = game->fullScreen && !isSetInEnvironment("TGX_WINDOWED");
    if (isFullScreen) {
        flags |= SDL_WINDOW_FULLSCREEN_DESKTOP;
        if (game->topMost)
            flags |= SDL_WINDOW_ALWAYS_ON_TOP;
    }
    int width = std::max<int>(game->screenWidth, 1);
    int height = std::max<int>(game->screenHeight, 1);
    SDL_Rect desktop;
    if (isFullScreen && SDL_GetDisplayBounds(0, &desktop) == 0) {
        // Full size from the start, because without a window manager nothing enlarges the window.
        width = desktop.w;
        height = desktop.h;
    } else if (SDL_GetDisplayUsableBounds(0, &desktop) == 0 && (width > desktop.w || height > desktop.h)) {
        const ScreenFit shrunk = ScreenFit::of(width, height, desktop.w, desktop.h);
        width = shrunk.w;
        height = shrunk.h;
    }
    int x = SDL_WINDOWPOS_CENTERED;
    int y = SDL_WINDOWPOS_CENTERED;
    if (!isFullScreen && windowedPlace.w > 0) {
        x = windowedPlace.x;
        y = windowedPlace.y;
        width = windowedPlace.w;
        height = windowedPlace.h;
    }
    window = SDL_CreateWindow(windowTitle().c_str(), x, y, width, height, flags);
    return window != nullptr;
}

bool SdlHost::createRenderer()
{
    renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_ACCELERATED | SDL_RENDERER_PRESENTVSYNC);
    if (!renderer)
        renderer = SDL_CreateRenderer(window, -1, SDL_RENDERER_SOFTWARE);
    return renderer != nullptr;
}

bool SdlHost::open(ddwin& newGame)
{
    closeWindow();
    windowedPlace = {};
    game = &newGame;
    if (!startVideo() || !createWindow() || !createRenderer()) {
        std::fprintf(stderr,
                     "cannot open a window: %s; start the program in a desktop session, or with DISPLAY set "
                     "to an X server "
                     "(xvfb-run provides a virtual one)\n",
                     SDL_GetError());
        closeWindow();
        return false;
    }
    hasController = SDL_InitSubSystem(SDL_INIT_GAMECONTROLLER) == 0; // optional
    cursors[0] = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_ARROW);
    cursors[1] = SDL_CreateSystemCursor(SDL_SYSTEM_CURSOR_WAIT);
    setCursor(cursor);
    SDL_StartTextInput();
    updateFit();
    lastPump = SDL_GetTicks();

    SDL_DisplayMode mode;
    const bool isKnown = SDL_GetWindowDisplayMode(window, &mode) == 0 && mode.refresh_rate > 0;
    pacer.start(nowMicros(), isKnown ? mode.refresh_rate : 60);
    newGame.m_hWnd = reinterpret_cast<HWND>(&newGame);
    return true;
}

void SdlHost::close(ddwin& closed)
{
    showGatheredMessages();
    closed.m_hWnd = nullptr;
    if (game == &closed)
        closeWindow();
}

/// Replaces the window by a new one, because without a window manager nothing enlarges an existing window.
void SdlHost::followFullScreen(ddwin& changed)
{
    if (!window || game != &changed)
        return;
    releaseAll(); // neither window gets the releases that happen meanwhile
    if (!(SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN)) {
        SDL_GetWindowPosition(window, &windowedPlace.x, &windowedPlace.y);
        SDL_GetWindowSize(window, &windowedPlace.w, &windowedPlace.h);
    }
    destroyWindow();
    if (!createWindow() || !createRenderer()) {
        std::fprintf(stderr, "cannot open the window again: %s\n", SDL_GetError());
        destroyWindow();
        closeRequested = true;
        return;
    }
    setCursor(cursor);
    SDL_StartTextInput();
    updateFit();
}

void SdlHost::destroyWindow()
{
    if (texture)
        SDL_DestroyTexture(texture);
    if (renderer)
        SDL_DestroyRenderer(renderer);
    if (window)
        SDL_DestroyWindow(window);
    texture = nullptr;
    renderer = nullptr;
    window = nullptr;
    pixelsAreLost = true;
}

void SdlHost::closeWindow()
{
    controllers.closeAll();
    for (SDL_Cursor*& shape : cursors) {
        SDL_FreeCursor(shape);
        shape = nullptr;
    }
    destroyWindow();
    game = nullptr;
    // Stops only what open() has started, because a game may use SDL too, for example for sound.
    if (hasController)
        SDL_QuitSubSystem(SDL_INIT_GAMECONTROLLER);
    if (hasVideo)
        SDL_QuitSubSystem(SDL_INIT_VIDEO);
    hasController = false;
    hasVideo = false;
}

// Showing

bool SdlHost::prepareTexture(const Image& screen)
{
    if (texture && textureWidth == screen.width && textureHeight == screen.height)
        return true;
    if (texture)
        SDL_DestroyTexture(texture);
    texture = SDL_CreateTexture(renderer, SDL_PIXELFORMAT_ARGB8888, SDL_TEXTUREACCESS_STREAMING, screen.width,
                                screen.height);
    textureWidth = screen.width;
    textureHeight = screen.height;
    pixelsAreLost = true;
    updateFit();
    if (!texture)
        return false;
    SDL_SetTextureBlendMode(texture, SDL_BLENDMODE_NONE);
    return true;
}

void SdlHost::upload(const Image& screen, const tagRECT& area)
{
    const int left = std::clamp(area.left, 0, screen.width);
    const int top = std::clamp(area.top, 0, screen.height);
    const SDL_Rect part = {left, top, std::clamp(area.right, left, screen.width) - left,
                           std::clamp(area.bottom, top, screen.height) - top};
    if (part.w == 0 || part.h == 0)
        return;
    const int pitchInBytes = screen.pitch * static_cast<int>(sizeof(std::uint32_t));
    SDL_UpdateTexture(texture, &part, screen.row(part.y) + part.x, pitchInBytes);
}

void SdlHost::show(const Image& screen, std::span<const tagRECT> changed)
{
    if (!window || screen.width <= 0 || screen.height <= 0 || !prepareTexture(screen))
        return;
    if (isMinimised()) {
        pixelsAreLost = true; // the whole screen is uploaded once the window is visible again
        return;
    }
    if (pixelsAreLost)
        upload(screen, {0, 0, screen.width, screen.height});
    else
        for (const tagRECT& area : changed)
            upload(screen, area);
    if (pixelsAreLost || windowIsStale || !changed.empty())
        present();
    pixelsAreLost = false;
}

void SdlHost::present()
{
    int width = 0;
    int height = 0;
    SDL_GetRendererOutputSize(renderer, &width, &height);
    const ScreenFit fit = ScreenFit::of(textureWidth, textureHeight, width, height);
    const SDL_Rect target = {fit.x, fit.y, fit.w, fit.h};
    SDL_SetTextureScaleMode(texture, fit.isWholeScale() ? SDL_ScaleModeNearest : SDL_ScaleModeLinear);
    SDL_SetRenderDrawColor(renderer, 0, 0, 0, 255);
    SDL_RenderClear(renderer);
    SDL_RenderCopy(renderer, texture, nullptr, &target);
    SDL_RenderPresent(renderer);
    windowIsStale = false;
}

void SdlHost::updateFit()
{
    int width = 0;
    int height = 0;
    SDL_GetWindowSize(window, &width, &height);
    mouseAndKeys.setFit(ScreenFit::of(game->screenWidth, game->screenHeight, width, height));
    windowIsStale = true;
}

void SdlHost::setCursor(CursorShape shape)
{
    cursor = shape;
    if (SDL_Cursor* picture = cursors[shape == CursorShape::Wait ? 1 : 0])
        SDL_SetCursor(picture);
}

// Input

void SdlHost::pump(ddwin& polled)
{
    if (!window || game != &polled)
        return;
    const bool hasStalled = SDL_GetTicks() - lastPump > staleInputMillis;
    const std::size_t before = input().getEvents().size();
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        if (!handleSystemEvent(event) && !controllers.handle(event, input()))
            mouseAndKeys.handle(event);
    }
    mouseAndKeys.flush();
    // The times of events are not reliable, so all events that were pending after the stall are dropped.
    if (hasStalled)
        input().dropFrom(before);
    lastPump = SDL_GetTicks();
    controllers.repeat(SDL_GetTicks(), input());
    input().dropStale(timeGetTime(), staleInputMillis);
}

/// Returns whether the event concerns the window or the program and is not input.
bool SdlHost::handleSystemEvent(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_QUIT:
        userWantsToClose = true;
        return true;
    case SDL_WINDOWEVENT:
        handleWindowEvent(event.window);
        return true;
    case SDL_RENDER_TARGETS_RESET:
        pixelsAreLost = true;
        return true;
    case SDL_RENDER_DEVICE_RESET:
        if (texture)
            SDL_DestroyTexture(texture);
        texture = nullptr;
        return true;
    default:
        return false;
    }
}

void SdlHost::handleWindowEvent(const SDL_WindowEvent& event)
{
    switch (event.event) {
    case SDL_WINDOWEVENT_CLOSE:
        userWantsToClose = true;
        break;
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        game->appActive = 1;
        followTopMost();
        if (std::exchange(hasPendingMove, false))
            movePointer(game->mouseX, game->mouseY);
        break;
    case SDL_WINDOWEVENT_FOCUS_LOST:
        game->appActive = 0;
        followTopMost();
        releaseAll();
        break;
    case SDL_WINDOWEVENT_LEAVE:
        mouseAndKeys.pointerLeft();
        break;
    case SDL_WINDOWEVENT_SIZE_CHANGED:
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_EXPOSED:
        updateFit();
        break;
    default:
        break;
    }
}

/// Keeps the window on top only while it has the focus, so that other programs can cover it.
void SdlHost::followTopMost()
{
    const bool isFullScreen = SDL_GetWindowFlags(window) & SDL_WINDOW_FULLSCREEN;
    SDL_SetWindowAlwaysOnTop(window, game->appActive && game->topMost && isFullScreen ? SDL_TRUE : SDL_FALSE);
}

void SdlHost::releaseAll()
{
    mouseAndKeys.releaseAll();
    controllers.releaseAll(input());
}

void SdlHost::movePointer(int x, int y)
{
    if (!window)
        return;
    // In the background, the pointer belongs to other windows, so the move is postponed until the focus
    // returns.
    if (SDL_GetKeyboardFocus() != window) {
        hasPendingMove = true;
        return;
    }
    input().dropMovesAtHead();
    mouseAndKeys.pointerWasMoved(x, y, SDL_GetTicks());
    const ScreenFit::Point place = mouseAndKeys.getFit().toWindow(x, y);
    SDL_WarpMouseInWindow(window, place.x, place.y);
}

// Messages and time

void SdlHost::showMessage(const CString& text)
{
    printMessage(text.view());
    messages.push_back(text.str());
}

/// For several messages with the same cause, the box shows only the cause.
void SdlHost::showFailure(const CString& text, const std::string& cause)
{
    if (cause.empty())
        return showMessage(text);
    printMessage(text.view());
    if (isNewCause(cause)) {
        printNote(cause);
        messages.push_back(cause);
    }
}

void SdlHost::showGatheredMessages()
{
    if (messages.empty())
        return;
    const std::string text = boxText(messages);
    messages.clear();
    if (!window || isSetInEnvironment("TGX_NO_MESSAGE_BOX"))
        return;
    releaseAll(); // the box gets the releases that happen while it is open
    const std::string utf8 = utf8From1252(text);
    if (isSetInEnvironment("TGX_MESSAGE_IN_WINDOW") ||
        SDL_ShowSimpleMessageBox(SDL_MESSAGEBOX_INFORMATION, windowTitle().c_str(), utf8.c_str(), window) !=
            0)
        showInWindow(text);
    windowIsStale = true;
}

/// Shows a message in the window, for a system that cannot show a box. Returns at a key press, a click, or a
/// request to close the window.
void SdlHost::showInWindow(const std::string& text)
{
    const ImageRef picture = messagePicture(game->getScreenImage(), text);
    if (picture->width <= 0 || picture->height <= 0 || !prepareTexture(*picture))
        return;
    const tagRECT whole{0, 0, picture->width, picture->height};
    upload(*picture, whole);
    SDL_Event event;
    do {
        present();
        // Presents again from time to time, because not every system reports that the window was uncovered.
        if (!SDL_WaitEventTimeout(&event, 500))
            event.type = SDL_FIRSTEVENT;
        pixelsAreLost = false;
        handleSystemEvent(event);
        if ((!texture || pixelsAreLost) && prepareTexture(*picture))
            upload(*picture, whole);
    } while (!userWantsToClose && event.type != SDL_KEYDOWN && event.type != SDL_MOUSEBUTTONDOWN &&
             event.type != SDL_CONTROLLERBUTTONDOWN);
    SDL_FlushEvents(SDL_KEYDOWN, SDL_TEXTINPUT);
    pixelsAreLost = true; // the next frame uploads the screen again
    lastPump =
        SDL_GetTicks() - staleInputMillis - 1; // drops the next events, which were meant for the message
}

void SdlHost::waitForWork(int& ticks, int& frames)
{
    showGatheredMessages();
    ticks = 0;
    frames = 0;
    while (ticks == 0 && frames == 0) {
        const std::int64_t now = nowMicros();
        if (pacer.nextDue() > now)
            std::this_thread::sleep_for(std::chrono::microseconds(pacer.nextDue() - now));
        ticks = pacer.takeTicks(nowMicros());
        frames = pacer.takeFrame(nowMicros(), isMinimised());
    }
}

} // namespace

std::unique_ptr<displayhost> makeSdlHost()
{
    return std::make_unique<SdlHost>();
}

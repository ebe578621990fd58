#pragma once

#include "platform/host/headless/headless_host.h"
#include "platform/system/clock.h"
#include "tests/unit/support/invariants.h"
#include "tgx/frame/mainwin.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

inline constexpr int fuzzedWidth = 160; // in pixels; small, so that little time is spent on drawing
inline constexpr int fuzzedHeight = 120;
inline constexpr unsigned mainScript = 141;

/// A main window that allows scripts much less than a game does, because this build is slow.
class FuzzMainWin : public AMainWin {
public:
    FuzzMainWin() : AMainWin(fuzzedWidth, fuzzedHeight, 32)
    {
        scriptLines = 3000;
        scriptWork = 2'000'000;
    }
};

/// Catches CInvalidArgException, as the main loop does. A list box cell with a missing icon raises it, for
/// example.
template<class Part>
void ignoreInvalidArguments(Part part)
{
    try {
        part();
    } catch (const CInvalidArgException&) {
    }
}

inline void queueEvent(AMainWin& window, std::uint8_t byte)
{
    InputQueue& input = displayhost::current().input();
    const int low = byte & 15;
    switch (byte >> 4) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
    case 5:
        input.move((byte >> 4) * fuzzedWidth / 6, low * fuzzedHeight / 16);
        break;
    case 6:
    case 7:
        input.press(static_cast<MouseButton>(low % 3));
        break;
    case 8:
    case 9:
        input.release(static_cast<MouseButton>(low % 3));
        break;
    case 10:
        input.doubleClick(static_cast<MouseButton>(low % 3));
        break;
    case 11:
        input.wheel(low & 1);
        break;
    case 12:
        input.key(static_cast<std::uint8_t>(8 + low * 4), static_cast<char>(low ? 'a' + low : 0));
        break;
    case 13: // open one of the screens "A" to "H"
        window.changeScreen(CString(std::string(1, static_cast<char>('A' + low / 2))), low & 1, mainScript,
                            "script.tgx");
        break;
    case 14:
        window.setPopupWnd(CString(std::string(1, static_cast<char>('A' + low / 2))), window.getActiveWnd(),
                           mainScript, "script.tgx");
        break;
    default:
        window.redrawScreen();
        break;
    }
}

/// Aborts if an invariant is broken, so that libFuzzer keeps the input.
inline void requireInvariants(AMainWin& window)
{
    const std::string broken = checkInvariants(window);
    if (broken.empty())
        return;
    std::fprintf(stderr, "invariant broken: %s\n", broken.c_str());
    std::abort();
}

/// Counts the windows of the tree, but stops at limit.
inline int countWindows(AWnd* wnd, int limit)
{
    int count = 1;
    for (int i = 0; i < wnd->getWindowCount() && count < limit; ++i)
        count += countWindows(wnd->getWndFromIndex(i, ""), limit - count);
    return count;
}

/// Reads a compiled script, draws its windows, sends an event for each byte of events, and deletes the
/// windows. Needs a data directory.
inline void playScript(std::span<const std::uint8_t> compiled, std::span<const std::uint8_t> events)
{
    auto host = std::make_unique<HeadlessHost>();
    host->onMessage = [](const CString&) {}; // a bad script reports many messages
    displayhost::use(std::move(host));
    setVirtualTime(0);

    {
        const EmbeddedResource script("TGXScript", mainScript, compiled.data(), compiled.size());
        AControlsApp app;
        FuzzMainWin window;
        app.mainWin = &window;
        window.startup();
        window.readScriptFile("script.tgx", GetModuleHandleA(nullptr), mainScript, "", 1);
        requireInvariants(window);

        // A few lines can make a hundred thousand windows. Those are drawn once but get no events.
        constexpr int manyWindows = 3000;
        const bool isLarge = countWindows(window.getScreenList(), manyWindows) >= manyWindows;
        for (std::uint8_t byte : events.first(isLarge ? 0 : events.size())) {
            queueEvent(window, byte);
            ignoreInvalidArguments([&] { window.runTick(); });
            requireInvariants(window);
            advanceVirtualTime(41);
            ignoreInvalidArguments([&] { window.runFrame(); });
        }
        const int lastFrames = isLarge ? 1 : 8; // enough to complete a pending change of screens
        for (int frame = 0; frame < lastFrames; ++frame) {
            ignoreInvalidArguments([&] { window.runTick(); });
            advanceVirtualTime(41);
            ignoreInvalidArguments([&] { window.runFrame(); });
        }
        requireInvariants(window);
    }
    displayhost::use(nullptr);
}

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

inline constexpr int fuzzedWidth =
    160; // pixels: small, so that a run is about the windows and not about pixels
inline constexpr int fuzzedHeight = 120;
inline constexpr unsigned mainScript = 141;

/// Allows a script a small part of what a game allows: this build is slow, and one input must not take a
/// minute.
class FuzzMainWin : public AMainWin {
public:
    FuzzMainWin() : AMainWin(fuzzedWidth, fuzzedHeight, 32)
    {
        scriptLines = 3000;
        scriptWork = 2'000'000;
    }
};

/// As the frame loop: a cell with an icon that is not there raises the exception, and the game goes on.
template<class Part>
void survive(Part part)
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
    case 13: // walk into the screens that the script names "A" to "H"
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

/// A tree that disagrees with itself is a crash, so that libFuzzer keeps the input.
inline void demandInvariants(AMainWin& window)
{
    const std::string broken = checkInvariants(window);
    if (broken.empty())
        return;
    std::fprintf(stderr, "invariant broken: %s\n", broken.c_str());
    std::abort();
}

/// Windows of the tree, counted no further than most.
inline int countWindows(AWnd* wnd, int most)
{
    int count = 1;
    for (int i = 0; i < wnd->getWindowCount() && count < most; ++i)
        count += countWindows(wnd->getWndFromIndex(i, ""), most - count);
    return count;
}

/// Reads a compiled script into windows, draws them, hands in an event for each byte of hand, and takes the
/// windows down again. Needs a data directory.
inline void playScript(std::span<const std::uint8_t> compiled, std::span<const std::uint8_t> hand)
{
    auto host = std::make_unique<HeadlessHost>();
    host->onMessage = [](const CString&) {}; // a bad script has much to report
    displayhost::use(std::move(host));
    setVirtualTime(0);

    {
        const EmbeddedResource script("TGXScript", mainScript, compiled.data(), compiled.size());
        AControlsApp app;
        FuzzMainWin window;
        app.mainWin = &window;
        window.startup();
        window.readScriptFile("script.tgx", GetModuleHandleA(nullptr), mainScript, "", 1);
        demandInvariants(window);

        // A few lines can make a hundred thousand windows; those are drawn once and not walked tick by tick.
        constexpr int manyWindows = 3000;
        const bool isLarge = countWindows(window.getScreenList(), manyWindows) >= manyWindows;
        for (std::uint8_t byte : hand.first(isLarge ? 0 : hand.size())) {
            queueEvent(window, byte);
            survive([&] { window.runTick(); });
            demandInvariants(window);
            advanceVirtualTime(41);
            survive([&] { window.runFrame(); });
        }
        const int lastFrames = isLarge ? 1 : 8; // a change that is still waiting is carried out
        for (int frame = 0; frame < lastFrames; ++frame) {
            survive([&] { window.runTick(); });
            advanceVirtualTime(41);
            survive([&] { window.runFrame(); });
        }
        demandInvariants(window);
    }
    displayhost::use(nullptr);
}

// Any bytes are a script: they are read into windows, drawn, clicked about in and taken down again. What must
// hold: no memory fault, no undefined behaviour, no leak, no run without end, and after each tick a tree that
// agrees with itself.
//
// The last bytes of the input are also the player's hand: each is one event. They may well be part of the
// script too.

#include "platform/host/headless_host.h"
#include "platform/system/clock.h"
#include "tests/fuzz/data_directory.h"
#include "tests/unit/support/invariants.h"
#include "tgx/frame/mainwin.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <span>
#include <string>

namespace {

constexpr int fuzzedWidth = 160; // pixels: small, so that a run is about the windows and not about pixels
constexpr int fuzzedHeight = 120;
constexpr std::size_t handBytes = 24;
constexpr unsigned mainScript = 141;

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

void queueEvent(AMainWin& window, std::uint8_t byte)
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
void demandInvariants(AMainWin& window)
{
    const std::string broken = checkInvariants(window);
    if (broken.empty())
        return;
    std::fprintf(stderr, "invariant broken: %s\n", broken.c_str());
    std::abort();
}

/// Windows of the tree, counted no further than most.
int countWindows(AWnd* wnd, int most)
{
    int count = 1;
    for (int i = 0; i < wnd->getWindowCount() && count < most; ++i)
        count += countWindows(wnd->getWndFromIndex(i, ""), most - count);
    return count;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const FuzzDataDirectory directory;
    auto host = std::make_unique<HeadlessHost>();
    host->onMessage = [](const CString&) {}; // a bad script has much to report
    displayhost::use(std::move(host));
    setVirtualTime(0);

    {
        const EmbeddedResource script("TGXScript", mainScript, data, size);
        AControlsApp app;
        FuzzMainWin window;
        app.mainWin = &window;
        window.startup();
        window.readScriptFile("script.tgx", GetModuleHandleA(nullptr), mainScript, "", 1);
        demandInvariants(window);

        // A few lines can make a hundred thousand windows; those are drawn once and not walked tick by tick.
        constexpr int manyWindows = 3000;
        const bool isLarge = countWindows(window.getScreenList(), manyWindows) >= manyWindows;
        const std::span bytes(data, size);
        for (std::uint8_t byte : bytes.last(isLarge ? 0 : size < handBytes ? size : handBytes)) {
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
    return 0;
}

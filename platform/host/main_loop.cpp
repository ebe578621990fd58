#include "platform/display/ddwin.h"
#include "platform/display/host.h"
#include "platform/framework/exceptions.h"

#include <utility>

namespace {

/// Runs parts of the program and catches CInvalidArgException. Reports it only once, because a fault that
/// recurs in every frame would open an endless series of boxes.
class Guard {
public:
    template<class Part>
    void run(Part part)
    {
        try {
            part();
        } catch (const CInvalidArgException&) {
            if (!isReported)
                displayhost::current().showMessage("invalid argument in a frame");
            isReported = true;
        }
    }

private:
    bool isReported = false;
};

bool mustContinue(const ddwin& window)
{
    return window.running && !displayhost::current().closeRequested;
}

/// Closes the window however the loop ends.
struct OpenWindow {
    ddwin& window;
    ~OpenWindow() { displayhost::current().close(window); }
};

} // namespace

int runMainLoop(ddwin& window, const std::function<void()>& onCloseRequest)
{
    if (!displayhost::current().open(window))
        return 1;
    const OpenWindow closing{window};
    displayhost::current().closeRequested = false;
    displayhost::current().userWantsToClose = false;

    Guard guard;
    guard.run([&] { window.startup(); });
    while (mustContinue(window)) {
        int ticks = 0;
        int frames = 0;
        displayhost::current().waitForWork(ticks, frames);
        displayhost::current().pump(window);
        if (std::exchange(displayhost::current().userWantsToClose, false)) {
            if (onCloseRequest)
                guard.run(onCloseRequest);
            else
                displayhost::current().closeRequested = true;
        }
        for (; ticks > 0 && mustContinue(window); --ticks)
            guard.run([&] { window.runTick(); });
        if (frames > 0 && mustContinue(window))
            guard.run([&] { window.runFrame(); });
    }
    return 0;
}

#pragma once

#include "platform/display/input_queue.h"
#include "platform/export.h"
#include "platform/framework/cstring.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <set>
#include <span>
#include <string>

class ddwin;
struct Image;
struct tagRECT;

enum class CursorShape { Normal, Wait };

/// Age in milliseconds beyond which pending moves, wheel notches and key repeats are dropped. After a longer
/// stall, all input that arrived during it is dropped.
constexpr std::uint32_t staleInputMillis = 250;

/// The interface to the system: it shows frames and messages, collects input, sets the cursor and waits.
/// There is one host at a time. A program that chooses none gets the SDL host with its first ddwin.
class TGX_PLATFORM_API displayhost {
public:
    displayhost();
    virtual ~displayhost();
    displayhost(const displayhost&) = delete;
    displayhost& operator=(const displayhost&) = delete;

    /// Returns the current host. Makes the default host if there is none.
    static displayhost& current();
    /// Makes host the current one and returns the previous one. After null, the next current() makes the
    /// default host.
    static std::unique_ptr<displayhost> use(std::unique_ptr<displayhost> host);

    /// Opens the platform window for the game's window, at its size. Returns false, with a message on stderr,
    /// if there is no display.
    virtual bool open(ddwin& window) = 0;
    virtual void close(ddwin& window) = 0;
    /// Shows a frame. changed contains the rectangles, in screen pixels, that differ from the previous frame.
    virtual void show(const Image& screen, std::span<const tagRECT> changed) = 0;
    /// Adds pending events of the system to input().
    virtual void pump(ddwin& window) = 0;
    virtual void setCursor(CursorShape shape) = 0;
    /// Moves the pointer to a position in screen pixels. The next physical movement continues from there.
    virtual void movePointer(int x, int y) = 0;
    /// Shows a text to the user.
    virtual void showMessage(const CString& text) = 0;
    /// Shows a message with its cause, such as a missing folder, which other messages may share. The cause is
    /// printed only after the first of them. An empty cause means that it is unknown.
    virtual void showFailure(const CString& text, const std::string& cause);
    /// Waits until the next tick or frame is due. Sets the number of ticks to run, and of frames (0 or 1) to
    /// run after them.
    virtual void waitForWork(int& ticks, int& frames) = 0;
    /// Applies fullScreen and topMost of an open window. The base does nothing.
    virtual void followFullScreen(ddwin& window);
    /// tickBegins and frameBegins are called before a tick or a frame of window runs, for hosts that observe.
    /// takesInput: the previous tick has ended, so this one takes the next events of input(). The base does
    /// nothing.
    virtual void tickBegins(ddwin& window, bool takesInput);
    virtual void frameBegins(ddwin& window);

    /// Returns whether input that arrives while nothing takes it, such as during a change of screens, is
    /// dropped. A person's input was meant for what was shown at that time, but a played script needs every
    /// event, so the base returns false.
    virtual bool dropsLostInput() const { return false; }

    InputQueue& input() { return queue; }
    /// Set by WM_CLOSE; ends the main loop.
    bool closeRequested = false;
    /// Set when the user closes the window. The main loop handles and clears it.
    bool userWantsToClose = false;

protected:
    /// Returns whether cause has not been printed yet, and marks it as printed.
    bool isNewCause(const std::string& cause) { return !cause.empty() && causes.insert(cause).second; }

private:
    InputQueue queue;
    std::set<std::string> causes; // causes that have been printed
};

/// Makes the default host. Defined in platform/host, because this folder does not depend on the
/// implementations.
std::unique_ptr<displayhost> makeDefaultHost();

/// Opens the window, calls its startup and runs ticks and frames until running is 0 or the window is closed.
/// onCloseRequest is called when the user closes the window; without it, the window is closed at once. A
/// CInvalidArgException ends the tick or frame that raised it and is reported once. Returns the exit status:
/// 0, or 1 if no window could be opened.
TGX_PLATFORM_API int runMainLoop(ddwin& window, const std::function<void()>& onCloseRequest = {});

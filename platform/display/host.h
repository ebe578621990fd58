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

/// Milliseconds. Wheel notches, repeats and moves that wait for longer are of no use to anybody; after a
/// stall that is longer, nor is what came during it.
constexpr std::uint32_t staleInputMillis = 250;

/// The one seam to the outside: shows frames, brings input, sets the cursor, shows messages, waits. There is
/// one host at a time. A program that chooses none gets the SDL window with its first ddwin.
class TGX_PLATFORM_API displayhost {
public:
    displayhost();
    virtual ~displayhost();
    displayhost(const displayhost&) = delete;
    displayhost& operator=(const displayhost&) = delete;

    /// The host in use; chosen here if none was.
    static displayhost& current();
    /// Puts a host into use and returns the one before. Null: the next current() chooses anew.
    static std::unique_ptr<displayhost> use(std::unique_ptr<displayhost> host);

    /// Opens the platform window for the game's window, at its size. False with a message on stderr when
    /// there is no display.
    virtual bool open(ddwin& window) = 0;
    virtual void close(ddwin& window) = 0;
    /// Shows a frame. changed: the rectangles, in screen pixels, that differ from the frame before; empty
    /// when none does.
    virtual void show(const Image& screen, std::span<const tagRECT> changed) = 0;
    /// Brings what has arrived from outside into input().
    virtual void pump(ddwin& window) = 0;
    virtual void setCursor(CursorShape shape) = 0;
    /// Moves the pointer, screen pixels; the next physical movement goes on from there.
    virtual void movePointer(int x, int y) = 0;
    /// Shows a text to the user.
    virtual void showMessage(const CString& text) = 0;
    /// Shows a text that follows from cause, such as a missing folder, which many texts may follow from. The
    /// cause is told after the first of them; "" when nothing explains the text.
    virtual void showFailure(const CString& text, const std::string& cause);
    /// Returns when the next tick or frame is due; the two counts say how many ticks to run before how many
    /// frames (0 or 1).
    virtual void waitForWork(int& ticks, int& frames) = 0;
    /// Takes over the fullScreen and topMost of a window that is open. The base has no screen to fill.
    virtual void followFullScreen(ddwin& window);
    /// A tick or a frame of window is about to run; takesInput: the tick before has ended, so this one takes
    /// what stands at the head of input(). For hosts that watch; the base does nothing.
    virtual void tickBegins(ddwin& window, bool takesInput);
    virtual void frameBegins(ddwin& window);

    /// Whether input that comes while nothing takes it, such as during a change of screens, is dropped. A
    /// person in front of a window means it for what was shown then; a played run hands everything out, so
    /// the base says no.
    virtual bool dropsLostInput() const { return false; }

    InputQueue& input() { return queue; }
    /// Set by WM_CLOSE; the main loop ends then.
    bool closeRequested = false;
    /// The user has asked for the window to be closed. The main loop passes it on and clears it.
    bool userWantsToClose = false;

protected:
    /// Whether cause has not been told yet; from now on it has.
    bool isNewCause(const std::string& cause) { return !cause.empty() && causes.insert(cause).second; }

private:
    InputQueue queue;
    std::set<std::string> causes; // that have been told
};

/// Makes the host of a program that chooses none. Defined beside the implementations, which this folder does
/// not know.
std::unique_ptr<displayhost> makeDefaultHost();

/// Opens the window, calls its startup and runs ticks and frames until running is 0 or the window is closed.
/// onCloseRequest is called when the user wants to close the window; without it that closes the window. An
/// invalid argument ends the frame it came from and is reported once. Exit status: 0, or 1 when no window
/// could be opened.
TGX_PLATFORM_API int runMainLoop(ddwin& window, const std::function<void()>& onCloseRequest = {});

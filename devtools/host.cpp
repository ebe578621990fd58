#include "devtools/host.h"

#include "platform/display/ddwin.h"
#include "platform/system/clock.h"

#include <utility>

namespace tgx {

WatchingHost::WatchingHost(std::unique_ptr<displayhost> watched, HostWatcher& watchedBy)
    : inner(std::move(watched)), watcher(watchedBy)
{}

std::unique_ptr<displayhost> WatchingHost::release()
{
    inner->closeRequested = inner->closeRequested || closeRequested;
    for (const InputQueue::Event& event : input().getEvents())
        inner->input().add(event);
    return std::move(inner);
}

bool WatchingHost::open(ddwin& window)
{
    inner->closeRequested = false;
    return inner->open(window);
}

void WatchingHost::close(ddwin& window)
{
    inner->close(window);
}

void WatchingHost::show(const Image& screen, std::span<const tagRECT> changed)
{
    const Image& picture = watcher.pictureOf(screen, changed);
    const tagRECT whole{0, 0, picture.width, picture.height};
    // A picture with an overlay is completely repainted each time.
    if (&picture != &screen || &picture != shown)
        inner->show(picture, {&whole, 1});
    else
        inner->show(picture, changed);
    shown = &picture;
}

void WatchingHost::pump(ddwin& window)
{
    inner->pump(window);
    closeRequested = closeRequested || inner->closeRequested;
    userWantsToClose = std::exchange(inner->userWantsToClose, false) || userWantsToClose;
    // The watcher may cause more input: a window that changes releases the keys and buttons that are held.
    while (!inner->input().empty())
        if (const InputQueue::Event event = inner->input().take(); !watcher.takesInput(event))
            input().add(event);
    input().dropStale(timeGetTime(), staleInputMillis);
}

void WatchingHost::setCursor(CursorShape shape)
{
    inner->setCursor(shape);
}

void WatchingHost::movePointer(int x, int y)
{
    input().dropMovesAtHead();
    inner->movePointer(x, y);
}

void WatchingHost::showMessage(const CString& text)
{
    watcher.showMessage(text, "");
}

void WatchingHost::showFailure(const CString& text, const std::string& cause)
{
    watcher.showMessage(text, cause);
}

void WatchingHost::waitForWork(int& ticks, int& frames)
{
    inner->waitForWork(ticks, frames);
}

void WatchingHost::followFullScreen(ddwin& window)
{
    inner->followFullScreen(window);
}

void WatchingHost::tickBegins(ddwin& window, bool takesInput)
{
    watcher.tickBegins(input(), takesInput);
    inner->tickBegins(window, takesInput);
}

void WatchingHost::frameBegins(ddwin& window)
{
    watcher.frameBegins();
    inner->frameBegins(window);
}

} // namespace tgx

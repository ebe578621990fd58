#pragma once

#include "platform/display/host.h"

namespace tgx {

/// Receives what passes through a WatchingHost.
class HostWatcher {
public:
    virtual ~HostWatcher() = default;
    /// Handles input that has arrived. Returns true to keep it from the game.
    virtual bool takesInput(const InputQueue::Event& event) = 0;
    /// Called before each tick. If the tick takes new input, it takes it from the head of next.
    virtual void tickBegins(const InputQueue& next, bool takesNew) = 0;
    /// Called before each frame, outside any handler, so the interface may be deleted here.
    virtual void frameBegins() = 0;
    /// Returns the picture to show instead of screen, or screen itself. All of it is shown if it is a
    /// different object than in the previous frame.
    virtual const Image& pictureOf(const Image& screen, std::span<const tagRECT> changed) = 0;
    /// cause: what the message and others may follow from; "" for none that is known.
    virtual void showMessage(const CString& text, const std::string& cause) = 0;
};

/// Wraps the host that was in use and shows a watcher everything that passes.
class WatchingHost : public displayhost {
public:
    /// Does not own watcher, which must live longer.
    WatchingHost(std::unique_ptr<displayhost> watched, HostWatcher& watcher);
    /// Returns the wrapped host, for use without this one. Passes waiting input to it.
    std::unique_ptr<displayhost> release();

    bool open(ddwin& window) override;
    void close(ddwin& window) override;
    void show(const Image& screen, std::span<const tagRECT> changed) override;
    void pump(ddwin& window) override;
    void setCursor(CursorShape shape) override;
    void movePointer(int x, int y) override;
    void showMessage(const CString& text) override;
    void showFailure(const CString& text, const std::string& cause) override;
    void waitForWork(int& ticks, int& frames) override;
    void followFullScreen(ddwin& window) override;
    void tickBegins(ddwin& window, bool takesInput) override;
    void frameBegins(ddwin& window) override;
    bool dropsLostInput() const override { return inner->dropsLostInput(); }

private:
    std::unique_ptr<displayhost> inner;
    HostWatcher& watcher;
    const Image* shown = nullptr; // picture of the last frame; compared, never dereferenced
};

} // namespace tgx

#pragma once

#include "platform/display/host.h"

/// Who stands behind a WatchingHost.
class HostWatcher {
public:
    virtual ~HostWatcher() = default;
    /// Input that has arrived. True: it does not go on to the game.
    virtual bool takesInput(const InputQueue::Event& event) = 0;
    /// What stands at the head of next is what the tick takes, if it takes new input.
    virtual void tickBegins(const InputQueue& next, bool takesNew) = 0;
    /// Outside of any handler: here the interface may be taken down.
    virtual void frameBegins() = 0;
    /// The picture that is shown instead of screen, or screen itself; all of it is shown when it is another
    /// one than that of the frame before.
    virtual const Image& pictureOf(const Image& screen, std::span<const tagRECT> changed) = 0;
    /// cause: what the message and others may follow from; "" for none that is known.
    virtual void showMessage(const CString& text, const std::string& cause) = 0;
};

/// Stands in front of the host that was in use and shows a watcher all that passes.
class WatchingHost : public displayhost {
public:
    /// watcher is not owned and has to live longer.
    WatchingHost(std::unique_ptr<displayhost> watched, HostWatcher& watcher);
    /// The host behind, for use without this one; what waits goes over to it.
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
    const Image* shown = nullptr; // last; compared, never read
};

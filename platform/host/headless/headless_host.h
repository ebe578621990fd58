#pragma once

#include "platform/display/host.h"

#include <functional>

/// A host without a window or a clock: its owner runs the ticks and frames. Messages are passed to onMessage
/// or, without one, printed to stderr as "message: TEXT".
class TGX_PLATFORM_API HeadlessHost : public displayhost {
public:
    bool open(ddwin& window) override;
    void close(ddwin& window) override;
    void show(const Image& screen, std::span<const tagRECT> changed) override;
    void pump(ddwin& window) override;
    void setCursor(CursorShape shape) override;
    void movePointer(int x, int y) override;
    void showMessage(const CString& text) override;
    void showFailure(const CString& text, const std::string& cause) override;
    void waitForWork(int& ticks, int& frames) override;
    bool dropsLostInput() const override { return dropsInput; }

    /// Whether input that arrives while nothing takes it is dropped, as by a host for a person.
    bool dropsInput = false;
    CursorShape cursor = CursorShape::Normal;
    std::function<void(const CString&)> onMessage;
    /// Receives the messages that have a cause. If it is not set, onMessage receives them without the cause.
    std::function<void(const CString&, const std::string& cause)> onFailure;
};

#pragma once

#include "platform/display/pen.h"

/// A pen, the one kind of object that a device context draws with.
struct GdiObject {
    int width = 1;            // pixels
    std::uint32_t colour = 0; // red in the low byte
    int selections = 0;       // contexts that it is in; it is not deleted before the last lets go
};

struct DeviceContext {
    explicit DeviceContext(ddwin& window);
    ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;
    /// Puts in a pen; the one before.
    GdiObject* select(GdiObject* newPen);

    ddwin& owner;
    GdiObject* pen;
    POINT at;
    int backgroundMode = TRANSPARENT;
};

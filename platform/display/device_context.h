#pragma once

#include "platform/display/pen.h"

/// A pen, the only kind of object that a device context draws with.
struct GdiObject {
    int width = 1;            // pixels
    std::uint32_t colour = 0; // red in the low byte
    int selections = 0;       // number of contexts that use it; it is deleted only when that is 0
};

struct DeviceContext {
    explicit DeviceContext(ddwin& window);
    ~DeviceContext();
    DeviceContext(const DeviceContext&) = delete;
    DeviceContext& operator=(const DeviceContext&) = delete;
    /// Selects a pen and returns the previous one.
    GdiObject* select(GdiObject* newPen);

    ddwin& owner;
    GdiObject* pen;
    POINT at;
    int backgroundMode = TRANSPARENT;
};

#pragma once

#include "platform/export.h"

/// Base class for the connections of the online client library. This platform has no network, so a socket is
/// always closed.
class TGX_PLATFORM_API CSocket {
public:
    virtual ~CSocket() = default;
    /// Closes the connection. Does nothing if it is not open.
    virtual void Close() {}
};

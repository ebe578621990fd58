#pragma once

#include "platform/export.h"

/// Base of the connections of the online client library. This platform has no network: it is always closed.
class TGX_PLATFORM_API CSocket {
public:
    virtual ~CSocket() = default;
    /// Ends the connection. Does nothing on one that is not open.
    virtual void Close() {}
};

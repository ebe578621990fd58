#pragma once

#include "platform/export.h"
#include "platform/framework/csocket.h"

/// The connection of the online client library to its server. There is no network behind it: it is never
/// open.
class TGX_PLATFORM_API CClientConnection : public CSocket {
public:
    /// Ends the connection, if there is one.
    void Close() override;
};

/// The program's one connection.
extern TGX_PLATFORM_API CClientConnection g_Connection;

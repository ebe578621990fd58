#pragma once

#include "platform/export.h"
#include "platform/online/record.h"

struct NetTimerFields {
    std::uint32_t Started = 0; // used by the client library only, like Duration
    std::uint32_t Duration = 0;
    NetFlag Timer = 0;
    NetFlag Paused = 0;
};

/// The timer of a connection.
class TGX_PLATFORM_API CNetTimer : public OnlineRecord<NetTimerFields> {
public:
    bool Timer() const;
    bool Paused() const;
};

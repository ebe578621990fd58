#pragma once

#include "platform/export.h"
#include "platform/online/record.h"

struct NetTimerFields {
    std::uint32_t Started = 0; // the timer's own words
    std::uint32_t Duration = 0;
    NetFlag Timer = 0;
    NetFlag Paused = 0;
};

/// The timer of a connection. Copies as a whole.
class TGX_PLATFORM_API CNetTimer : public OnlineRecord<NetTimerFields> {
public:
    bool Timer() const;
    bool Paused() const;
};

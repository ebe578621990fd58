#pragma once

#include "platform/export.h"
#include "platform/online/record.h"

struct LogFileFields {
    char Buffer[255] = {};
    NetFlag Logging = 0;
    NetFlag Date = 0;
    NetFlag Time = 0;
};

/// The log of a connection: whether it is on, and whether entries have date and time. This stand-in writes no
/// file. A copy includes the buffer.
class TGX_PLATFORM_API CLogFile : public OnlineRecord<LogFileFields> {
public:
    CLogFile() = default;
    CLogFile(const CLogFile&) = default;
    CLogFile& operator=(const CLogFile&) = default;
    virtual ~CLogFile();

    void TurnOnLogging();
    void TurnOffLogging();
    void TurnOnDate();
    void TurnOffDate();
    void TurnOnTime();
    void TurnOffTime();
};

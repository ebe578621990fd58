#include "platform/online/logfile.h"
#include "tgx/online/accessors.h"

#define RECORD CLogFile

#define LOG_SWITCH(NAME)                                                                                     \
    void RECORD::TurnOn##NAME()                                                                              \
    {                                                                                                        \
        fields.NAME = 1;                                                                                     \
    }                                                                                                        \
    void RECORD::TurnOff##NAME()                                                                             \
    {                                                                                                        \
        fields.NAME = 0;                                                                                     \
    }

LOG_SWITCH(Logging)
LOG_SWITCH(Date)
LOG_SWITCH(Time)

#undef LOG_SWITCH
#undef RECORD

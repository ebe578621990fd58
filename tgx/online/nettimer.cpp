#include "platform/online/nettimer.h"
#include "tgx/online/accessors.h"

#define RECORD CNetTimer

READ_ONLY(bool, Timer)
READ_ONLY(bool, Paused)

#undef RECORD

#pragma once

/// The records of online play. Classes and fields are the client library's; their accessors are the
/// toolkit's, defined in this folder. See platform/online/connection.h.

#include "platform/online/connection.h"
#include "platform/online/netchallenge.h"
#include "platform/online/netgame.h"

#pragma once

/// The records of online play. The client library declares the classes and fields; the toolkit defines their
/// accessors in this folder. See platform/online/connection.h.

#include "platform/online/connection.h"
#include "platform/online/netchallenge.h"
#include "platform/online/netgame.h"

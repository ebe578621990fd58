#pragma once

#include "platform/display/host.h"

#include <memory>

/// Makes the default host, which shows a desktop window.
std::unique_ptr<displayhost> makeSdlHost();

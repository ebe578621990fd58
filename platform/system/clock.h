#pragma once

#include "platform/export.h"

#include <cstdint>

/// Milliseconds since some moment before the program's start. The one source of time of toolkit and platform
/// library.
TGX_PLATFORM_API std::uint32_t timeGetTime();

/// Drives timeGetTime by hand, for tests and replays: from the first call on it stands still but for these
/// two.
TGX_PLATFORM_API void setVirtualTime(std::uint32_t milliseconds);
TGX_PLATFORM_API void advanceVirtualTime(std::uint32_t milliseconds);
/// Back to the machine's clock.
TGX_PLATFORM_API void useRealTime();

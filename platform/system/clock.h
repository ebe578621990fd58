#pragma once

#include "platform/export.h"

#include <cstdint>

/// Returns the milliseconds since an unspecified moment before the program's start. The toolkit and the
/// platform library use no other source of time.
TGX_PLATFORM_API std::uint32_t timeGetTime();

/// Drives timeGetTime by hand, for tests and replays: from the first call on, the time changes only by these
/// two functions.
TGX_PLATFORM_API void setVirtualTime(std::uint32_t milliseconds);
TGX_PLATFORM_API void advanceVirtualTime(std::uint32_t milliseconds);
/// Returns timeGetTime to the machine's clock.
TGX_PLATFORM_API void useRealTime();

#include "platform/system/clock.h"

#include <chrono>
#include <optional>

namespace {

std::optional<std::uint32_t> virtualTime;

} // namespace

std::uint32_t timeGetTime()
{
    if (virtualTime)
        return *virtualTime;
    const auto sinceStart = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<std::uint32_t>(
        std::chrono::duration_cast<std::chrono::milliseconds>(sinceStart).count());
}

void setVirtualTime(std::uint32_t milliseconds)
{
    virtualTime = milliseconds;
}

void advanceVirtualTime(std::uint32_t milliseconds)
{
    virtualTime = timeGetTime() + milliseconds;
}

void useRealTime()
{
    virtualTime.reset();
}

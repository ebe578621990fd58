#include "tgx/frame/governor.h"

int FrameGovernor::stepFor(std::uint32_t now, int targetFPS)
{
    const std::uint32_t delta = now == lastDrawTime ? 1 : now - lastDrawTime;
    currentFPS = static_cast<int>(1000 / delta);
    if (targetFPS < 1)
        targetFPS = 1;

    if (currentFPS > targetFPS) {
        slowFrames = 0;
        const int skip = (currentFPS - targetFPS) / targetFPS;
        if (skipCounter < skip) {
            ++skipCounter;
            return 0;
        }
        skipCounter = 0;
        return 1;
    }

    // A few slow frames do not raise the step.
    const int step = currentFPS != 0 && slowFrames > 2 ? targetFPS / currentFPS : 1;
    ++slowFrames;
    return step;
}

#include "platform/display/host.h"
#include "platform/host/sdl/sdl_host.h"

std::unique_ptr<displayhost> makeDefaultHost()
{
    return makeSdlHost();
}

#include "platform/display/host.h"

#include "platform/display/message_text.h"

#include <utility>

namespace {

/// Never destroyed: a ddwin that is a static object still says goodbye to its host. Closing the window gives
/// back what a host holds of the system.
std::unique_ptr<displayhost>& hostInUse()
{
    static auto& host = *new std::unique_ptr<displayhost>;
    return host;
}

} // namespace

displayhost::displayhost() = default;
displayhost::~displayhost() = default;

void displayhost::showFailure(const CString& text, const std::string& cause)
{
    showMessage(text);
    if (isNewCause(cause))
        printNote(cause);
}

void displayhost::followFullScreen(ddwin&) {}
void displayhost::tickBegins(ddwin&, bool) {}
void displayhost::frameBegins(ddwin&) {}

displayhost& displayhost::current()
{
    if (!hostInUse())
        hostInUse() = makeDefaultHost();
    return *hostInUse();
}

std::unique_ptr<displayhost> displayhost::use(std::unique_ptr<displayhost> host)
{
    return std::exchange(hostInUse(), std::move(host));
}

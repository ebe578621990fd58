#include "platform/display/host.h"

#include "platform/display/message_text.h"

#include <utility>

namespace {

/// Never destroyed, because a static ddwin still calls its host at exit. Closing the window already releases
/// the system resources of a host.
std::unique_ptr<displayhost>& currentHost()
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
    if (!currentHost())
        currentHost() = makeDefaultHost();
    return *currentHost();
}

std::unique_ptr<displayhost> displayhost::use(std::unique_ptr<displayhost> host)
{
    return std::exchange(currentHost(), std::move(host));
}

#include "devtools/notices.h"

#include "platform/system/clock.h"

namespace tgx {

namespace {

constexpr std::uint32_t noticeMillis = 6000;
constexpr std::size_t maxNotices = 5;
constexpr std::size_t maxFaults = 12; // in the panel; the terminal shows all of them

constexpr std::uint32_t headingColour = 0xFFB080;
constexpr std::uint32_t faultColour = 0xFFE0D0;
constexpr std::uint32_t noticeColour = 0xD0F0D0;
constexpr std::uint32_t statusColour = 0xFF7060;

} // namespace

void Notices::tell(std::string text)
{
    notices.push_back({std::move(text), timeGetTime()});
    if (notices.size() > maxNotices)
        notices.pop_front();
}

std::vector<std::string> Notices::getNotices() const
{
    std::vector<std::string> texts;
    for (const Notice& each : notices)
        texts.push_back(each.text);
    return texts;
}

bool Notices::isShowing()
{
    std::erase_if(notices, [&](const Notice& each) { return timeGetTime() - each.since > noticeMillis; });
    return !faults.empty() || !notices.empty() || !status.empty();
}

void Notices::paint(Overlay& overlay) const
{
    std::vector<PanelLine> lines;
    if (!status.empty())
        lines.push_back({status, statusColour});
    if (!faults.empty())
        lines.push_back({"Errors:", headingColour});
    for (std::size_t i = 0; i < faults.size() && i < maxFaults; ++i)
        lines.push_back({faults[i], faultColour});
    if (faults.size() > maxFaults)
        lines.push_back({"... and " + std::to_string(faults.size() - maxFaults) + " more", headingColour});
    for (const Notice& each : notices)
        lines.push_back({each.text, noticeColour});
    paintPanel(overlay, lines, Corner::TopLeft);
}

} // namespace tgx

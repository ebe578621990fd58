#include "devtools/inspector.h"

#include "devtools/inspected.h"
#include "devtools/origins.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <cstdio>

namespace tgx {

namespace {

constexpr std::uint32_t costColour = 0xC0FFC8;
constexpr std::uint32_t shadeColour = 0x000000;
constexpr std::uint32_t headingColour = 0x9FB2C6;
constexpr int tagShare = 220;
constexpr int tagPadding = 3; // pixels of the font

Box boxOf(const AWnd& wnd)
{
    return {wnd.left(), wnd.top(), wnd.right(), wnd.bottom()};
}

Box grown(const Box& box, int by)
{
    return {box.x0 - by, box.y0 - by, box.x1 + by, box.y1 + by};
}

std::string nameOfKey(int code)
{
    constexpr int functionKeys = 24;
    if (code >= VK_F1 && code < VK_F1 + functionKeys)
        return 'F' + std::to_string(code - VK_F1 + 1);
    if ((code >= '0' && code <= '9') || (code >= 'A' && code <= 'Z'))
        return std::string(1, static_cast<char>(code));
    return "key " + std::to_string(code);
}

/// Writes a number with a comma at each thousand.
std::string grouped(long number)
{
    std::string digits = std::to_string(number);
    for (std::size_t end = digits.size(); end > 3; end -= 3)
        digits.insert(end - 3, 1, ',');
    return digits;
}

std::string format(const char* pattern, double number)
{
    char text[64];
    std::snprintf(text, sizeof text, pattern, number);
    return text;
}

void paintOutlines(Overlay& overlay, const Census& census)
{
    for (const Census::Shown& each : census.shown)
        overlay.outline(boxOf(*each.wnd), outlineColour(each.kind));
    for (const DuplicateId& duplicate : census.duplicates)
        for (const AWnd* wnd : duplicate.wnds)
            if (wnd->isVisible(1)) {
                overlay.outline(boxOf(*wnd), duplicateColour);
                overlay.outline(grown(boxOf(*wnd), -1), duplicateColour);
            }
}

/// Places a tag above the box, else below it, else inside; not under the pointer if possible.
Box placeOfTag(const Overlay& overlay, const Box& box, int width, int height, int pointerX, int pointerY)
{
    const int x = std::clamp(box.x0, 0, std::max(0, overlay.width() - width));
    const int tops[] = {box.y0 - 1 - height, box.y1 + 1, std::max(box.y0, 0) + 2,
                        std::min(box.y1, overlay.height()) - 2 - height};
    for (const int top : tops) {
        const Box tag{x, top, x + width, top + height};
        const bool isOnScreen = top >= 0 && tag.y1 <= overlay.height();
        const bool isUnderPointer =
            pointerX >= tag.x0 && pointerX < tag.x1 && pointerY >= tag.y0 && pointerY < tag.y1;
        if (isOnScreen && !isUnderPointer)
            return tag;
    }
    return {x, 0, x + width, height};
}

void append(std::vector<PanelLine>& lines, const std::vector<PanelLine>& more)
{
    lines.insert(lines.end(), more.begin(), more.end());
}

} // namespace

std::vector<PanelLine> describeCost(const FrameCost& cost, long screenPixels)
{
    const double share = screenPixels > 0 ? 100.0 * cost.changedPixels / screenPixels : 0;
    return {{"frame\t" + format("%.2f ms", cost.micros / 1000.0) + ", " +
                 format("%.2f on average", cost.averageMicros / 1000.0),
             costColour},
            {"drawn\t" + grouped(cost.commands) + " commands", costColour},
            {"changed\t" + grouped(cost.changedPixels) + " pixels, " + format("%.1f %%", share), costColour}};
}

std::string describeKeys(const DevToolsOptions& keys)
{
    const struct {
        int code;
        const char* meaning;
    } rows[] = {
        {keys.inspectorKey, "inspector"}, {keys.fullScreenKey, "full screen"}, {keys.pictureKey, "picture"},
        {keys.recorderKey, "record"},     {keys.screensKey, "screens"},
    };
    std::string help;
    for (const auto& row : rows)
        if (row.code != 0)
            help += (help.empty() ? "" : " \xB7 ") + nameOfKey(row.code) + ' ' + row.meaning;
    return help;
}

Inspector::Inspector(AMainWin& mainWin, const Origins& madeBy, const DevToolsOptions& keys)
    : game(mainWin), origins(madeBy), keyHelp(describeKeys(keys))
{}

void Inspector::next()
{
    setting = setting == Off ? Hovered : setting == Hovered ? All : Off;
}

void Inspector::paint(Overlay& overlay, const FrameCost& cost) const
{
    if (setting == Off)
        return;
    std::vector<PanelLine> lines;
    AWnd* wnd = shownWindowAt(game, game.mouseX, game.mouseY);
    if (wnd)
        append(lines, describeWindow(game, *wnd, game.mouseX, game.mouseY, origins.placeOf(*wnd)));
    else
        lines.push_back({"no window is under the pointer", headingColour});
    if (setting == All) {
        const Census census = takeCensus(game);
        paintOutlines(overlay, census);
        lines.push_back({""});
        append(lines, describeCensus(census));
    }
    if (wnd)
        paintHovered(overlay, *wnd);

    // Panels are in the half of the screen without the pointer.
    const int middle = overlay.width() / 2;
    const bool isPointerLeft = game.mouseX < middle;
    Box room = isPointerLeft ? Box{middle, 0, overlay.width(), overlay.height()}
                             : Box{0, 0, middle, overlay.height()};
    const Corner corner = isPointerLeft ? Corner::BottomRight : Corner::BottomLeft;
    std::vector<PanelLine> costLines =
        describeCost(cost, static_cast<long>(overlay.width()) * overlay.height());
    costLines.push_back({keyHelp, headingColour});
    if (const Box costBox = paintPanel(overlay, costLines, corner, room); !costBox.isEmpty())
        room.y1 = costBox.y0;
    paintPanel(overlay, lines, corner, room);
}

/// Paints the window's outline, visible on any background, and its name.
void Inspector::paintHovered(Overlay& overlay, const AWnd& wnd) const
{
    const Box box = boxOf(wnd);
    overlay.outline(grown(box, 1), shadeColour);
    overlay.outline(grown(box, -1), shadeColour);
    overlay.outline(box, hoveredColour);

    const int padding = tagPadding * overlay.scale();
    const std::string name = overlay.fitted(titleOf(wnd) + "  " + std::to_string(wnd.width()) + " x " +
                                                std::to_string(wnd.height()),
                                            overlay.width() - 2 * padding);
    const Box tag = placeOfTag(overlay, box, overlay.textWidth(name) + 2 * padding,
                               overlay.lineHeight() + padding, game.mouseX, game.mouseY);
    overlay.fill(tag, shadeColour, tagShare);
    overlay.text(tag.x0 + padding, tag.y0 + padding / 2, name, hoveredColour);
}

} // namespace tgx

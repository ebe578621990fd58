// Rules for boxes: windows outside of others, and behind others.

#include "tgx/wnd/border.h"
#include "tools/tgx/check/tree.h"
#include "tools/tgx/check/words.h"

#include <algorithm>

namespace script_check {

namespace {

/// A window that lies on top of others. Of very many only the largest are kept.
struct Cover {
    Box box; // screen pixels
    AWnd* wnd;
    bool isOpaque; // nothing behind box can be seen
    bool takesClicks;
};
constexpr std::size_t mostCovers = 64;

class LayoutRules {
public:
    explicit LayoutRules(TreeCheck& treeCheck) : check(treeCheck) {}

    void enter(AWnd& parent, const Box& at, std::vector<Cover> covers, bool isRoot)
    {
        const bool showsOneAtATime = parent.getWindowType() == AWnd::WND_TABCONTROL || isRoot;
        const std::size_t inherited = covers.size();
        for (int i = parent.getWindowCount() - 1; i >= 0; --i) {
            AWnd* child = parent.getWndFromIndex(i, "");
            if (!child || child->getParent() != &parent || !seen.insert(child).second)
                continue; // a window that is shown here too is looked at in its first place
            Box box = boxOf(*child);
            box.x += at.x;
            box.y += at.y;
            if (isRoot)
                checkTop(*child);
            else
                checkInside(*child, parent, box, at);
            const bool shows = child->isVisible(0);
            if (shows && !isRoot)
                checkCovered(*child, box, covers);
            enter(*child, box, shows ? covers : std::vector<Cover>(), false);
            if (shows && !showsOneAtATime)
                putOnTop(*child, box, covers, inherited);
        }
    }

private:
    /// A popup is put in the middle when it opens, so its position says nothing.
    void checkTop(AWnd& wnd)
    {
        const bool isTooLarge = check.screenWidth > 0 && (wnd.getWndWidth() > check.screenWidth ||
                                                          wnd.getWndHeight() > check.screenHeight);
        if (wnd.getWindowType() == AWnd::WND_PLAIN && isTooLarge)
            check.add("sticks-out", wnd,
                      describe(wnd) + " is " + size(wnd.getWndWidth(), wnd.getWndHeight()) +
                          ", larger than the screen of " + size(check.screenWidth, check.screenHeight));
    }

    void checkInside(AWnd& wnd, AWnd& parent, const Box& box, const Box& around)
    {
        // Where parts lie their control says, and what the game's classes do with their boxes nobody knows.
        if (around.holds(box) || isPart(check, wnd) || check.reading.isOfGame(&wnd) ||
            isControlWithParts(parent))
            return;
        const bool isText = !wnd.getText().IsEmpty();
        const std::string parentAndSize = describe(parent) + " (" + size(around.w, around.h) + ")";
        if (!around.touches(box))
            check.add("sticks-out", wnd, describe(wnd) + " lies outside of " + parentAndSize);
        else if (isControl(wnd) || isText)
            check.add("sticks-out", wnd,
                      describe(wnd) + " sticks out of " + parentAndSize + ' ' + sides(box, around) +
                          (isControl(wnd) ? "; what lies outside takes no clicks" : ""));
    }

    static bool isControlWithParts(const AWnd& wnd)
    {
        const int type = wnd.getWindowType();
        return type == AWnd::WND_LISTBOX || type == AWnd::WND_COMBOBOX || type == AWnd::WND_BUTTON ||
               type == AWnd::WND_RADIOBUTTON;
    }

    /// "by 20 pixels on the right and 3 below".
    static std::string sides(const Box& box, const Box& around)
    {
        const struct {
            int pixels;
            const char* where;
        } each[] = {{around.x - box.x, "on the left"},
                    {box.right() - around.right(), "on the right"},
                    {around.y - box.y, "above"},
                    {box.bottom() - around.bottom(), "below"}};
        std::string out;
        for (const auto& side : each)
            if (side.pixels > 0)
                out += (out.empty() ? "by " : " and ") + std::to_string(side.pixels) +
                       (out.empty() ? side.pixels == 1 ? " pixel " : " pixels " : " ") + side.where;
        return out;
    }

    void checkCovered(AWnd& wnd, const Box& box, const std::vector<Cover>& covers)
    {
        if (box.w <= 0 || box.h <= 0 || check.reading.isOfGame(&wnd) || isPart(check, wnd))
            return;
        const bool takesClicks = isControl(wnd) && wnd.getEnabled();
        const bool shows = !wnd.getBmpFilename().IsEmpty() || !wnd.getText().IsEmpty() || isControl(wnd);
        for (const Cover& cover : covers) {
            if (!cover.box.holds(box))
                continue;
            if (takesClicks && cover.takesClicks) {
                check.add("covered", wnd,
                          describe(wnd) + " lies wholly behind " + describe(*cover.wnd) + lineOf(*cover.wnd) +
                              ", which takes its clicks");
                return;
            }
            if (shows && cover.isOpaque) {
                check.add("covered", wnd,
                          describe(wnd) + " cannot be seen: " + describe(*cover.wnd) + lineOf(*cover.wnd) +
                              " lies over it");
                return;
            }
        }
    }

    std::string lineOf(const AWnd& wnd) const
    {
        const WndLines* lines = check.reading.linesOf(&wnd);
        return lines && lines->made
                   ? " of line " + std::to_string(lines->made.script->numberOf(lines->made.line))
                   : "";
    }

    void putOnTop(AWnd& wnd, const Box& box, std::vector<Cover>& covers, std::size_t inherited)
    {
        // The game moves and hides its own, and a menu shows for a moment.
        if (check.reading.isOfGame(&wnd) || isPart(check, wnd) || box.w <= 0 || box.h <= 0)
            return;
        Cover cover{box, &wnd, isOpaque(wnd), wnd.getEnabled() != 0};
        const auto area = [](const Cover& each) { return static_cast<long long>(each.box.w) * each.box.h; };
        if (covers.size() < mostCovers) {
            covers.push_back(cover);
            return;
        }
        const auto smallest = std::min_element(
            covers.begin() + static_cast<std::ptrdiff_t>(std::min(inherited, mostCovers - 1)), covers.end(),
            [&](const Cover& a, const Cover& b) { return area(a) < area(b); });
        if (area(*smallest) < area(cover))
            *smallest = cover;
    }

    /// A still picture over the whole box, up to and with its edge.
    bool isOpaque(AWnd& wnd)
    {
        constexpr int halfMode = 2; // and above: what lies behind shows through
        if (wnd.getBmpFilename().IsEmpty() || wnd.getBorder() || wnd.getBmpBlitMode() >= halfMode ||
            wnd.getWindowType() != AWnd::WND_PLAIN || wnd.getBmpOffsetX() || wnd.getBmpOffsetY())
            return false;
        const Picture* picture = check.pictures.find(wnd.getBmpFilename().str());
        if (!picture || !picture->isOpaque)
            return false;
        if (wnd.getBmpTile())
            return wnd.getFrameWidth() <= 0 || wnd.getFrameWidth() >= picture->width;
        return wnd.getBmpStretch() ||
               (picture->width >= wnd.getWndWidth() && picture->height >= wnd.getWndHeight());
    }

    TreeCheck& check;
    std::unordered_set<const AWnd*> seen;
};

} // namespace

bool isControl(const AWnd& wnd)
{
    switch (wnd.getWindowType()) {
    case AWnd::WND_BUTTON:
    case AWnd::WND_RADIOBUTTON:
    case AWnd::WND_COMBOBOX:
    case AWnd::WND_EDITBOX:
    case AWnd::WND_LISTBOX:
    case AWnd::WND_SCROLLBAR:
        return true;
    default:
        return false;
    }
}

bool isPart(const TreeCheck& check, const AWnd& wnd)
{
    const WndLines* lines = check.reading.linesOf(&wnd);
    if (!lines || !lines->made)
        return true; // a control has made it
    const Statement* statement = lines->made.script->statement(lines->made.line);
    return statement && makesPart(*statement);
}

Box boxOf(const AWnd& wnd)
{
    return {wnd.wndX(), wnd.wndY(), wnd.getWndWidth(), wnd.getWndHeight()};
}

void checkLayout(TreeCheck& check, AWnd& root)
{
    LayoutRules(check).enter(root, {}, {}, true);
}

} // namespace script_check

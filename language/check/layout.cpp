// Rules for boxes: windows outside of others, and behind others.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "tgx/wnd/border.h"

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

/// A window with others in it.
struct Around {
    AWnd* wnd;
    Box box;      // screen pixels
    bool isTold;  // it has a finding of its own
    bool isMoved; // where it comes to stand the game says: what lies around it means nothing
};

class LayoutRules {
public:
    explicit LayoutRules(TreeCheck& treeCheck) : check(treeCheck) {}

    void run(AWnd& root)
    {
        forEachChild(root, [&](AWnd& top) {
            const bool isTold = checkTop(top);
            around.push_back({&top, boxOf(top), isTold, true});
            enter({});
            around.pop_back();
        });
    }

private:
    template<class Visit>
    void forEachChild(AWnd& parent, Visit visit)
    {
        for (int i = parent.getWindowCount() - 1; i >= 0; --i) {
            AWnd* child = parent.getWndFromIndex(i, "");
            // A window that is shown here too is looked at in its first place.
            if (child && child->getParent() == &parent && seen.insert(child).second)
                visit(*child);
        }
    }

    /// Looks at what stands in the innermost of those around.
    void enter(std::vector<Cover> covers)
    {
        AWnd& parent = *around.back().wnd;
        const Box at = around.back().box;
        const bool showsOneAtATime = parent.getWindowType() == AWnd::WND_TABCONTROL;
        const std::size_t inherited = covers.size();
        forEachChild(parent, [&](AWnd& child) {
            Box box = boxOf(child);
            box.x += at.x;
            box.y += at.y;
            const bool isTold = checkInside(child, box);
            const bool shows = child.isVisible(0);
            if (shows && !isTold)
                checkCovered(child, box, covers);
            around.push_back({&child, box, isTold, !shows || check.reading.isOfGame(&child)});
            enter(shows ? covers : std::vector<Cover>());
            around.pop_back();
            if (shows && !showsOneAtATime)
                putOnTop(child, box, covers, inherited);
        });
    }

    /// A popup is put in the middle when it opens, so its position says nothing.
    bool checkTop(AWnd& wnd)
    {
        const bool isTooLarge = check.screenWidth > 0 && (wnd.getWndWidth() > check.screenWidth ||
                                                          wnd.getWndHeight() > check.screenHeight);
        const bool isScreen = wnd.getWindowType() == AWnd::WND_SCREEN;
        if (!isTooLarge || (isScreen ? !check.isSizeGiven : wnd.getWindowType() != AWnd::WND_PLAIN))
            return false;
        check.add("sticks-out", wnd,
                  describe(wnd) + " is " + size(wnd.getWndWidth(), wnd.getWndHeight()) +
                      ", larger than the screen of " + size(check.screenWidth, check.screenHeight));
        return true;
    }

    /// From the parent outwards; the first that does not hold it tells.
    bool checkInside(AWnd& wnd, const Box& box)
    {
        // Where parts lie their control says, and what the game's classes do with their boxes nobody knows.
        if (isPart(check, wnd) || check.reading.isOfGame(&wnd))
            return false;
        for (auto each = around.rbegin(); each != around.rend(); ++each) {
            if (check.reading.isOfGame(each->wnd) || isControlWithParts(*each->wnd))
                return false;
            if (!each->box.holds(box))
                return tellOutside(wnd, *each->wnd, box, each->box);
            if (each->isTold || each->isMoved)
                return false;
        }
        return false;
    }

    bool tellOutside(AWnd& wnd, AWnd& holder, const Box& box, const Box& place)
    {
        const bool isText = !wnd.getText().IsEmpty();
        const std::string holderAndSize = describe(holder) + " (" + size(place.w, place.h) + ")";
        if (!place.touches(box)) {
            if (!wnd.isVisible(0))
                return false; // it waits there to be shown
            check.add("sticks-out", wnd, describe(wnd) + " lies outside of " + holderAndSize);
            return true;
        }
        if (!isControl(wnd) && !isText)
            return false;
        check.add("sticks-out", wnd,
                  describe(wnd) + " sticks out of " + holderAndSize + ' ' + sides(box, place) +
                      (isControl(wnd) ? "; what lies outside takes no clicks" : ""));
        return true;
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

    /// A picture of which each frame covers the whole box, up to and with its edge.
    bool isOpaque(AWnd& wnd)
    {
        constexpr int halfMode = 2; // and above: what lies behind shows through
        if (wnd.getBmpFilename().IsEmpty() || wnd.getBorder() || wnd.getBmpBlitMode() >= halfMode ||
            wnd.getWindowType() != AWnd::WND_PLAIN || wnd.getBmpOffsetX() || wnd.getBmpOffsetY())
            return false;
        const Picture* picture = check.pictures.find(wnd.getBmpFilename().str());
        if (!picture || !picture->isOpaque)
            return false;
        const auto frame = [](int set, int ofPicture) {
            return set > 0 ? std::min(set, ofPicture) : ofPicture;
        };
        const int width = frame(wnd.getFrameWidth(), picture->width);
        const int height = frame(wnd.getFrameHeight(), picture->height);
        if (wnd.getBmpTile())
            return width == picture->width;
        return wnd.getBmpStretch() || (width >= wnd.getWndWidth() && height >= wnd.getWndHeight());
    }

    std::vector<Around> around; // outermost first
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
    LayoutRules(check).run(root);
}

} // namespace script_check

// Rules for boxes: windows that extend beyond their parents, and windows that others cover.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "tgx/wnd/border.h"

#include <algorithm>

namespace tgx::script_check {

namespace {

/// A window that may cover others. If there are very many, only the largest are kept.
struct Cover {
    Box box; // screen pixels
    AWnd* wnd;
    bool isOpaque; // nothing below it is visible within box
    bool takesClicks;
};
constexpr std::size_t maxCovers = 64;

/// A window that contains the current one.
struct Ancestor {
    AWnd* wnd;
    Box box;             // screen pixels
    bool hasFinding;     // has been reported itself
    bool isPlacedByGame; // the game decides where it is, so that windows around it do not matter
};

class LayoutRules {
public:
    explicit LayoutRules(TreeCheck& treeCheck) : check(treeCheck) {}

    void run(AWnd& root)
    {
        forEachChild(root, [&](AWnd& top) {
            const bool hasFinding = checkTop(top);
            ancestors.push_back({&top, boxOf(top), hasFinding, true});
            checkChildren({});
            ancestors.pop_back();
        });
    }

private:
    template<class Visit>
    void forEachChild(AWnd& parent, Visit visit)
    {
        for (int i = parent.getWindowCount() - 1; i >= 0; --i) {
            AWnd* child = parent.getWndFromIndex(i, "");
            // A window that is shown in several places is checked in its first one.
            if (child && child->getParent() == &parent && seen.insert(child).second)
                visit(*child);
        }
    }

    /// Checks the children of the innermost ancestor.
    void checkChildren(std::vector<Cover> covers)
    {
        AWnd& parent = *ancestors.back().wnd;
        const Box at = ancestors.back().box;
        const bool showsOneAtATime = parent.getWindowType() == AWnd::WND_TABCONTROL;
        const std::size_t inherited = covers.size();
        forEachChild(parent, [&](AWnd& child) {
            Box box = boxOf(child);
            box.x += at.x;
            box.y += at.y;
            const bool hasFinding = checkInside(child, box);
            const bool shows = child.isVisible(0);
            if (shows && !hasFinding)
                checkCovered(child, box, covers);
            ancestors.push_back({&child, box, hasFinding, !shows || check.reading.isGameWindow(&child)});
            checkChildren(shows ? covers : std::vector<Cover>());
            ancestors.pop_back();
            if (shows && !showsOneAtATime)
                addCover(child, box, covers, inherited);
        });
    }

    /// Checks the size only: a popup is centred when it opens, so its position does not matter.
    bool checkTop(AWnd& wnd)
    {
        const bool isTooLarge = check.screenWidth > 0 && (wnd.getWndWidth() > check.screenWidth ||
                                                          wnd.getWndHeight() > check.screenHeight);
        const bool isScreen = wnd.getWindowType() == AWnd::WND_SCREEN;
        if (!isTooLarge || (isScreen ? !check.isSizeGiven : wnd.getWindowType() != AWnd::WND_PLAIN))
            return false;
        check.add("outside-parent", wnd,
                  describe(wnd) + " is " + size(wnd.getWndWidth(), wnd.getWndHeight()) +
                      ", larger than the screen of " + size(check.screenWidth, check.screenHeight));
        return true;
    }

    /// Compares the window with its ancestors, from the parent outwards, and reports the first that does not
    /// contain it.
    bool checkInside(AWnd& wnd, const Box& box)
    {
        // A control places its own parts, and what the game's classes do with their boxes is unknown.
        if (isPart(check, wnd) || check.reading.isGameWindow(&wnd))
            return false;
        for (auto each = ancestors.rbegin(); each != ancestors.rend(); ++each) {
            if (check.reading.isGameWindow(each->wnd) || isControlWithParts(*each->wnd))
                return false;
            if (!each->box.contains(box))
                return reportOutside(wnd, *each->wnd, box, each->box);
            if (each->hasFinding || each->isPlacedByGame)
                return false;
        }
        return false;
    }

    bool reportOutside(AWnd& wnd, AWnd& ancestor, const Box& box, const Box& place)
    {
        const bool isText = !wnd.getText().IsEmpty();
        const std::string ancestorAndSize = describe(ancestor) + " (" + size(place.w, place.h) + ")";
        if (!place.intersects(box)) {
            if (!wnd.isVisible(0))
                return false; // probably moved into view when the game shows it
            check.add("outside-parent", wnd, describe(wnd) + " is outside " + ancestorAndSize);
            return true;
        }
        if (!isControl(wnd) && !isText)
            return false;
        check.add("outside-parent", wnd,
                  describe(wnd) + " extends beyond " + ancestorAndSize + ' ' + sides(box, place) +
                      (isControl(wnd) ? "; the part outside takes no clicks" : ""));
        return true;
    }

    static bool isControlWithParts(const AWnd& wnd)
    {
        const int type = wnd.getWindowType();
        return type == AWnd::WND_LISTBOX || type == AWnd::WND_COMBOBOX || type == AWnd::WND_BUTTON ||
               type == AWnd::WND_RADIOBUTTON;
    }

    /// Returns how far box extends beyond bounds, such as "by 20 pixels on the right and 3 below".
    static std::string sides(const Box& box, const Box& bounds)
    {
        const struct {
            int pixels;
            const char* where;
        } each[] = {{bounds.x - box.x, "on the left"},
                    {box.right() - bounds.right(), "on the right"},
                    {bounds.y - box.y, "above"},
                    {box.bottom() - bounds.bottom(), "below"}};
        std::string out;
        for (const auto& side : each)
            if (side.pixels > 0)
                out += (out.empty() ? "by " : " and ") + std::to_string(side.pixels) +
                       (out.empty() ? side.pixels == 1 ? " pixel " : " pixels " : " ") + side.where;
        return out;
    }

    void checkCovered(AWnd& wnd, const Box& box, const std::vector<Cover>& covers)
    {
        if (box.w <= 0 || box.h <= 0 || check.reading.isGameWindow(&wnd) || isPart(check, wnd))
            return;
        const bool takesClicks = isControl(wnd) && wnd.getEnabled();
        const bool shows = !wnd.getBmpFilename().IsEmpty() || !wnd.getText().IsEmpty() || isControl(wnd);
        for (const Cover& cover : covers) {
            if (!cover.box.contains(box))
                continue;
            if (takesClicks && cover.takesClicks) {
                check.add("covered", wnd,
                          describe(wnd) + " is completely covered by " + describe(*cover.wnd) +
                              lineOf(*cover.wnd) + ", which takes its clicks");
                return;
            }
            if (shows && cover.isOpaque) {
                check.add("covered", wnd,
                          describe(wnd) + " cannot be seen: " + describe(*cover.wnd) + lineOf(*cover.wnd) +
                              " covers it");
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

    void addCover(AWnd& wnd, const Box& box, std::vector<Cover>& covers, std::size_t inherited)
    {
        // The game may move and hide its own windows, and a menu is only shown for a moment.
        if (check.reading.isGameWindow(&wnd) || isPart(check, wnd) || box.w <= 0 || box.h <= 0)
            return;
        Cover cover{box, &wnd, isOpaque(wnd), wnd.getEnabled() != 0};
        const auto area = [](const Cover& each) { return static_cast<long long>(each.box.w) * each.box.h; };
        if (covers.size() < maxCovers) {
            covers.push_back(cover);
            return;
        }
        const auto smallest =
            std::min_element(covers.begin() + static_cast<std::ptrdiff_t>(std::min(inherited, maxCovers - 1)),
                             covers.end(), [&](const Cover& a, const Cover& b) { return area(a) < area(b); });
        if (area(*smallest) < area(cover))
            *smallest = cover;
    }

    /// Returns whether the window's picture is opaque and each frame covers the whole box.
    bool isOpaque(AWnd& wnd)
    {
        constexpr int halfMode = 2; // this mode and higher ones are translucent
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

    std::vector<Ancestor> ancestors; // outermost first
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

} // namespace tgx::script_check

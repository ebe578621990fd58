// Rules for what belongs together: the ids of a screen, radio groups, tabs and pages, tab stops.

#include "tgx/controls/radiobutton.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/tabstops.h"
#include "tools/tgx/check/tree.h"
#include "tools/tgx/check/words.h"

#include <algorithm>

namespace script_check {

namespace {

bool isRadio(const AWnd* wnd)
{
    return wnd && wnd->getWindowType() == AWnd::WND_RADIOBUTTON;
}

std::string lineOf(const TreeCheck& check, const AWnd& wnd)
{
    const WndLines* lines = check.reading.linesOf(&wnd);
    return "line " + (lines && lines->made ? std::to_string(lines->made.script->numberOf(lines->made.line))
                                           : std::string("?"));
}

// Radio groups.

struct Group {
    int first, last; // places among the children
};

/// What stands in front of the last underscore, or of digits at the end.
std::string_view stem(std::string_view id)
{
    const std::size_t underscore = id.rfind('_');
    if (underscore != std::string_view::npos && underscore > 0)
        return id.substr(0, underscore);
    return id.substr(0, id.find_last_not_of("0123456789") + 1);
}

/// Whether b goes on where a ends: the same step to the right or down as inside one of them.
bool goesOn(AWnd& parent, const Group& a, const Group& b)
{
    const auto box = [&](int place) { return boxOf(*parent.getWndFromIndex(place, "")); };
    const Box end = box(a.last);
    const Box start = box(b.first);
    const auto isStep = [&](const Group& group) {
        if (group.first == group.last)
            return false;
        const Box one = box(group.first);
        const Box two = box(group.first + 1);
        return start.x - end.x == two.x - one.x && start.y - end.y == two.y - one.y;
    };
    return isStep(a) || isStep(b);
}

/// Two groups side by side are no fault. One that is broken tells itself by its places, its ids or its size.
void checkRadioGroups(TreeCheck& check, AWnd& parent)
{
    std::vector<Group> groups;
    for (int i = 0; i < parent.getWindowCount(); ++i) {
        if (!isRadio(parent.getWndFromIndex(i, "")))
            continue;
        if (!groups.empty() && groups.back().last == i - 1)
            groups.back().last = i;
        else
            groups.push_back({i, i});
    }
    bool isBrokenOff = false; // the group before is the rest of another one
    for (std::size_t i = 1; i < groups.size(); ++i) {
        const Group& a = groups[i - 1];
        const Group& b = groups[i];
        AWnd& before = *parent.getWndFromIndex(a.last, "");
        AWnd& next = *parent.getWndFromIndex(b.first, "");
        const std::string_view common = stem(before.getID().view());
        const bool isAlone = (a.first == a.last && !isBrokenOff) || b.first == b.last;
        const bool hasOneStem = common.size() > 1 && common == stem(next.getID().view());
        isBrokenOff = isAlone || hasOneStem || goesOn(parent, a, b);
        if (!isBrokenOff)
            continue;
        AWnd& between = *parent.getWndFromIndex(a.last + 1, "");
        check.add("radio-group", next,
                  describe(next) + " begins a group of its own: " + describe(between) + " of " +
                      lineOf(check, between) + " parts it from " + describe(before));
    }
}

// Tabs and pages.

void checkTabs(TreeCheck& check, AWnd& control)
{
    int tabs = 0;
    int pages = 0;
    int changes = 0; // from tab to page or back
    bool wasTab = false;
    for (int i = 0; i < control.getWindowCount(); ++i) {
        const AWnd* child = control.getWndFromIndex(i, "");
        const bool isTab = isRadio(child) || (child && child->getWindowType() == AWnd::WND_BUTTON);
        (isTab ? tabs : pages) += 1;
        changes += i > 0 && isTab != wasTab;
        wasTab = isTab;
    }
    if (tabs + pages == 0)
        return; // the game fills it
    if (tabs != pages)
        check.add("tab-pages", control,
                  describe(control) + " has " + std::to_string(tabs) + (tabs == 1 ? " tab" : " tabs") +
                      " and " + std::to_string(pages) + (pages == 1 ? " page" : " pages"));
    else if (changes > 1)
        check.add("tab-pages", control,
                  "tabs and pages of " + describe(control) +
                      " are mixed; first stand all of the ones, then all of the others");
}

// One screen, popup or panel.

class TopRules {
public:
    TopRules(TreeCheck& treeCheck, AWnd& topWindow) : check(treeCheck), top(topWindow) {}

    void run()
    {
        forEachBelow(top, [&](AWnd& wnd) {
            noteStops(wnd);
            if (!isPart(check, wnd))
                noteId(wnd);
        });
        forEachBelow(top, [&](AWnd& wnd) {
            if (isControl(wnd) && !isPart(check, wnd) && !isUnder(wnd))
                controls.push_back(&wnd);
        });
        // A panel that a POINTER shows has its stops in the screen that shows it.
        if (!check.reading.isPointedTo(&top))
            checkReach();
    }

private:
    void noteId(AWnd& wnd)
    {
        if (wnd.getID().IsEmpty())
            return;
        const auto [first, isFirst] = ids.try_emplace(folded(wnd.getID().view()), &wnd);
        if (!isFirst && !check.reading.isPointedTo(&wnd))
            check.add("duplicate-id", wnd,
                      "a window " + inQuotes(wnd.getID().view()) + " stands in " + describe(top) +
                          " already, in " + lineOf(check, *first->second) + ", and is found first");
    }

    void noteStops(AWnd& wnd) { noteStopsOf(wnd.getTabStopInfo(0)); }
    void noteStopsOf(const ATabStopInfo* stops)
    {
        if (!stops)
            return;
        for (const WndList* list : {&stops->tabOrderWnds, &stops->homeEndWnds, &stops->insertDeleteWnds})
            for (int i = 0; i < list->GetSize(); ++i)
                reached.insert(list->GetAt(i));
    }

    /// Inside another control, which leads to it.
    bool isUnder(const AWnd& wnd) const
    {
        const AWnd* parent = wnd.getParent();
        return parent && isControl(*parent);
    }

    bool isReached(AWnd& wnd) const
    {
        if (reached.contains(&wnd) || check.reading.isNamedStop(&wnd) || escPointsAt(wnd.getID().view()))
            return true;
        if (!isRadio(&wnd))
            return false;
        auto& radio = static_cast<ARadioButton&>(wnd);
        for (int i = 0; i < radio.getLinkedButtonsCount(0); ++i)
            if (reached.contains(radio.getLinkedButton(i)))
                return true;
        return false;
    }

    void checkReach()
    {
        noteStopsOf(top.getTabStopInfo(0));
        const auto missed =
            std::count_if(controls.begin(), controls.end(), [this](AWnd* wnd) { return !isReached(*wnd); });
        if (reached.empty() && missed > 0) {
            check.add("unreachable", top,
                      "no key reaches the " +
                          (missed == 1 ? std::string("control") : std::to_string(missed) + " controls") +
                          " in " + describe(top) + ", " + (missed == 1 ? "" : "such as ") +
                          describe(*firstMissed()) + "; name them in a TABORDER at the end of its block");
            return;
        }
        for (AWnd* wnd : controls)
            if (!isReached(*wnd))
                check.add("unreachable", *wnd,
                          "no key reaches " + describe(*wnd) + ": no TABORDER, TABLIST1 or TABLIST2 in " +
                              describe(top) + " names it");
    }

    AWnd* firstMissed() const
    {
        return *std::find_if(controls.begin(), controls.end(),
                             [this](AWnd* wnd) { return !isReached(*wnd); });
    }

    TreeCheck& check;
    AWnd& top;
    std::unordered_map<std::string, AWnd*> ids;
    std::unordered_set<const AWnd*> reached; // by a list of stops
    std::vector<AWnd*> controls;             // in the order of their lines, level by level
};

} // namespace

void checkControls(TreeCheck& check, AWnd& root)
{
    forEachBelow(root, [&](AWnd& wnd) {
        if (wnd.getWindowType() == AWnd::WND_TABCONTROL)
            checkTabs(check, wnd);
        if (!check.reading.isOfGame(&wnd) || wnd.getWindowCount() > 0)
            checkRadioGroups(check, wnd);
    });
    for (int i = 0; i < root.getWindowCount(); ++i)
        if (AWnd* top = root.getWndFromIndex(i, ""))
            TopRules(check, *top).run();
}

} // namespace script_check

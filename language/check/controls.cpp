// Rules for windows that depend on each other: the ids of a screen, tabs and pages, tab stops.

#include "language/check/tree.h"
#include "language/check/words.h"
#include "platform/framework/text.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/tabstops.h"

#include <algorithm>
#include <cstdlib>

namespace tgx::script_check {

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

// Tabs and pages.

void checkTabs(TreeCheck& check, AWnd& control)
{
    int tabs = 0;
    int pages = 0;
    int unknown = 0; // windows of the game's classes, which may be tabs or pages
    int changes = 0; // transitions from tab to page or back
    bool hasButton = false;
    bool wasTab = false;
    for (int i = 0; i < control.getWindowCount(); ++i) {
        AWnd* child = control.getWndFromIndex(i, "");
        if (!child)
            continue;
        if (child->getWindowType() == AWnd::WND_BUTTON) {
            hasButton = true;
            check.add("tab-pages", *child,
                      describe(*child) + " is among the tabs of " + describe(control) +
                          " but not in their group: a click on it also switches the pages, but it has no "
                          "page of its own. Tabs must be radio buttons; put other buttons into a page");
        }
        (check.reading.isGameWindow(child) ? unknown : isRadio(child) ? tabs : pages) += 1;
        changes += i > 0 && isRadio(child) != wasTab;
        wasTab = isRadio(child);
    }
    if (tabs + pages == 0 || hasButton)
        return; // the game fills it, or it has been reported
    if (std::abs(tabs - pages) > unknown)
        check.add("tab-pages", control,
                  describe(control) + " has " + std::to_string(tabs) + (tabs == 1 ? " tab" : " tabs") +
                      " and " + std::to_string(pages) + (pages == 1 ? " page" : " pages"));
    else if (changes > 1 && unknown == 0)
        check.add("tab-pages", control,
                  "tabs and pages of " + describe(control) +
                      " are mixed; put all tabs before or after all pages");
}

// Screens, popups and panels.

class TopRules {
public:
    TopRules(TreeCheck& treeCheck, AWnd& topWindow) : check(treeCheck), top(topWindow) {}

    void run()
    {
        forEachBelow(top, [&](AWnd& wnd) {
            noteInnerStops(wnd);
            if (isPart(check, wnd))
                return;
            noteId(wnd);
            if (isControl(wnd) && !isUnder(wnd))
                controls.push_back(&wnd);
        });
        // The tab stops of a panel that a POINTER shows belong to the screen that shows it.
        if (!isShownElsewhere()) {
            noteStops();
            checkReach();
        }
    }

private:
    void noteId(AWnd& wnd)
    {
        if (wnd.getID().IsEmpty())
            return;
        const auto [first, isFirst] = ids.try_emplace(lowercased(wnd.getID().view()), &wnd);
        if (!isFirst && !check.reading.isPointedTo(&wnd))
            check.add("duplicate-id", wnd,
                      "another window " + inQuotes(wnd.getID().view()) + " is already in " + describe(top) +
                          ", in " + lineOf(check, *first->second) + ", and is found first");
    }

    bool isShownElsewhere() const
    {
        const WndLines* lines = check.reading.linesOf(&top);
        return check.reading.isPointedTo(&top) ||
               (lines && lines->made &&
                check.pointerTargets.contains(*lines->made.script, top.getID().view()));
    }

    /// Notes tab orders of inner windows. Tab only uses the order of the screen or popup itself. A hidden
    /// inner window may be one that the game opens as a popup.
    void noteInnerStops(AWnd& wnd)
    {
        const ATabStopInfo* stops = wnd.getTabStopInfo(0);
        if (!stops)
            return;
        const AWnd* parent = wnd.getParent();
        const bool isPage = parent && parent->getWindowType() == AWnd::WND_TABCONTROL;
        for (int i = 0; i < stops->tabOrderWnds.GetSize(); ++i)
            if (!wnd.isVisible(0) && !isPage)
                reached.insert(stops->tabOrderWnds.GetAt(i));
            else
                innerOrders.try_emplace(stops->tabOrderWnds.GetAt(i), &wnd);
    }

    void noteStops()
    {
        const ATabStopInfo* stops = top.getTabStopInfo(0);
        if (!stops)
            return;
        for (int i = 0; i < stops->tabOrderWnds.GetSize(); ++i)
            reached.insert(stops->tabOrderWnds.GetAt(i));
        noteKeyList(stops->insertDeleteWnds, "TABLIST1", "Insert and Delete");
        noteKeyList(stops->homeEndWnds, "TABLIST2", "Home and End");
    }

    /// Notes the controls that the keys of TABLIST1 or TABLIST2 reach: a combo box at the start of the list,
    /// or the radio buttons if one is at the start. Otherwise the keys depend on the pointer.
    void noteKeyList(const WndList& list, std::string_view keyword, const char* keys)
    {
        if (list.IsEmpty() || !list.GetAt(0) || check.reading.isGameWindow(list.GetAt(0)))
            return;
        AWnd& first = *list.GetAt(0);
        if (first.getWindowType() == AWnd::WND_COMBOBOX) {
            reached.insert(&first);
        } else if (isRadio(&first)) {
            for (int i = 0; i < list.GetSize(); ++i)
                if (isRadio(list.GetAt(i)))
                    reached.insert(list.GetAt(i));
        } else if (const std::vector<LineRef> at = check.linesOn(top, keyword); !at.empty()) {
            check.findings.add("no-effect", *at[0].script, at[0].line, 1,
                               std::string(keys) + " do not reach a list that begins with " + typeOf(first) +
                                   "; it must begin with a combo box or a radio button");
        }
    }

    /// Returns whether the window is inside another control, through which it is reached.
    bool isUnder(const AWnd& wnd) const
    {
        const AWnd* parent = wnd.getParent();
        return parent && isControl(*parent);
    }

    bool isReached(AWnd& wnd) const
    {
        if (reached.contains(&wnd) || check.reading.isNamedStop(wnd) || escPointsAt(wnd.getID().view()))
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
        const auto missed =
            std::count_if(controls.begin(), controls.end(), [this](AWnd* wnd) { return !isReached(*wnd); });
        if (reached.empty() && innerOrders.empty() && missed > 0) {
            check.add("unreachable", top,
                      "no key reaches the " +
                          (missed == 1 ? std::string("control") : std::to_string(missed) + " controls") +
                          " in " + describe(top) + ", " + (missed == 1 ? "" : "such as ") +
                          describe(*firstMissed()) + "; add them to a TABORDER at the end of its block");
            return;
        }
        for (AWnd* wnd : controls)
            if (!isReached(*wnd))
                check.add("unreachable", *wnd, "no key reaches " + describe(*wnd) + ": " + whyMissed(*wnd));
    }

    std::string whyMissed(AWnd& wnd) const
    {
        const auto inner = innerOrders.find(&wnd);
        if (inner != innerOrders.end())
            return "it is in the TABORDER of " + describe(*inner->second) +
                   ", but Tab only follows that of " + describe(top);
        return "no TABORDER of " + describe(top) + " names it";
    }

    AWnd* firstMissed() const
    {
        return *std::find_if(controls.begin(), controls.end(),
                             [this](AWnd* wnd) { return !isReached(*wnd); });
    }

    TreeCheck& check;
    AWnd& top;
    std::unordered_map<std::string, AWnd*> ids;
    std::unordered_set<const AWnd*> reached; // by a TABORDER, TABLIST1 or TABLIST2
    std::unordered_map<const AWnd*, AWnd*>
        innerOrders;             // named by the TABORDER of an inner window, and that window
    std::vector<AWnd*> controls; // in the order of their lines
};

} // namespace

void checkControls(TreeCheck& check, AWnd& root)
{
    forEachBelow(root, [&](AWnd& wnd) {
        if (wnd.getWindowType() == AWnd::WND_TABCONTROL && !check.reading.lacksLines())
            checkTabs(check, wnd);
        if (!check.reading.isGameWindow(&wnd) || wnd.getWindowCount() > 0)
            checkRadioGroups(check, wnd);
    });
    for (int i = 0; i < root.getWindowCount(); ++i)
        if (AWnd* top = root.getWndFromIndex(i, ""))
            TopRules(check, *top).run();
}

} // namespace tgx::script_check

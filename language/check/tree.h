#pragma once

#include "language/check/pictures.h"
#include "language/check/pointers.h"
#include "language/check/run.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace script_check {

struct Box {
    int x = 0, y = 0, w = 0, h = 0; // pixels

    int right() const { return x + w; }
    int bottom() const { return y + h; }
    bool holds(const Box& other) const
    {
        return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
    }
    bool touches(const Box& other) const
    {
        return other.x < right() && other.y < bottom() && other.right() > x && other.bottom() > y;
    }
};

/// What the rules for windows work with.
struct TreeCheck {
    Reading& reading;
    Pictures& pictures;
    Findings& findings;
    const PointerTargets& shown; // of all scripts
    bool hasData = false;        // there is a data directory
    int screenWidth = 0;         // pixels; 0: not known
    int screenHeight = 0;
    bool isSizeGiven = false; // in the call; else it is that of the first screen

    /// About the window, at the line that made it. Nothing for a window without one. Lines in it that failed
    /// come first.
    void add(const char* code, const AWnd& wnd, std::string text)
    {
        if (const WndLines* lines = reading.linesOf(&wnd); lines && lines->made)
            findings.add(code, *lines->made.script, lines->made.line, 0, std::move(text), lines->failed);
    }
    /// The lines of that statement that acted on the window, in order.
    std::vector<LineRef> linesOn(const AWnd& wnd, std::string_view keyword) const
    {
        std::vector<LineRef> out;
        if (const WndLines* lines = reading.linesOf(&wnd))
            std::copy_if(lines->attributes.begin(), lines->attributes.end(), std::back_inserter(out),
                         [&](const LineRef& each) { return each.script->isKeyword(each.line, keyword); });
        return out;
    }
};

/// The ITEM lines of a list or combo box, which are its rows.
class ItemLines {
public:
    ItemLines(TreeCheck& treeCheck, const AWnd& listWnd, int rowCount)
        : check(treeCheck), list(listWnd), lines(check.linesOn(listWnd, "ITEM"))
    {
        if (lines.size() != static_cast<std::size_t>(rowCount))
            lines.clear(); // which is which cannot be told
    }
    /// About a cell, at its line, or at that of the list.
    void add(const char* code, int row, int column, std::string text)
    {
        if (lines.empty()) {
            check.add(code, list, std::move(text));
            return;
        }
        const LineRef& at = lines[static_cast<std::size_t>(row)];
        check.findings.add(code, *at.script, at.line, column + 1, std::move(text));
    }

private:
    TreeCheck& check;
    const AWnd& list;
    std::vector<LineRef> lines;
};

/// Whether a person clicks on it, types into it or chooses in it.
bool isControl(const AWnd& wnd);
/// Whether its line makes a part that a control finds by a fixed name.
bool isPart(const TreeCheck& check, const AWnd& wnd);
Box boxOf(const AWnd& wnd);

// Rules for all windows that a script has made. Each window is looked at once.

/// Windows outside of others, and behind others.
void checkLayout(TreeCheck& check, AWnd& root);
/// Texts that their boxes cut, those of rows and titles too.
void checkTexts(TreeCheck& check, AWnd& root);
/// Strips against the pictures that they are cut from.
void checkStrips(TreeCheck& check, AWnd& root);
/// Columns, cells and icons of lists, and what belongs to combo boxes.
void checkLists(TreeCheck& check, AWnd& root);
/// Ids of a screen, radio groups, tabs and pages, what the keyboard reaches.
void checkControls(TreeCheck& check, AWnd& root);
/// What the toolkit does as it should and its author does not expect.
void checkTraps(TreeCheck& check, AWnd& root);
/// Those among the children of parent.
void checkRadioGroups(TreeCheck& check, AWnd& parent);

/// visit(wnd) for each window below, once, in the order of their lines.
template<class Visit>
void forEachBelow(AWnd& root, Visit visit)
{
    std::unordered_set<const AWnd*> seen{&root};
    std::vector<AWnd*> waiting;
    const auto putChildren = [&waiting](AWnd& wnd) {
        for (int i = wnd.getWindowCount() - 1; i >= 0; --i)
            if (AWnd* child = wnd.getWndFromIndex(i, ""))
                waiting.push_back(child);
    };
    for (putChildren(root); !waiting.empty();) {
        AWnd* wnd = waiting.back();
        waiting.pop_back();
        if (!seen.insert(wnd).second)
            continue;
        visit(*wnd);
        putChildren(*wnd);
    }
}

} // namespace script_check

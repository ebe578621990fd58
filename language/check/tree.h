#pragma once

#include "language/check/pictures.h"
#include "language/check/pointers.h"
#include "language/check/run.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace tgx::script_check {

struct Box {
    int x = 0, y = 0, w = 0, h = 0; // pixels

    int right() const { return x + w; }
    int bottom() const { return y + h; }
    bool contains(const Box& other) const
    {
        return other.x >= x && other.y >= y && other.right() <= right() && other.bottom() <= bottom();
    }
    bool intersects(const Box& other) const
    {
        return other.x < right() && other.y < bottom() && other.right() > x && other.bottom() > y;
    }
};

/// The data that the rules for windows share.
struct TreeCheck {
    Reading& reading;
    Pictures& pictures;
    Findings& findings;
    const PointerTargets& pointerTargets; // of all scripts together
    bool hasData = false;                 // whether there is a data directory
    int screenWidth = 0;                  // pixels; 0: unknown
    int screenHeight = 0;
    bool isSizeGiven = false; // given in the options; otherwise it is the size of the first screen

    /// Adds a finding about a window at the line that made it. Does nothing if no line made it. Findings
    /// about lines in it that failed come first.
    void add(const char* code, const AWnd& wnd, std::string text)
    {
        if (const WndLines* lines = reading.linesOf(&wnd); lines && lines->made)
            findings.add(code, *lines->made.script, lines->made.line, 0, std::move(text), lines->failed);
    }
    /// Returns the lines with that keyword that acted on the window, in order.
    std::vector<LineRef> linesOn(const AWnd& wnd, std::string_view keyword) const
    {
        std::vector<LineRef> out;
        if (const WndLines* lines = reading.linesOf(&wnd))
            std::copy_if(lines->attributes.begin(), lines->attributes.end(), std::back_inserter(out),
                         [&](const LineRef& each) { return each.script->isKeyword(each.line, keyword); });
        return out;
    }
};

/// Maps the rows of a list or combo box to its ITEM lines.
class ItemLines {
public:
    ItemLines(TreeCheck& treeCheck, const AWnd& listWnd, int rowCount)
        : check(treeCheck), list(listWnd), lines(check.linesOn(listWnd, "ITEM"))
    {
        if (lines.size() != static_cast<std::size_t>(rowCount))
            lines.clear(); // rows and lines cannot be matched
    }
    /// Adds a finding about a cell, at its ITEM line if known, else at the line of the list.
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

/// Returns whether the player clicks the window, types into it or selects from it.
bool isControl(const AWnd& wnd);
/// Returns whether the window is part of a control: made by the control itself, or found by it under a fixed
/// name.
bool isPart(const TreeCheck& check, const AWnd& wnd);
/// Returns the window's box relative to its parent.
Box boxOf(const AWnd& wnd);

// Rules for all windows that a script has made. Each window is checked once.

/// Finds windows that extend beyond their parents, and windows that others cover.
void checkLayout(TreeCheck& check, AWnd& root);
/// Finds texts that do not fit their boxes, including those of rows and titles.
void checkTexts(TreeCheck& check, AWnd& root);
/// Finds strips that are too small for their frames.
void checkStrips(TreeCheck& check, AWnd& root);
/// Checks columns, cells and icons of lists, and the items and menus of combo boxes.
void checkLists(TreeCheck& check, AWnd& root);
/// Checks ids, radio groups, tabs and pages, and which controls the keyboard reaches.
void checkControls(TreeCheck& check, AWnd& root);
/// Finds correct behaviour of the toolkit that the author probably does not expect.
void checkTraps(TreeCheck& check, AWnd& root);
/// Checks the radio groups among the children of parent.
void checkRadioGroups(TreeCheck& check, AWnd& parent);

/// Calls visit(wnd) once for each window below root, in the order of their lines.
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

} // namespace tgx::script_check

// Finds radio groups that are broken in two. A radio group is a run of radio buttons without another window
// between them.

#include "language/check/tree.h"
#include "language/check/words.h"

namespace tgx::script_check {

namespace {

/// A run of radio buttons, by index among the children.
struct Group {
    int first, last;

    int count() const { return last - first + 1; }
};

/// Returns the id up to its last underscore, or without the digits at its end.
std::string_view stem(std::string_view id)
{
    const std::size_t underscore = id.rfind('_');
    if (underscore != std::string_view::npos && underscore > 0)
        return id.substr(0, underscore);
    return id.substr(0, id.find_last_not_of("0123456789") + 1);
}

Box transposed(const Box& box)
{
    return {box.y, box.x, box.h, box.w};
}

class GroupRules {
public:
    GroupRules(TreeCheck& treeCheck, AWnd& parentWnd) : check(treeCheck), parent(parentWnd) {}

    void run()
    {
        std::vector<Group> groups;
        for (int i = 0; i < parent.getWindowCount(); ++i) {
            const AWnd* child = parent.getWndFromIndex(i, "");
            if (!child || child->getWindowType() != AWnd::WND_RADIOBUTTON)
                continue;
            if (!groups.empty() && groups.back().last == i - 1)
                groups.back().last = i;
            else
                groups.push_back({i, i});
        }
        bool isContinuation = false; // the previous run continues another one
        for (std::size_t i = 1; i < groups.size(); ++i) {
            const Group& a = groups[i - 1];
            const Group& b = groups[i];
            // A single button offers no choice.
            const bool isAlone = (a.count() == 1 && !isContinuation) || b.count() == 1;
            isContinuation = (isAlone || continues(a, b)) && !mayContainMembers(a, b);
            if (isContinuation)
                report(a, b);
        }
    }

private:
    AWnd& child(int place) const { return *parent.getWndFromIndex(place, ""); }

    void report(const Group& a, const Group& b)
    {
        const AWnd& between = child(a.last + 1);
        const WndLines* lines = check.reading.linesOf(&between);
        const std::string line =
            lines && lines->made ? std::to_string(lines->made.script->numberOf(lines->made.line)) : "?";
        check.add("radio-group", child(b.first),
                  describe(child(b.first)) + " starts a new group: " + describe(child(a.last + 1)) +
                      " of line " + line + " separates it from " + describe(child(a.last)));
    }

    /// Returns whether a window between the runs is of a class of the game. It may contain buttons of the
    /// group.
    bool mayContainMembers(const Group& a, const Group& b) const
    {
        for (int place = a.last + 1; place < b.first; ++place)
            if (check.reading.isGameWindow(parent.getWndFromIndex(place, "")))
                return true;
        return false;
    }

    /// Returns whether b looks like the second half of a: in the same column or row, and at about the same
    /// distance or with the same stem in its ids. Two groups side by side, or with their own headings, are
    /// correct.
    bool continues(const Group& a, const Group& b) const
    {
        return continuesAlong(a, b, [](const Box& box) { return box; }) ||
               continuesAlong(a, b, [](const Box& box) { return transposed(box); });
    }

    /// Checks downwards, or to the right if turn transposes the boxes.
    template<class Turn>
    bool continuesAlong(const Group& a, const Group& b, Turn turn) const
    {
        const auto box = [&](int place) { return turn(boxOf(child(place))); };
        const Box end = box(a.last);
        const Box start = box(b.first);
        if (start.x != end.x || start.y <= end.y)
            return false;
        for (int place = a.last + 1; place < b.first; ++place)
            if (separates(place, end, box(place), start))
                return false;
        const auto isStep = [&](const Group& group) {
            if (group.count() < 2)
                return false;
            const Box one = box(group.first);
            const Box two = box(group.first + 1);
            return one.x == two.x && two.y > one.y && (start.y - end.y) * 2 <= (two.y - one.y) * 3;
        };
        const std::string_view common = stem(child(a.last).getID().view());
        return (common.size() > 1 && common == stem(child(b.first).getID().view())) || isStep(a) || isStep(b);
    }

    /// Returns whether the window between two groups separates them on purpose: a heading of the second
    /// group, below the end of the first one, or a frame around the second.
    bool separates(int place, const Box& end, const Box& between, const Box& start) const
    {
        const bool isText = !child(place).getText().IsEmpty();
        const int middle = between.y + between.h / 2;
        return (isText && middle > end.bottom()) || (between.contains(start) && !between.contains(end));
    }

    TreeCheck& check;
    AWnd& parent;
};

} // namespace

void checkRadioGroups(TreeCheck& check, AWnd& parent)
{
    GroupRules(check, parent).run();
}

} // namespace tgx::script_check

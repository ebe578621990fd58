#include "devtools/inspected.h"

#include "platform/framework/text.h"
#include "player/reach.h"
#include "player/reports.h"
#include "tgx/controls/button.h"
#include "tgx/frame/mainwin.h"
#include "tgx/wnd/reserved.h"
#include "tgx/wnd/tabstops.h"

#include <algorithm>
#include <unordered_map>
#include <unordered_set>

namespace tgx {

namespace {

constexpr std::size_t maxTextLength = 80;  // characters
constexpr std::size_t maxPathWindows = 8;  // windows
constexpr std::size_t maxPlaceLength = 40; // characters
constexpr std::size_t maxParents = 4;

constexpr std::uint32_t warningColour = 0xFFB060;
constexpr std::uint32_t quietColour = 0x9FB2C6;

const CString emptyId; // made once, because getWndFromIndex is called thousands of times

template<class Visit>
void forEachChild(AWnd& wnd, const Visit& visit)
{
    for (int i = 0; i < wnd.getWindowCount(); ++i)
        if (AWnd* child = wnd.getWndFromIndex(i, emptyId))
            visit(*child);
}

/// Returns the open popups from front to back, then the active screen.
std::vector<AWnd*> shownTops(const AMainWin& game)
{
    std::vector<AWnd*> tops;
    for (int i = 0; i < game.getPopupWndCount(); ++i)
        tops.push_back(game.getPopupWnd(i));
    if (AWnd* screen = game.getActiveScreen())
        tops.push_back(screen);
    std::erase_if(tops, [](const AWnd* top) { return !top; });
    return tops;
}

bool isOneOf(const std::vector<AWnd*>& tops, const AWnd& wnd)
{
    return std::find(tops.begin(), tops.end(), &wnd) != tops.end();
}

/// Finds the topmost window at a point, which is the last one in drawing order.
void findShown(AWnd& wnd, int x, int y, AWnd*& found)
{
    if (!wnd.isVisible(1))
        return;
    if (wnd.pointInside(x, y))
        found = &wnd;
    forEachChild(wnd, [&](AWnd& child) { findShown(child, x, y, found); });
}

std::string idOf(const AWnd& wnd)
{
    return wnd.getID().IsEmpty() ? "(no id)" : wnd.getID().str();
}

/// Writes control characters as \n, \t or \xNN.
std::string shownText(std::string_view text)
{
    std::string shown;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (c == '\n')
            shown += "\\n";
        else if (c == '\t')
            shown += "\\t";
        else if (code < 0x20 || code == 0x7F)
            shown += hexEscape(c);
        else
            shown += c;
    }
    return shown;
}

std::string rectangle(int x, int y, int width, int height)
{
    return std::to_string(x) + ", " + std::to_string(y) + "   " + std::to_string(width) + " x " +
           std::to_string(height);
}

/// Adds a line for each window from the top level down to wnd, each more indented.
void addPath(std::vector<PanelLine>& lines, const AMainWin& game, const AWnd& wnd)
{
    std::vector<const AWnd*> path;
    for (const AWnd* step = &wnd; step && step != game.getScreenList(); step = step->getParent())
        path.push_back(step);
    std::reverse(path.begin(), path.end());
    const std::size_t omitted =
        path.size() > maxPathWindows ? path.size() - maxPathWindows : 0; // after the top
    std::string indent;
    for (std::size_t i = 0; i < path.size(); ++i) {
        if (omitted > 0 && i == 1) {
            lines.push_back({indent + "... " + std::to_string(omitted) + " more", quietColour});
            indent += "  ";
            i += omitted;
        }
        lines.push_back({indent + titleOf(*path[i]), path[i] == &wnd ? hoveredColour : quietColour});
        indent += "  ";
    }
}

const char* nameOfState(const AButton& button)
{
    switch (button.getButtonState()) {
    case AButton::BS_NORMAL:
        return "normal";
    case AButton::BS_PRESSED:
        return "pressed";
    case AButton::BS_HOT:
        return "hot";
    case AButton::BS_STARTUP:
        return "opening run";
    case AButton::BS_DISABLED:
        return "disabled";
    }
    return "";
}

/// Returns "is disabled because "PANEL" is disabled, is moving", or "" if neither applies.
std::string stateOf(AWnd& wnd)
{
    std::string state = whyDisabled(wnd);
    const AWnd* moving = movingFrom(wnd);
    if (moving)
        state += state.empty() ? "is moving" : ", is moving";
    return !moving || moving == &wnd ? state : state + " with " + nameOf(*moving);
}

std::string buttonStateOf(const AWnd& wnd)
{
    const auto* button = dynamic_cast<const AButton*>(&wnd);
    if (!button)
        return "";
    return std::string(nameOfState(*button)) + (button->getSelected() ? ", selected" : "");
}

/// Shortens a long place to its end, because the line number is there.
std::string shownPlace(const std::string& place)
{
    if (place.empty())
        return "no script";
    return place.size() > maxPlaceLength ? "..." + place.substr(place.size() - maxPlaceLength) : place;
}

std::string bitmapOf(const AWnd& wnd)
{
    if (!wnd.getBmp())
        return wnd.getBmpFilename().IsEmpty() ? "" : wnd.getBmpFilename().str() + ", not loaded";
    return (wnd.getBmpFilename().IsEmpty() ? "not from a file" : wnd.getBmpFilename().str()) + ", frame " +
           std::to_string(wnd.getCurrentFrame());
}

std::string fontOf(const AMainWin& game, const AWnd& wnd)
{
    if (!wnd.getFont())
        return "none";
    const int index = game.getFontIndex(wnd.getFont());
    return index < 0 ? "no longer in the table" : std::to_string(index);
}

/// Returns the position in the tab order of the nearest window that lists it, such as "2 of 5 in "PANEL"", or
/// "".
std::string tabStopOf(AWnd& wnd)
{
    for (AWnd* holder = &wnd; holder; holder = holder->getParent()) {
        const ATabStopInfo* stops = holder->getTabStopInfo(0);
        const int index = stops ? stops->tabOrderWnds.find(&wnd) : -1;
        if (index >= 0)
            return std::to_string(index + 1) + " of " + std::to_string(stops->tabOrderWnds.GetSize()) +
                   " in " + nameOf(*holder);
    }
    return "";
}

/// Returns where input at that point goes instead, or "" if it goes to wnd.
std::string inputAt(AMainWin& game, const AWnd& wnd, int x, int y)
{
    const Reach reach = reachAt(game, x, y, PointerAct::Point);
    if (!reach.hindrance.empty())
        return "goes nowhere: " + reach.hindrance;
    return reach.wnd == &wnd ? "" : "goes to " + nameOf(*reach.wnd);
}

WindowKind kindOf(const AWnd& wnd)
{
    switch (wnd.getWindowType()) {
    case AWnd::WND_PLAIN:
        return WindowKind::Plain;
    case AWnd::WND_SCREEN:
        return WindowKind::Top;
    case AWnd::WND_BUTTON:
    case AWnd::WND_RADIOBUTTON:
        return WindowKind::Button;
    case AWnd::WND_EDITBOX:
        return WindowKind::EditBox;
    case AWnd::WND_LISTBOX:
    case AWnd::WND_COMBOBOX:
        return WindowKind::List;
    default:
        return WindowKind::Other;
    }
}

/// Returns whether id is that of a part that controls look for in themselves. Each control has its own.
bool isPartOfControl(std::string_view id)
{
    return part::isOfScript(id) || CString::equalNoCase(part::scrollBar, id);
}

/// An id together with the window below which a search would find it.
struct PlacedId {
    const AWnd* searchRoot;
    std::string_view id;

    bool operator==(const PlacedId& other) const
    {
        return searchRoot == other.searchRoot && CString::equalNoCase(id, other.id);
    }
};

struct PlacedIdHash {
    std::size_t operator()(const PlacedId& placed) const
    {
        constexpr std::uint64_t prime = 0x100000001B3; // FNV-1a
        std::uint64_t hash = 0xCBF29CE484222325 ^ reinterpret_cast<std::uintptr_t>(placed.searchRoot);
        for (const char c : placed.id)
            hash = (hash ^ (static_cast<unsigned char>(c) & ~0x20u)) * prime; // the same for both cases
        return static_cast<std::size_t>(hash ^ hash >> 32);
    }
};

class CensusTaker {
public:
    explicit CensusTaker(const std::vector<AWnd*>& shown) : tops(shown) {}

    Census take()
    {
        for (auto top = tops.rbegin(); top != tops.rend(); ++top) {
            searched = *top;
            visit(**top);
        }
        return std::move(census);
    }

private:
    struct Seen {
        AWnd* first;
        int duplicate; // index in the census, or -1
    };

    void visit(AWnd& wnd)
    {
        // A shared window may appear in several places, but is counted only once, together with its children.
        if (wnd.getPointerCount() > 0 && !shared.insert(&wnd).second)
            return;
        if (wnd.isVisible(1))
            census.shown.push_back({&wnd, &wnd == searched ? WindowKind::Top : kindOf(wnd)});
        else
            ++census.hidden;
        addId(wnd);
        forEachChild(wnd, [&](AWnd& child) {
            if (!isOneOf(tops, child)) // an open popup is visited by itself, even if its parent is the screen
                visit(child);
        });
    }

    void addId(AWnd& wnd)
    {
        const std::string_view id = wnd.getID().view();
        if (id.empty())
            return;
        const auto [entry, isFirst] =
            ids.try_emplace(PlacedId{isPartOfControl(id) ? wnd.getParent() : searched, id}, Seen{&wnd, -1});
        if (isFirst)
            return;
        Seen& seen = entry->second;
        if (seen.duplicate < 0) {
            seen.duplicate = static_cast<int>(census.duplicates.size());
            census.duplicates.push_back({{seen.first}});
        }
        census.duplicates[static_cast<std::size_t>(seen.duplicate)].wnds.push_back(&wnd);
    }

    const std::vector<AWnd*>& tops;
    AWnd* searched = nullptr; // the screen or popup that is being visited
    std::unordered_map<PlacedId, Seen, PlacedIdHash> ids;
    std::unordered_set<const AWnd*> shared;
    Census census;
};

const char* nameOfKind(WindowKind kind)
{
    constexpr const char* names[windowKindCount] = {"screens, popups", "plain",         "buttons",
                                                    "edit boxes",      "lists, combos", "others"};
    return names[static_cast<int>(kind)];
}

/// Returns a line such as "id GO\t3 times: in PANEL, in (no id), in CARD".
std::string describeDuplicate(const DuplicateId& duplicate)
{
    std::string text = "id " + shownText(idOf(*duplicate.wnds.front())) + '\t' +
                       std::to_string(duplicate.wnds.size()) + " times: ";
    for (std::size_t i = 0; i < std::min(duplicate.wnds.size(), maxParents); ++i) {
        const AWnd* parent = duplicate.wnds[i]->getParent();
        text += (i > 0 ? ", in " : "in ") + (parent ? shownText(idOf(*parent)) : "no window");
    }
    return duplicate.wnds.size() > maxParents ? text + ", ..." : text;
}

} // namespace

AWnd* shownWindowAt(AMainWin& game, int x, int y)
{
    for (AWnd* top : shownTops(game)) {
        AWnd* found = nullptr;
        findShown(*top, x, y, found);
        if (found)
            return found;
    }
    return nullptr;
}

std::string titleOf(const AWnd& wnd)
{
    return shownText(idOf(wnd)) + "  " + classNameOf(wnd);
}

std::vector<PanelLine> describeWindow(AMainWin& game, AWnd& wnd, int x, int y, const std::string& place)
{
    std::vector<PanelLine> lines;
    addPath(lines, game, wnd);
    const auto add = [&](const char* name, const std::string& value, std::uint32_t colour = 0xFFFFFF) {
        if (!value.empty())
            lines.push_back({std::string(name) + '\t' + shownText(value), colour});
    };
    add("on screen", rectangle(wnd.left(), wnd.top(), wnd.width(), wnd.height()));
    add("in parent", rectangle(wnd.wndX(), wnd.wndY(), wnd.getWndWidth(), wnd.getWndHeight()));
    if (const std::string& text = wnd.getText().str(); !text.empty())
        add("text", '"' + text.substr(0, maxTextLength) + '"' + (text.size() > maxTextLength ? "..." : ""));
    add("font", fontOf(game, wnd));
    add("bitmap", bitmapOf(wnd));
    add("button", buttonStateOf(wnd));
    add("state", stateOf(wnd));
    add("tab stop", tabStopOf(wnd));
    add("made by", shownPlace(place));
    add("input", inputAt(game, wnd, x, y), warningColour);
    return lines;
}

Census takeCensus(AMainWin& game)
{
    const std::vector<AWnd*> tops = shownTops(game);
    return CensusTaker(tops).take();
}

std::vector<PanelLine> describeCensus(const Census& census)
{
    int counts[windowKindCount] = {};
    for (const Census::Shown& each : census.shown)
        ++counts[static_cast<int>(each.kind)];
    std::vector<PanelLine> lines;
    for (int i = 0; i < windowKindCount; ++i)
        if (const auto kind = static_cast<WindowKind>(i); counts[i] > 0)
            lines.push_back(
                {std::string(nameOfKind(kind)) + '\t' + std::to_string(counts[i]), outlineColour(kind)});
    lines.push_back({"hidden\t" + std::to_string(census.hidden)});
    for (const DuplicateId& duplicate : census.duplicates)
        lines.push_back({describeDuplicate(duplicate), duplicateColour});
    return lines;
}

std::uint32_t outlineColour(WindowKind kind)
{
    constexpr std::uint32_t colours[windowKindCount] = {0xFFFFFF, 0x50A8FF, 0x50E070,
                                                        0xD8C000, 0xFF9840, 0xC890FF};
    return colours[static_cast<int>(kind)];
}

} // namespace tgx

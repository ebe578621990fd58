#include "player/pointing.h"

#include "player/calls.h"
#include "player/events.h"
#include "player/places.h"
#include "player/played_input.h"
#include "player/player.h"
#include "player/reach.h"
#include "tgx/controls/listbox/listbox.h"

#include <limits>

namespace tgx {

namespace {

constexpr int frameLimit = 240; // per transition: a tick whose handler never ends takes no further input

/// A window and the screen point at which it is to be reached.
struct Aim {
    WndRef wnd;
    ScreenPoint point;
};

/// Runs frames until no input is waiting, usually one frame for each transition.
void takeInput(Player& player)
{
    for (int i = 0; player.hasWaitingInput() && !player.hasEnded(); ++i) {
        if (i == frameLimit)
            throw WrongLine("the input was not taken within " + std::to_string(frameLimit) + " frames");
        player.frame();
    }
}

AWnd& requireWindow(AMainWin& win, const std::string& id)
{
    AWnd* wnd = findMeantWindow(win, id);
    if (!wnd)
        throw WrongLine(describeMissingWindow(win, id));
    return *wnd;
}

Aim aimAtMiddle(const Event& event)
{
    AWnd& wnd = requireWindow(event.win, event.text(1));
    return {&wnd, middleOf(wnd)};
}

/// Returns the word at index as a number from 0 to count - 1. Raises WrongLine for any other word.
int cellIndex(const Event& event, std::size_t index, const AWnd& list, const char* what, int count)
{
    const auto number = event.number(index, 0, std::numeric_limits<std::int16_t>::max());
    if (number >= count)
        throw WrongLine(nameOf(list) + " has " + std::to_string(count) + ' ' + what +
                        ", counted from 0; found " + std::to_string(number));
    return static_cast<int>(number);
}

/// Returns the middle of the cell that "ID N [COLUMN]" names.
Aim aimAtCell(const Event& event)
{
    AWnd& wnd = requireWindow(event.win, event.text(1));
    auto* list = dynamic_cast<AListBox*>(&wnd);
    if (!list)
        throw WrongLine(nameOf(wnd) + " is not a list box");
    const int item = cellIndex(event, 2, wnd, "rows", list->getItemCount());
    const int column = event.has(3) ? cellIndex(event, 3, wnd, "columns", list->getColumnCount()) : 0;
    const int first = list->getFirstVisibleItem();
    const int page = list->getItemsPerPage();
    if (item < first || item >= first + page)
        throw WrongLine("row " + std::to_string(item) + " of " + nameOf(wnd) +
                        " is not on its page, which begins with " + std::to_string(first) + " and has " +
                        std::to_string(page));
    return {&wnd, middleOfCell(*list, {item, column})};
}

void requireReach(const Event& event, const Aim& aim, PointerAct act)
{
    const std::string reason = whyNotReached(event.win, *aim.wnd, aim.point.x, aim.point.y, act);
    if (!reason.empty())
        throw WrongLine(nameOf(*aim.wnd) + ' ' + reason);
}

/// Moves the pointer to the aim and checks that input reaches it there. False if the program has ended
/// meanwhile.
bool pointAt(const Event& event, Aim (*findAim)(const Event& event), PointerAct act)
{
    takeInput(event.player);
    if (event.player.hasEnded())
        return false;
    if (act != PointerAct::Point && event.win.lButtonDown)
        throw WrongLine("the left button is already held down");
    const Aim aim = findAim(event);
    requireReach(event, aim, act);
    event.input.move(aim.point.x, aim.point.y);
    takeInput(event.player);
    if (event.player.hasEnded())
        return false;
    if (!aim.wnd)
        throw WrongLine(quote(event.text(1)) + " was deleted while the pointer moved to it");
    requireReach(event, aim, act); // the window may have reacted to the pointer, or have moved
    return true;
}

void clickOn(const Event& event)
{
    event.input.press(MouseButton::Left);
    takeInput(event.player);
    event.input.release(MouseButton::Left);
    takeInput(event.player);
}

} // namespace

void moveTo(const Event& event)
{
    if (event.words.size() != 3 && event.words.size() != 5)
        throw WrongLine("expected move to ID [X Y]");
    if (event.has(4)) {
        const AWnd& wnd = requireWindow(event.win, event.text(2));
        event.input.move(wnd.left() + event.coordinate(3), wnd.top() + event.coordinate(4));
    } else {
        const Aim aim = aimAtMiddle(event.withoutFirst(1));
        event.input.move(aim.point.x, aim.point.y);
    }
}

void hover(const Event& event)
{
    pointAt(event, aimAtMiddle, PointerAct::Point);
}

void click(const Event& event)
{
    if (pointAt(event, aimAtMiddle, PointerAct::Click))
        clickOn(event);
}

void doubleClickOn(const Event& event)
{
    if (!pointAt(event, aimAtMiddle, PointerAct::Click))
        return;
    clickOn(event);
    event.input.doubleClick(MouseButton::Left);
    takeInput(event.player);
    event.input.release(MouseButton::Left);
    takeInput(event.player);
}

void clickRow(const Event& event)
{
    if (pointAt(event, aimAtCell, PointerAct::Click))
        clickOn(event);
}

} // namespace tgx

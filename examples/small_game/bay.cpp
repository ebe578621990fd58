#include "bay.h"

#include "game.h"

#include <algorithm>
#include <numeric>
#include <string>

void BayScreen::startup()
{
    AScreen::startup();
    const auto& game = *static_cast<LobsterWindow*>(getMainWin());
    if (auto* map = windowAs<BayMap>(getWnd("MAP", 1))) {
        map->fill(static_cast<unsigned>(game.getDay()));
        map->setPots(game.getPots());
    }
    getMainWin()->setKeepListSelection(1); // a click beside the table keeps the selection
    showState();
}

/// Called by the map after a catch, but also by other controls, so it asks the map whether there is one.
void BayScreen::update()
{
    auto* map = windowAs<BayMap>(getWnd("MAP", 1));
    const std::optional<Catch> brought = map ? map->takeCatch() : std::nullopt;
    if (!brought)
        return;
    if (AWnd* news = getWnd("NEWS", 1))
        news->setWindowText(brought->grams > 0 ? CString(brought->what) : CString("Only water."));
    if (brought->grams > 0) {
        const int chosen = chosenCatch();
        catches.push_back(*brought);
        showCatches(chosen);
    }
    showState();
}

void BayScreen::showState()
{
    auto* map = windowAs<BayMap>(getWnd("MAP", 1));
    if (AWnd* pots = getWnd("POTS", 1))
        pots->setWindowText(CString((std::to_string(map ? map->getPots() : 0) + " pots left").c_str()));
    if (AWnd* total = getWnd("TOTAL", 1))
        total->setWindowText(CString((std::to_string(totalPence()) + " pence").c_str()));
}

int BayScreen::totalPence() const
{
    return std::accumulate(catches.begin(), catches.end(), 0,
                           [](int sum, const Catch& each) { return sum + each.pence; });
}

// The table only shows rows; the game knows which catch each of them is.

/// Returns the index of the catch in the selected row, or -1.
int BayScreen::chosenCatch()
{
    const AListBox* table = getListBox("CATCHES", 1);
    const int row = table ? table->getSelectedItem() : -1;
    return row >= 0 && row < static_cast<int>(order.size()) ? order[static_cast<std::size_t>(row)] : -1;
}

void BayScreen::showCatches(int chosen)
{
    AListBox* table = getListBox("CATCHES", 1);
    if (!table)
        return;
    order.resize(catches.size());
    std::iota(order.begin(), order.end(), 0);
    const auto comesFirst = [this](int a, int b) {
        const Catch& first = catches[static_cast<std::size_t>(descending ? b : a)];
        const Catch& second = catches[static_cast<std::size_t>(descending ? a : b)];
        return sortColumn == What     ? std::string_view(first.what) < second.what
               : sortColumn == Weight ? first.grams < second.grams
                                      : sortColumn == Price && first.pence < second.pence;
    };
    std::stable_sort(order.begin(), order.end(), comesFirst);

    table->removeAllItems(0);
    for (const int index : order) {
        const Catch& each = catches[static_cast<std::size_t>(index)];
        const int row = table->addItem();
        table->setItemData(row, What, CString(each.what));
        table->setItemData(row, Weight, each.grams);
        table->setItemData(row, Price, each.pence);
        if (index == chosen)
            table->setSelectedItem(row);
    }
}

void BayScreen::sortBy(int column)
{
    const int chosen = chosenCatch();
    descending = column == sortColumn && !descending;
    sortColumn = column;
    if (AListBox* table = getListBox("CATCHES", 1))
        table->setSelectedItem(-1);
    showCatches(chosen);
}

int BayScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    // Titles first: in a scrolled table the rows below them must not get the click.
    AListBox* table = getListBox("CATCHES", 1);
    const bool clicks = action == MA_LBUTTONDOWN || action == MA_LBUTTONUP || action == MA_LBUTTONDBLCLK;
    if (table && clicks && wnd == table && y < table->getItemsStartPosY(1) + table->getRowHeight()) {
        if (action == MA_LBUTTONUP)
            sortBy(table->getColumnAtPos(x));
        return 1;
    }
    if (AScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    if (action != MA_LBUTTONUP || subject != "HOME")
        return 0;
    const auto* map = windowAs<BayMap>(getWnd("MAP", 1));
    if (map && map->getPots() > 0) {
        getMainWin()->queryBox("Row home?", "There are pots in the boat that have not seen water today.", "",
                               "GO_HOME", this, 1);
        return 1;
    }
    static_cast<LobsterWindow*>(getMainWin())->endDay(totalPence());
    return 1;
}

/// Handles input in a box that this screen has opened. The base closes the box.
int BayScreen::handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const AWnd* box = getPopupWnd();
    const bool goesHome = action == MA_LBUTTONUP && subject == "TGX_YES" && box && box->getID() == "GO_HOME";
    const int result = AScreen::handlePopupAction(subject, wnd, x, y, action);
    if (goesHome)
        static_cast<LobsterWindow*>(getMainWin())->endDay(totalPence());
    return result;
}

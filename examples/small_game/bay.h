#pragma once

#include "bay_map.h"
#include "catch.h"

#include <vector>

/// The screen "BAY": the map, and a table of the day's catches that a click on a title sorts.
class BayScreen : public AScreen {
public:
    using AScreen::AScreen;

    void startup() override;
    void update() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Column of the table that is sorted by, from 0; below 0: in the order of the day. For events files.
    int getSortColumn() const { return sortColumn; }

private:
    enum Column { What, Weight, Price };
    void showState();
    void showCatches(int chosen);
    void sortBy(int column);
    int chosenCatch();
    int totalPence() const;

    std::vector<Catch> catches;
    std::vector<int> order; // row of the table to index of the catch
    int sortColumn = -1;
    bool descending = false;
};

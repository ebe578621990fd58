#pragma once

#include "bay_map.h"
#include "catch.h"

#include <vector>

/// The screen "BAY": the map, and a table of the day's catches. A click on a title sorts the table.
class BayScreen : public AScreen {
public:
    using AScreen::AScreen;

    void startup() override;
    void update() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

    /// Returns the column that the table is sorted by, counted from 0, or -1 for the order of the catches.
    /// For events files.
    int getSortColumn() const { return sortColumn; }

private:
    enum Column { What, Weight, Price };
    void showState();
    void showCatches(int chosen);
    void sortBy(int column);
    int chosenCatch();
    int totalPence() const;

    std::vector<Catch> catches;
    std::vector<int> order; // index of the catch in each row of the table
    int sortColumn = -1;
    bool descending = false;
};

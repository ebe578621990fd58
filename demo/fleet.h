#pragma once

#include "demo/game.h"

/// The fleet: a table of vessels. The one that is chosen in it is shown beside it; some vessel always is.
class FleetScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void returned() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    /// Tons, condition and coal of each vessel, and the sums in the rows between.
    void fillIn(AListBox& table);
    void keepChoice();
    void show(AListBox& table, int row);

    int shown = -1; // row of the vessel that is shown
};

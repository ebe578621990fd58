#pragma once

#include "demo/game.h"

/// The fleet: a table of vessels. One vessel is always selected, and is shown beside the table.
class FleetScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void returned() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    /// Fills in tons, condition and coal of each vessel, and the sums in the heading rows.
    void fillIn(AListBox& table);
    void keepSelection();
    void show(AListBox& table, int row);

    int shown = -1; // row of the vessel that is shown
};

#pragma once

#include "demo/game.h"
#include "demo/stowage.h"

class AComboBox;

/// The cargo of the Alma: lots on the quay and in the hold, and a plan of the hold. A button moves the lot
/// that is selected in one list to the other, and a click on the plan moves it to a place in the hold.
class CargoScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void returned() override;
    /// Called after a selection in a combo box.
    void update() override;
    int handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;
    int handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action) override;

private:
    void readLots();
    void fillLists();
    void fillPlan();
    void showChoice();
    void showOrders();
    void showState();
    AListBox& list(const char* name) { return part<AListBox>(name); }
    int choiceIn(const char* listName);
    int chosenLot();
    void choose(int lot);
    void move(int lot, int newPlace);
    void click(const CString& subject);
    void setUnsaved(bool set);
    void setArrowsOnPlan(bool set);
    bool leavePlan();

    Stowage stowage;
    int orders[3] = {};        // selected items of the combo boxes
    WndList fullTabOrder;      // the script's tab order, while only the plan is a tab stop
    bool arrowsOnPlan = false; // the arrow keys move on the plan
    bool unsaved = false;
};

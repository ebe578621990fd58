#pragma once

#include "demo/game.h"
#include "demo/stowage.h"

class AComboBox;

/// The cargo of the Alma: lots on the quay and in the hold, and a plan of the hold. What is chosen in one of
/// the lists is moved to the other by a button, or to a place in the hold by a click on the plan.
class CargoScreen : public HarbourScreen {
public:
    using HarbourScreen::HarbourScreen;
    void startup() override;
    void returned() override;
    /// After a choice in a combo box.
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
    void giveArrowsTo(bool plan);
    bool leavePlan();

    Stowage stowage;
    int orders[3] = {};  // what is chosen in the combo boxes
    WndList wholeOrder;  // the tab order of the script, while the plan alone is in it
    bool onPlan = false; // the arrows go to the plan
    bool unsaved = false;
};

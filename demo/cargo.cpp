#include "demo/cargo.h"

#include "tgx/controls/button.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/wnd/tabstops.h"
#include "tgx/wnd/window_cast.h"

#include <algorithm>
#include <cstdlib>

namespace {

enum QuayColumn { QuayIcon, QuayLot, QuayTons };
enum HoldColumn { HoldIcon, HoldLot, HoldPlace, HoldTons };
constexpr int goodsIcons = 0;  // index of goods.png in the lists
constexpr int stowedIcons = 0; // index of stowed.png in the plan; its frame 0 is an empty place

constexpr const char* comboBoxes[] = {"BOUND", "DUNNAGE", "GANG"};
constexpr const char* arrivals[] = {"At St Brannoc on Wednesday", "At Quill Haven on Wednesday",
                                    "At North Sound on Friday", "At Gannet Rock, if it lets us",
                                    "At Farholm on Thursday"};
constexpr int dunnageMinutes[] = {10, 20, 40, 0};
constexpr int hands[] = {4, 6, 8, 10};

/// Returns the frame number from the text of an icon cell.
int frameOf(const CString& cell)
{
    static const CString mark("##FRAME##");
    return std::atoi(cell.Mid(cell.Find(mark) + mark.GetLength()));
}

std::string twoDigits(int number)
{
    return {static_cast<char>('0' + number / 10 % 10), static_cast<char>('0' + number % 10)};
}

/// Scrolls so that the page begins with that row, or to the end if there are too few rows.
void scrollTo(AListBox& list, int row)
{
    const int hidden = list.getItemCount() - list.getItemsPerPage();
    if (hidden <= 0)
        return;
    const ZnFixed share = ZnFixed::fromInt(std::min(row, hidden)) / ZnFixed::fromInt(hidden);
    list.scrollTo(ZnFixed::fromInt(100) * share);
}

/// Empties a list, lets fill add its rows, and restores its scroll position.
template<class Fill>
void refill(AListBox& list, Fill fill)
{
    const int first = list.getFirstVisibleItem();
    list.reset(0, 1);
    fill();
    scrollTo(list, first);
}

} // namespace

void CargoScreen::startup()
{
    HarbourScreen::startup();
    if (stowage.lots.empty())
        readLots();
    list("QUAY_LOTS").setSingleSelectWith(&list("HOLD_LOTS"));
    getMainWin()->setKeepListSelection(1);
    fillLists();
    fillPlan();
    showChoice();
    showOrders();
    showState();
}

void CargoScreen::returned()
{
    HarbourScreen::returned();
    getMainWin()->setKeepListSelection(1); // a change of screens resets it
    showChoice();
}

/// Reads the initial lots from the rows in the script.
void CargoScreen::readLots()
{
    AListBox& quay = list("QUAY_LOTS");
    for (int row = 0; row < quay.getItemCount(); ++row)
        stowage.lots.push_back({quay.getItemText(row, QuayLot).str(),
                                frameOf(quay.getItemText(row, QuayIcon)),
                                std::atoi(quay.getItemText(row, QuayTons))});
    AListBox& hold = list("HOLD_LOTS");
    for (int row = 0; row < hold.getItemCount(); ++row)
        stowage.lots.push_back({hold.getItemText(row, HoldLot).str(),
                                frameOf(hold.getItemText(row, HoldIcon)),
                                std::atoi(hold.getItemText(row, HoldTons)),
                                Stowage::findPlace(hold.getItemText(row, HoldPlace).str())});
}

void CargoScreen::fillLists()
{
    AListBox& quay = list("QUAY_LOTS");
    refill(quay, [&] {
        for (const Stowage::Lot& lot : stowage.lots) {
            if (lot.place != Stowage::ashore)
                continue;
            const int row = quay.addItem();
            quay.setItemDataWithIconIndex(row, QuayIcon, goodsIcons, lot.kind);
            quay.setItemData(row, QuayLot, CString(lot.name));
            quay.setItemData(row, QuayTons, lot.tons);
        }
    });
    AListBox& hold = list("HOLD_LOTS");
    refill(hold, [&] {
        for (int each = 0; each < Stowage::places; ++each) {
            const int stowed = stowage.lotAt(each);
            if (stowed == Stowage::nothing)
                continue;
            const Stowage::Lot& lot = stowage.at(stowed);
            const int row = hold.addItem();
            hold.setItemDataWithIconIndex(row, HoldIcon, goodsIcons, lot.kind);
            hold.setItemData(row, HoldLot, CString(lot.name));
            hold.setItemData(row, HoldPlace, CString(Stowage::placeName(each)));
            hold.setItemData(row, HoldTons, lot.tons);
        }
    });
}

void CargoScreen::fillPlan()
{
    AListBox& plan = list("PLAN");
    plan.removeAllItems(0);
    for (int each = 0; each < Stowage::places; ++each) {
        const int column = each % Stowage::placesInRow;
        const int row = column == 0 ? plan.addItem() : plan.getItemCount() - 1;
        const int stowed = stowage.lotAt(each);
        const int frame = stowed == Stowage::nothing ? 0 : 1 + stowage.at(stowed).kind;
        plan.setItemDataWithIconIndex(row, column, stowedIcons, frame);
    }
}

/// Returns the lot that is selected in that list.
int CargoScreen::choiceIn(const char* listName)
{
    AListBox& from = list(listName);
    const CString name = from.getItemText(from.getSelectedItem(), QuayLot); // the same column in both
    for (std::size_t i = 0; i < stowage.lots.size() && !name.IsEmpty(); ++i)
        if (name == stowage.lots[i].name.c_str())
            return static_cast<int>(i);
    return Stowage::nothing;
}

int CargoScreen::chosenLot()
{
    const int onQuay = choiceIn("QUAY_LOTS");
    return onQuay != Stowage::nothing ? onQuay : choiceIn("HOLD_LOTS");
}

void CargoScreen::choose(int lot)
{
    for (const char* listName : {"QUAY_LOTS", "HOLD_LOTS"}) {
        AListBox& each = list(listName);
        each.setSelectedItem(-1);
        for (int row = 0; row < each.getItemCount(); ++row)
            if (lot != Stowage::nothing && each.getItemText(row, QuayLot) == stowage.at(lot).name.c_str()) {
                each.setSelectedItem(row);
                if (row < each.getFirstVisibleItem() ||
                    row >= each.getFirstVisibleItem() + each.getItemsPerPage())
                    scrollTo(each, row);
            }
    }
}

/// Updates the crane's panel, its button and the plan to the lot that is selected in the lists.
void CargoScreen::showChoice()
{
    const int chosen = chosenLot();
    auto& button = part<AButton>("MOVE");
    AListBox& plan = list("PLAN");
    if (chosen == Stowage::nothing) {
        showText("CHOSEN", "No lot is chosen");
        showText("CHOSEN_TONS", "");
        if (button.getButtonState() != AButton::BS_DISABLED)
            button.setButtonState(AButton::BS_DISABLED);
        plan.setSelectedItem(-1);
        return;
    }
    const Stowage::Lot& lot = stowage.at(chosen);
    const bool onQuay = lot.place == Stowage::ashore;
    showText("CHOSEN", lot.name.c_str());
    showText("CHOSEN_TONS",
             (std::to_string(lot.tons) + " t, " + (onQuay ? "ashore" : "in " + Stowage::placeName(lot.place)))
                 .c_str());
    showText("MOVE", onQuay ? "Stow it" : "Land it");
    if (button.getButtonState() == AButton::BS_DISABLED)
        button.setButtonState(AButton::BS_NORMAL);
    plan.setSelectedItem(onQuay ? -1 : lot.place / Stowage::placesInRow);
    plan.setSelectedColumn(onQuay ? -1 : lot.place % Stowage::placesInRow);
}

void CargoScreen::showOrders()
{
    const int tons = stowage.tonsStowed(), men = hands[orders[2]];
    constexpr int begin = 6 * 60, minutesPerTonAndHand = 15;
    const int end = begin + dunnageMinutes[orders[1]] + tons * minutesPerTonAndHand / men;
    showText("LOADED", ("Loaded by " + twoDigits(end / 60) + "." + twoDigits(end % 60)).c_str());
    showText("ARRIVES", arrivals[orders[0]]);
}

void CargoScreen::showState()
{
    const int lots = stowage.lotsStowed();
    showText("STOWED", (std::to_string(stowage.tonsStowed()) + " tons in " + std::to_string(lots) +
                        (lots == 1 ? " place" : " places") + (unsaved ? ", not signed" : ", signed"))
                           .c_str());
}

void CargoScreen::setUnsaved(bool set)
{
    unsaved = set;
    canExit = !set; // leaving asks first
    showState();
}

void CargoScreen::move(int lot, int newPlace)
{
    stowage.at(lot).place = newPlace;
    for (const char* listName : {"QUAY_LOTS", "HOLD_LOTS"})
        list(listName).setGradualReveal(0); // only the first rows appear gradually
    fillLists();
    fillPlan();
    choose(lot);
    showOrders();
    setUnsaved(true);
}

void CargoScreen::update()
{
    bool changed = false;
    for (std::size_t i = 0; i < std::size(orders); ++i) {
        auto* box = windowAs<AComboBox>(getWnd(comboBoxes[i], 1));
        if (!box || box->getSelectedItem() == orders[i])
            continue;
        orders[i] = box->getSelectedItem();
        changed = true;
    }
    if (!changed)
        return;
    showOrders();
    setUnsaved(true);
}

int CargoScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    if (action == MA_KEY && wnd && (subject == "ComboPrev" || subject == "ComboNext")) {
        // Passed on as it is, a key on one box's button would step all boxes.
        AWnd* box = wnd->getParent();
        return handleMouseAction(box->getID(), box, x, y, action);
    }
    if (action == MA_KEY && subject == "PLAN" && leavePlan())
        return 1;
    if (isClickOnTitles(list("QUAY_LOTS"), wnd, y, action) ||
        isClickOnTitles(list("HOLD_LOTS"), wnd, y, action))
        return 1;
    if (HarbourScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    const AWnd* pointed = getMainWin()->getCurFocusWnd();
    setArrowsOnPlan(pointed && pointed->getID() == "PLAN");
    if (action == MA_LBUTTONUP)
        click(subject);
    if (action != MA_LBUTTONDOWN)
        showChoice();
    return 0;
}

void CargoScreen::click(const CString& subject)
{
    const int chosen = chosenLot();
    if (subject == "MOVE" && chosen != Stowage::nothing) {
        const bool onQuay = stowage.at(chosen).place == Stowage::ashore;
        move(chosen, onQuay ? stowage.firstFreePlace() : Stowage::ashore);
    } else if (subject == "PLAN" && list("PLAN").getHotItem() >= 0) {
        const int pointed = list("PLAN").getHotItem() * Stowage::placesInRow + list("PLAN").getHotColumn();
        const int stowed = stowage.lotAt(pointed);
        if (stowed != Stowage::nothing)
            choose(stowed);
        else if (chosen != Stowage::nothing)
            move(chosen, pointed);
    } else if (subject == "SIGN") {
        setUnsaved(false);
        for (const std::string& remark : stowage.remarks())
            messageBox("The mate remarks", CString(remark), "", "messageBox");
    } else if (subject == "TGX_BACK" && unsaved) {
        getMainWin()->queryBox("Leave the stowage as it is?",
                               "The manifest does not know of the last changes, nor does the mate.", "",
                               "LEAVE", this, 1);
    }
}

int CargoScreen::handlePopupAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    const AWnd* box = getPopupWnd();
    const bool leaves = action == MA_LBUTTONUP && subject == "TGX_YES" && box && box->getID() == "LEAVE";
    const int result = HarbourScreen::handlePopupAction(subject, wnd, x, y, action);
    if (leaves)
        exitScreen();
    return result;
}

/// Left and right move between tab stops, unless a table of cells is the only tab stop. So the plan is made
/// the only one while the pointer is on it.
void CargoScreen::setArrowsOnPlan(bool set)
{
    if (set == arrowsOnPlan)
        return;
    arrowsOnPlan = set;
    WndList& order = getTabStopInfo(1)->tabOrderWnds;
    if (set) {
        for (int i = 0; i < order.GetSize(); ++i)
            fullTabOrder.Add(order[i]);
        order.RemoveAll();
        order.Add(&list("PLAN"));
    } else {
        order.RemoveAll();
        for (int i = 0; i < fullTabOrder.GetSize(); ++i)
            order.Add(fullTabOrder[i]);
        fullTabOrder.RemoveAll();
    }
}

/// Leaves the plan on Tab, and on an arrow key at its edge.
bool CargoScreen::leavePlan()
{
    AMainWin* main = getMainWin();
    AListBox& plan = list("PLAN");
    const bool back = main->keyCode == VK_TAB ? main->keyDown[VK_SHIFT]
                                              : main->keyCode == VK_LEFT && plan.getHotColumn() == 0;
    const bool on = main->keyCode == VK_TAB
                        ? !back
                        : main->keyCode == VK_RIGHT && plan.getHotColumn() == Stowage::placesInRow - 1;
    if (!back && !on)
        return false;
    setArrowsOnPlan(false);
    main->setMousePosOnNextTabStop(this, &plan, back, 0);
    return true;
}

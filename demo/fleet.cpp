#include "demo/fleet.h"

#include "demo/vessels.h"
#include "tgx/controls/listbox/listbox.h"

#include <string>

namespace {

enum Column { KindIcon, Name, LiesAt, Signal, Tons, Condition, Coal };
enum Icon { Kinds, Signals, ConditionGauge, CoalGauge }; // in the order of LISTICONS

} // namespace

void FleetScreen::startup()
{
    HarbourScreen::startup();
    if (AListBox* table = getListBox("VESSELS", 1))
        fillIn(*table);
    keepSelection();
}

void FleetScreen::returned()
{
    HarbourScreen::returned();
    keepSelection();
}

/// Keeps a row selected when the user clicks elsewhere. A change of screens resets this, so it is set again.
void FleetScreen::keepSelection()
{
    getMainWin()->setKeepListSelection(1);
    AListBox* table = getListBox("VESSELS", 1);
    if (!table)
        return;
    constexpr int first = 1; // after the heading
    table->setSelectedItem(shown < 0 ? first : shown);
    show(*table, table->getSelectedItem());
}

void FleetScreen::fillIn(AListBox& table)
{
    int heading = -1, sum = 0, all = 0, count = 0;
    const auto endGroup = [&] {
        if (heading >= 0)
            table.setItemData(heading, Tons, sum);
        sum = 0;
    };
    for (int row = 0; row < table.getItemCount(); ++row) {
        const Vessel* vessel = findVessel(table.getItemText(row, Name).view());
        if (!vessel) {
            endGroup();
            heading = row;
            table.addFontRow1(row);
            continue;
        }
        table.setItemData(row, Tons, vessel->tons);
        table.setItemDataWithIconPercentage(row, Condition, ConditionGauge, vessel->condition);
        if (vessel->coal != Vessel::burnsNone)
            table.setItemDataWithIconPercentage(row, Coal, CoalGauge, vessel->coal);
        sum += vessel->tons;
        all += vessel->tons;
        ++count;
    }
    // The last of these rows is the total below all groups, which has a font of its own.
    sum = all;
    endGroup();
    table.addFontRow2(heading);
    showText("FLEET_COUNT", (std::to_string(count) + " keels, more or less dry").c_str());
}

void FleetScreen::show(AListBox& table, int row)
{
    const Vessel* vessel = findVessel(table.getItemText(row, Name).view());
    if (!vessel || row == shown)
        return;
    shown = row;
    if (AWnd* picture = getWnd("VESSEL_PICTURE", 1))
        picture->setBmp(CString(vessel->picture));
    showText("VESSEL_NAME", vessel->name);
    showText("VESSEL_KIND",
             (std::string(vessel->kind) + (vessel->tons ? ", " + std::to_string(vessel->tons) + " tons" : ""))
                 .c_str());
    showText("VESSEL_MASTER", vessel->master);
    showText("VESSEL_BUILT", vessel->built);
    showText("VESSEL_SIGNAL", vessel->signal);
    AListBox* log = getListBox("LOG", 1);
    if (!log)
        return;
    log->reset(0, 1);
    log->setSelectedItem(-1);
    for (const auto& [date, entry] : vessel->log) {
        const int dateRow = log->addItem();
        log->setItemData(dateRow, 0, CString(date));
        log->addFontRow1(dateRow);
        log->setItemDataWithWrap(log->addItem(), 0, entry);
    }
}

int FleetScreen::handleMouseAction(const CString& subject, AWnd* wnd, int x, int y, E_MOUSEACTION action)
{
    AListBox* table = getListBox("VESSELS", 1);
    if (table && isClickOnTitles(*table, wnd, y, action))
        return 1;
    if (HarbourScreen::handleMouseAction(subject, wnd, x, y, action))
        return 1;
    if (!table)
        return 0;
    if (table->getSelectedItem() >= 0)
        show(*table, table->getSelectedItem());
    else if (action != MA_LBUTTONDOWN) // a press on a heading has cleared the selection
        table->setSelectedItem(shown);
    return 0;
}

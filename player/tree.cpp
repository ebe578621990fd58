#include "player/json.h"
#include "player/reports.h"
#include "tgx/controls/combobox.h"
#include "tgx/controls/editbox.h"
#include "tgx/controls/graph.h"
#include "tgx/controls/progressbar.h"
#include "tgx/controls/radiobutton.h"
#include "tgx/controls/scrollbar.h"
#include "tgx/controls/tabcontrol.h"
#include "tgx/controls/vidiprinter.h"
#include "tgx/frame/mainwin.h"

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <typeinfo>

namespace tgx {

namespace {

/// The fields that a class adds to those of every window. All rows whose class a window is an instance of are
/// written, in this order, so the row of a base class comes before those of the classes derived from it.
struct ClassFields {
    void (*write)(JsonWriter& json, const AWnd& wnd);
};

template<class Class, void (*fields)(JsonWriter&, const Class&)>
constexpr ClassFields fieldsOf()
{
    return {[](JsonWriter& json, const AWnd& wnd) {
        if (auto* object = dynamic_cast<const Class*>(&wnd))
            fields(json, *object);
    }};
}

void screenFields(JsonWriter& json, const AScreen& screen)
{
    json.field("open", screen.isOpen())
        .field("caller", screen.getCaller().view())
        .field("backdrop", screen.getBackdropName().view());
}

void buttonFields(JsonWriter& json, const AButton& button)
{
    json.field("state", button.getButtonState()).field("selected", button.getSelected());
}

void radioButtonFields(JsonWriter& json, const ARadioButton& button)
{
    json.field("linked", button.getLinkedButtonsCount(0));
}

void tabControlFields(JsonWriter& json, const ATabControl& control)
{
    json.field("tabCount", control.getTabCount());
}

void scrollBarFields(JsonWriter& json, const AScrollBar& bar)
{
    json.field("percentage", bar.getPercentage().raw)
        .field("step", bar.getStep().raw)
        .field("leverHeld", bar.getLeverHeld());
}

void editBoxFields(JsonWriter& json, const AEditBox& box)
{
    json.field("cursor", box.getCursorPos()).field("password", box.getIsPassword());
}

void comboBoxFields(JsonWriter& json, const AComboBox& box)
{
    json.field("selectedItem", box.getSelectedItem());
    json.key("items").open('[');
    for (int i = 0; i < box.getItemCount(); ++i)
        json.value(box.getItemText(i).view());
    json.close(']');
}

void listBoxFields(JsonWriter& json, const AListBox& list)
{
    json.field("rows", list.getItemCount())
        .field("columns", list.getColumnCount())
        .field("firstVisibleItem", list.getFirstVisibleItem())
        .field("selectedItem", list.getSelectedItem())
        .field("selectedColumn", list.getSelectedColumn())
        .field("hotItem", list.getHotItem())
        .field("hotColumn", list.getHotColumn())
        .field("revealedItems", list.getRevealedItems());
    json.key("cells").open('[');
    const int first = std::max(list.getFirstVisibleItem(), 0);
    const int end = std::min(first + list.getItemsPerPage(), list.getItemCount());
    for (int row = first; row < end; ++row) {
        json.open('[');
        for (int column = 0; column < list.getColumnCount(); ++column)
            json.value(list.getItemText(row, column).view());
        json.close(']');
    }
    json.close(']');
}

void progressBarFields(JsonWriter& json, const AProgressBar& bar)
{
    json.field("percentage", bar.getPercentage().raw);
}

void vidiPrinterFields(JsonWriter& json, const AVidiPrinter& printer)
{
    json.field("progress", printer.getPrintProgress().raw);
}

void graphFields(JsonWriter& json, const AGraph& graph)
{
    json.field("growth", graph.getGrowth().raw)
        .field("xRange", graph.getXRange())
        .field("yRange", graph.getYRange());
    json.key("counts").open('[');
    for (int series = 0; series < AGraph::seriesCount; ++series)
        json.value(graph.getItemCount(series));
    json.close(']');
}

constexpr ClassFields classFields[] = {
    fieldsOf<AScreen, screenFields>(),
    fieldsOf<AButton, buttonFields>(),
    fieldsOf<ARadioButton, radioButtonFields>(),
    fieldsOf<ATabControl, tabControlFields>(),
    fieldsOf<AComboBox, comboBoxFields>(),
    fieldsOf<AListBox, listBoxFields>(),
    fieldsOf<AScrollBar, scrollBarFields>(),
    fieldsOf<AEditBox, editBoxFields>(),
    fieldsOf<AProgressBar, progressBarFields>(),
    fieldsOf<AVidiPrinter, vidiPrinterFields>(),
    fieldsOf<AGraph, graphFields>(),
};

void writeWindow(JsonWriter& json, AMainWin& win, AWnd& wnd)
{
    json.open('{')
        .field("id", wnd.getID().view())
        .field("type", wnd.getWindowType())
        .field("class", classNameOf(wnd))
        .field("x", wnd.left())
        .field("y", wnd.top())
        .field("w", wnd.width())
        .field("h", wnd.height())
        .field("wndX", wnd.wndX())
        .field("wndY", wnd.wndY())
        .field("visible", wnd.isVisible(0))
        .field("enabled", wnd.getEnabled())
        .field("text", wnd.getText().view())
        .field("bmp", wnd.getBmpFilename().view())
        .field("frame", wnd.getCurrentFrame())
        .field("font", win.getFontIndex(wnd.getFont()));
    json.key("children").open('[');
    for (int i = 0; i < wnd.getWindowCount(); ++i) {
        if (AWnd* child = wnd.getWndFromIndex(i, ""))
            writeWindow(json, win, *child);
    }
    json.close(']');
    for (const ClassFields& row : classFields)
        row.write(json, wnd);
    json.close('}');
}

void writeId(JsonWriter& json, const AWnd* wnd)
{
    if (wnd)
        json.value(wnd->getID().view());
    else
        json.null();
}

} // namespace

// The part after the last :: outside template arguments and parameter lists.
std::string classNameOf(const AWnd& wnd)
{
    int status = 0;
    std::unique_ptr<char, decltype(&std::free)> demangled(
        abi::__cxa_demangle(typeid(wnd).name(), nullptr, nullptr, &status), &std::free);
    std::string name = demangled ? demangled.get() : typeid(wnd).name();
    int depth = 0;
    for (std::size_t i = name.size(); i-- > 1;) {
        depth += (name[i] == '>' || name[i] == ')') - (name[i] == '<' || name[i] == '(');
        if (depth == 0 && name[i] == ':' && name[i - 1] == ':')
            return name.substr(i + 1);
    }
    return name;
}

std::string treeReport(AMainWin& win)
{
    JsonWriter json;
    json.open('{');
    writeId(json.key("activeScreen"), win.getActiveScreen());
    writeId(json.key("focus"), win.getCurFocusWnd());
    writeId(json.key("mouseDown"), win.getMouseDownWnd());
    json.key("popups").open('[');
    for (int i = 0; i < win.getPopupWndCount(); ++i)
        writeId(json, win.getPopupWnd(i));
    json.close(']').key("capture").open('[');
    for (int i = 0; i < win.getMouseCaptureWndCount(); ++i)
        writeId(json,
                win.getMouseCaptureWnd(i)); // beyond the count, this operation continues with the popups
    json.close(']').key("pointer").open('[').value(win.mouseX).value(win.mouseY).close(']');
    json.field("frameStep", win.getFrameStep()).key("root");
    if (AScreenList* root = win.getScreenList())
        writeWindow(json, win, *root);
    else
        json.null();
    json.close('}');
    return json.text() + '\n';
}

} // namespace tgx

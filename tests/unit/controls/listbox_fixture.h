#pragma once

#include "tests/unit/support/tgx_test.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"

/// A screen with a list called LIST at 100, 100, by default 200 x 121, in which five rows of 24 fit.
/// Characters are 10 pixels wide; the first cell's text is at 110, 106.
class ListBoxTest : public TgxTest {
protected:
    /// attributes: statement lines for LIST. others: lines for the screen.
    void startList(const std::string& attributes, const std::string& others = "", int height = 121)
    {
        strip("UIG/scroll1.bmp", 16, 26, 6);
        start("SCREEN \"S\" 0 0 640 480 \"\"\nBEGIN\nLISTBOX \"LIST\" 100 100 200 " + std::to_string(height) +
              "\nBEGIN\n" + attributes + "\nEND\n" + others + "\nEND\n");
        play("frame 6");
        for (int i = 0; i < win().getFontCount(); ++i)
            measureFont(i);
    }
    AListBox* list(const std::string& id = "LIST") { return static_cast<AListBox*>(wnd(id)); }
    AScrollBar* bar() { return list()->getScrollBar(); }
    std::string callList(const std::string& operation) { return call("LIST " + operation); }
    /// Appends rows called "r0", "r1" and so on.
    void addRows(int count)
    {
        for (int i = 0; i < count; ++i) {
            const int row = list()->addItem();
            list()->setItemData(row, 0, CString("r" + std::to_string(row)));
        }
        play("frame 2");
    }
    /// Replaces all rows by one with this first cell.
    void setOnlyCell(const std::string& cell)
    {
        list()->removeAllItems(0);
        list()->setItemData(list()->addItem(), 0, CString(cell));
        play("frame");
    }
    void click(int x, int y)
    {
        play("move " + std::to_string(x) + " " + std::to_string(y), "press left", "tick", "release left",
             "tick");
    }
    int first() { return list()->getFirstVisibleItem(); }
    /// The selected row and column, then the hot ones, as in "1,0 -1,0".
    std::string state()
    {
        const auto pair = [](int row, int column) {
            return std::to_string(row) + "," + std::to_string(column);
        };
        return pair(list()->getSelectedItem(), list()->getSelectedColumn()) + " " +
               pair(list()->getHotItem(), list()->getHotColumn());
    }
    /// All cells as stored, as in "a b|c d".
    std::string cells()
    {
        std::string texts;
        for (int row = 0; row < list()->getItemCount(); ++row)
            for (int column = 0; column < list()->getColumnCount(); ++column)
                texts += (column ? " " : row ? "|" : "") + list()->getItemText(row, column).str();
        return texts;
    }
    /// What LIST draws: its dirty area, then each.
    template<class... Each>
    static Trace over(const Each&... each)
    {
        return {dirty(100, 100, 300, 221), each...};
    }
    template<class... Each>
    static Trace these(const Each&... each)
    {
        return {each...};
    }
    Trace texts() { return drawn("LIST").operations("textout"); }
};

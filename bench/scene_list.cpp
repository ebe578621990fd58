// S5, a long list: adding rows, and drawing a list that scrolls by one row each frame.

#include "bench/measure.h"
#include "bench/stage.h"

#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/scrollbar.h"

namespace {

constexpr int w = 1024;
constexpr int h = 768;
constexpr int columns = 5;
constexpr int addedRows = 100000;

AListBox* addList(AScreen& screen)
{
    auto* list = new AListBox("LIST", 0, 0, w, h);
    screen.addChildWindow(list);
    for (int column = 0; column < columns; ++column)
        list->addColumn(w / columns - 12, AWnd::TJ_LEFT);
    return list;
}

/// Formats "row %06d c%d" by hand, so that mostly the list is timed.
class CellText {
public:
    const char* of(int row, int column)
    {
        for (int place = 9; place > 3; --place, row /= 10)
            text[place] = static_cast<char>('0' + row % 10);
        text[12] = static_cast<char>('0' + column);
        return text;
    }

private:
    char text[14] = "row 000000 c0";
};

void fill(AListBox& list, int rows)
{
    CellText text;
    for (int row = 0; row < rows; ++row) {
        list.addItem();
        for (int column = 0; column < columns; ++column)
            list.setItemData(row, column, CString(text.of(row, column)));
    }
}

AScreen* addScreen(Stage& stage)
{
    stage.files.font();
    stage.files.picture("UIG/scroll1.bmp", 6 * 17, 26,
                        [](int x, int) { return 0x404040u + x / 17 * 0x101010; });
    const int font = stage.window().addNewFont("DejaVuSans.ttf", "", 12, 0);
    AScreen* screen = stage.addScreen("");
    screen->setFont(stage.window().getFont(font));
    return screen;
}

void add(benchmark::State& state)
{
    Stage stage(w, h);
    AScreen* screen = addScreen(stage);
    stage.show();
    std::size_t bytes = 0;
    for (auto _ : state) {
        state.PauseTiming();
        AListBox* list = addList(*screen);
        const std::size_t before = heapBytes();
        state.ResumeTiming();
        fill(*list, addedRows);
        state.PauseTiming();
        bytes = heapBytes() - before;
        delete list;
        state.ResumeTiming();
    }
    state.counters["bytes_a_cell"] = static_cast<double>(bytes) / (addedRows * columns);
}

/// Scrolls the list by one row each frame, back and forth around the middle. Deletes its scroll bar, because
/// a percentage is too coarse for one of 30,000 rows.
void frame(benchmark::State& state, int rows)
{
    Stage stage(w, h);
    AListBox* list = addList(*addScreen(stage));
    fill(*list, rows);
    delete list->getScrollBar();
    stage.show();
    stage.frame();
    const int middle = rows / 2 - list->getItemsPerPage() / 2;
    int moved = 0;
    timeInCopies(state, [&] {
        moved = (moved + 1) % 16;
        list->setFirstVisibleItem(middle + (moved < 8 ? moved : 16 - moved));
        stage.frame();
    });
}

BENCHMARK(add)->Name("S5/add")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(frame, short, 100)->Name("S5/frame/100")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(frame, long, 30000)->Name("S5/frame/30000")->Unit(benchmark::kMicrosecond);

} // namespace

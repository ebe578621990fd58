// S1, a dense screen. Parts are added in drawing order; for a new control, add an entry to parts.

#include "bench/measure.h"
#include "bench/stage.h"

#include "tgx/controls/button.h"
#include "tgx/controls/graph.h"
#include "tgx/controls/listbox/listbox.h"
#include "tgx/controls/progressbar.h"
#include "tgx/controls/scrollbar.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace {

constexpr int buttonWidth = 120;
constexpr int buttonHeight = 28;
constexpr int barWidth = 16;
constexpr int progressWidth = 200;
constexpr unsigned nothing = 0xFF00FF; // a transparent pixel

struct Canvas {
    AMainWin& window;
    AScreen& screen;
    int w;
    int h;
    std::vector<AButton*>& buttons; // buttons that can change their state
};

AWnd* add(const Canvas& on, int x, int y, int width, int height)
{
    return on.screen.addChildWindow(new AWnd(AWnd::WND_PLAIN, "static", x, y, width, height));
}

void addPanels(const Canvas& on)
{
    for (int i = 0; i < 12; ++i) {
        AWnd* panel = add(on, 10 + (i % 4) * ((on.w - 320) / 3), 10 + (i / 4) * ((on.h - 220) / 2), 300, 200);
        panel->setBmpFilename("panel.bmp", -1, -1);
        panel->setBmpInfo(64, 64, 1, 1);
        panel->setBmpStretch(1);
        panel->setBorder("border.bmp", 8, 8);
    }
}

void addButtons(const Canvas& on)
{
    for (int i = 0; i < 60; ++i) {
        auto* button = new AButton("static", 16 + (i % 6) * ((on.w - 152) / 5),
                                   20 + (i / 6) * ((on.h - 68) / 9), buttonWidth, buttonHeight);
        on.screen.addChildWindow(button);
        button->setBmpFilename("button.bmp", -1, -1);
        button->setBmpInfo(buttonWidth, buttonHeight, 1, 1);
        button->setButtonAnimFrames(0, 1, 1, 1, 0);
        char text[16];
        std::snprintf(text, sizeof text, "Button %05d", i * 613);
        button->setWindowText(CString(text));
        button->setTextJustify(AWnd::TJ_CENTRE);
        on.buttons.push_back(button);
    }
}

void addList(const Canvas& on)
{
    constexpr int columns = 20;
    auto* list = new AListBox("static", 32, on.h - 462, 960, 450);
    on.screen.addChildWindow(list);
    list->setRowHeight(18);
    list->setTitleShaded(1);
    for (int column = 0; column < columns; ++column) {
        list->addColumn(38, AWnd::TJ_LEFT);
        list->setTitle(column, CString("C" + std::to_string(column)));
    }
    for (int row = 0; row < 24; ++row) {
        list->addItem();
        for (int column = 0; column < columns; ++column) {
            char text[8];
            std::snprintf(text, sizeof text, "%c%c%04d", 'A' + row % 26, 'a' + column % 26,
                          (37 * row + 11 * column) % 10000);
            list->setItemData(row, column, CString(text));
        }
    }
}

/// Must be called after the screen has opened, which clears selections.
void selectRow(AScreen& screen)
{
    if (AWnd* list = screen.getWndOfType(AWnd::WND_LISTBOX, 0, 0))
        static_cast<AListBox*>(list)->setSelectedItem(8);
}

void addProgressBars(const Canvas& on)
{
    for (int i = 0; i < 4; ++i) {
        auto* bar = new AProgressBar("static", on.w / 2 - 100, 100 + 24 * i, progressWidth, 16);
        on.screen.addChildWindow(bar);
        bar->setBmpFilename("progress.bmp", -1, -1);
        bar->setBmpInfo(progressWidth, 16, 1, 1);
        bar->setPercentage(ZnFixed::fromInt(25 * (i + 1)));
    }
}

void addGraph(const Canvas& on)
{
    auto* graph = new AGraph("static", on.w - 360, 40, 320, 100);
    on.screen.addChildWindow(graph);
    for (int i = 0; i < 40; ++i)
        graph->addData(10 + 37 * i % 90, CString(), 0x60A0E0, 0);
}

void addLabels(const Canvas& on)
{
    for (int i = 0; i < 100; ++i) {
        AWnd* label = add(on, 16 + (i % 5) * ((on.w - 176) / 4), 4 + (i / 5) * ((on.h - 24) / 19), 160, 16);
        std::string text = "Cargo of ship no. " + std::to_string(10 + i % 90); // 20 characters
        label->setWindowText(CString(text));
    }
}

void addScrollBar(const Canvas& on)
{
    auto* bar = new AScrollBar("static", on.w - 20, 32, barWidth, on.h - 64);
    on.screen.addChildWindow(bar);
    bar->setBmpFilename("bar.bmp", -1, -1);
    bar->setBmpInfo(barWidth, barWidth, 1, 1);
    bar->setBmpStretch(0);
    bar->setPercentage(ZnFixed::fromRaw(ZnFixed::fromInt(100).raw / 3));
}

constexpr void (*parts[])(const Canvas&) = {addPanels,    addButtons,      addList, addLabels,
                                            addScrollBar, addProgressBars, addGraph};

/// Returns whether a pixel is outside the round corners of a button.
bool isCutOff(int x, int y)
{
    constexpr int radius = 6;
    // Twice the distance from the middle of the pixel to the centre of the corner's circle; 0 along straight
    // edges.
    const auto distance = [](int at, int length) {
        const int fromEdge = std::min(at, length - 1 - at);
        return std::max(2 * (radius - fromEdge) - 1, 0);
    };
    const int dx = distance(x, buttonWidth);
    const int dy = distance(y, buttonHeight);
    return dx * dx + dy * dy > 4 * radius * radius;
}

void makePictures(const Files& files, int w, int h)
{
    files.font();
    files.picture("backdrop.bmp", w, h, [](int x, int y) {
        return static_cast<unsigned>((x * 7 & 255) << 16 | (y * 5 & 255) << 8 | ((x ^ y) & 255));
    });
    files.picture("panel.bmp", 64, 64,
                  [](int x, int y) { return static_cast<unsigned>((x * 4) << 16 | (y * 4) << 8 | 0x40); });
    // Eight pieces with a gap of one pixel. Every fourth pixel of a piece is transparent.
    files.picture("border.bmp", 8 * 9 - 1, 8, [](int x, int y) {
        return (x % 9 + y) % 4 == 3 ? nothing : 0xC0A060u + static_cast<unsigned>(x & 15);
    });
    // Strips have a gap of one pixel after each frame. This one has three states of a button.
    files.picture("button.bmp", 3 * (buttonWidth + 1), buttonHeight, [](int x, int y) {
        const int frame = x / (buttonWidth + 1);
        const int inFrame = x % (buttonWidth + 1);
        return inFrame == buttonWidth || isCutOff(inFrame, y)
                   ? nothing
                   : 0x304050u + static_cast<unsigned>(frame * 0x202020 + y * 0x010101);
    });
    // Two panels: the done and the remaining part.
    files.picture("progress.bmp", 2 * progressWidth + 1, 16, [](int x, int y) {
        return (x <= progressWidth ? 0x40A060u : 0x203040u) + static_cast<unsigned>((y & 7) * 0x020202);
    });
    files.picture("bar.bmp", 6 * (barWidth + 1), barWidth, [](int x, int y) {
        return 0x506070u + static_cast<unsigned>(x / (barWidth + 1) * 0x080808 + (y & 7) * 0x020202);
    });
}

constexpr int growingFrames = 30; // number of frames until the graph has grown

class DenseScene {
public:
    DenseScene(int w, int h) : stage(w, h)
    {
        makePictures(stage.files, w, h);
        AMainWin& window = stage.window();
        const int font = window.addNewFont("DejaVuSans.ttf", "", 12, 0);
        AScreen* screen = stage.addScreen("backdrop.bmp");
        screen->setFont(window.getFont(font));
        for (auto part : parts)
            part({window, *screen, w, h, buttons});
        stage.show();
        selectRow(*screen);
        for (int i = 0; i < growingFrames; ++i)
            stage.frame();
    }
    /// Highlights the next button, or resets it if it is highlighted.
    void changeButton()
    {
        AButton* button = buttons[changed];
        changed = (changed + 1) % buttons.size();
        button->setButtonState(button->getButtonState() == AButton::BS_HOT ? AButton::BS_NORMAL
                                                                           : AButton::BS_HOT);
    }

    Stage stage;

private:
    std::vector<AButton*> buttons; // owned by the screen
    std::size_t changed = 0;
};

enum class Redraw { Full, Still, Hover };

void dense(benchmark::State& state, int w, int h, Redraw redraw)
{
    DenseScene scene(w, h);
    timeInCopies(state, [&] {
        if (redraw == Redraw::Full)
            scene.stage.window().redrawScreen();
        else if (redraw == Redraw::Hover)
            scene.changeButton();
        scene.stage.frame();
    });
}

BENCHMARK_CAPTURE(dense, a, 1024, 768, Redraw::Full)->Name("S1/1024/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, b, 1024, 768, Redraw::Still)->Name("S1/1024/still")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, c, 1024, 768, Redraw::Hover)->Name("S1/1024/hover")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, d, 1920, 1080, Redraw::Full)->Name("S1/1080/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, e, 1920, 1080, Redraw::Still)->Name("S1/1080/still")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, f, 1920, 1080, Redraw::Hover)->Name("S1/1080/hover")->Unit(benchmark::kMicrosecond);

} // namespace

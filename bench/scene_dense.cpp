// S1, a dense screen. Parts are added in drawing order; a new control is one more entry of the list.

#include "bench/measure.h"
#include "bench/stage.h"

#include <string>

namespace {

struct Canvas {
    AMainWin& window;
    AScreen& screen;
    int w;
    int h;
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

void addLabels(const Canvas& on)
{
    for (int i = 0; i < 100; ++i) {
        AWnd* label = add(on, 16 + (i % 5) * ((on.w - 176) / 4), 4 + (i / 5) * ((on.h - 24) / 19), 160, 16);
        std::string text = "Cargo of ship no. " + std::to_string(10 + i % 90); // 20 characters
        label->setWindowText(CString(text));
    }
}

constexpr void (*parts[])(const Canvas&) = {addPanels, addLabels};

void makePictures(const Files& files, int w, int h)
{
    files.font();
    files.picture("backdrop.bmp", w, h, [](int x, int y) {
        return static_cast<unsigned>((x * 7 & 255) << 16 | (y * 5 & 255) << 8 | ((x ^ y) & 255));
    });
    files.picture("panel.bmp", 64, 64,
                  [](int x, int y) { return static_cast<unsigned>((x * 4) << 16 | (y * 4) << 8 | 0x40); });
    // Eight pieces with a gap of a pixel; every fourth pixel of a piece shows nothing.
    files.picture("border.bmp", 8 * 9 - 1, 8, [](int x, int y) {
        return (x % 9 + y) % 4 == 3 ? 0xFF00FFu : 0xC0A060u + static_cast<unsigned>(x & 15);
    });
}

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
            part({window, *screen, w, h});
        stage.show();
    }

    Stage stage;
};

enum class Redraw { Full, Still };

void dense(benchmark::State& state, int w, int h, Redraw redraw)
{
    DenseScene scene(w, h);
    timeInCopies(state, [&] {
        if (redraw == Redraw::Full)
            scene.stage.window().redrawScreen();
        scene.stage.frame();
    });
}

BENCHMARK_CAPTURE(dense, a, 1024, 768, Redraw::Full)->Name("S1/1024/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, b, 1024, 768, Redraw::Still)->Name("S1/1024/still")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, c, 1920, 1080, Redraw::Full)->Name("S1/1080/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(dense, d, 1920, 1080, Redraw::Still)->Name("S1/1080/still")->Unit(benchmark::kMicrosecond);

} // namespace

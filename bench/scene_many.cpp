// S2, many windows on a plain screen.

#include "bench/many.h"
#include "bench/measure.h"
#include "bench/stage.h"

#include <vector>

namespace {

class ManyScene {
public:
    explicit ManyScene(const ManyWindows& many) : stage(manyWidth, manyHeight)
    {
        stage.files.picture("leaf.bmp", 20, 12, [](int x, int y) {
            return static_cast<unsigned>((x * 12) << 16 | (y * 20) << 8 | 0x80);
        });
        std::vector<AWnd*> path{stage.addScreen("")};
        walk(
            many,
            [&](Level level, int x, int y, int w, int h) {
                AWnd* wnd = path.back()->addChildWindow(new AWnd(AWnd::WND_PLAIN, "static", x, y, w, h));
                if (level == Level::Leaf) {
                    wnd->setBmpFilename("leaf.bmp", -1, -1);
                    wnd->setBmpInfo(w, h, 1, 1);
                }
                path.push_back(wnd);
            },
            [&](Level) { path.pop_back(); });
        stage.show();
    }

    Stage stage;
};

enum class Redraw { Full, Still };

void manyWindows(benchmark::State& state, const ManyWindows& many, Redraw redraw)
{
    ManyScene scene(many);
    timeInCopies(state, [&] {
        if (redraw == Redraw::Full)
            scene.stage.window().redrawScreen();
        scene.stage.frame();
    });
    state.counters["windows"] = many.count();
}

BENCHMARK_CAPTURE(manyWindows, a, many1k, Redraw::Full)->Name("S2/1k/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(manyWindows, b, many10k, Redraw::Full)->Name("S2/10k/full")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(manyWindows, c, many10k, Redraw::Still)
    ->Name("S2/10k/still")
    ->Unit(benchmark::kMicrosecond);

} // namespace

// S3, input: a tick in which only the pointer moves, over S2 with a button for each leaf, and down a chain of
// windows.

#include "bench/many_scene.h"
#include "bench/measure.h"

#include "platform/display/host.h"
#include "tgx/controls/button.h"

#include <stdexcept>

namespace {

/// Where the pointer is in each tick: 1024 places all over the screen before it comes round again.
class Pointer {
public:
    void moveOn()
    {
        x = (x + 7) % manyWidth;
        y = (y + 3) % manyHeight;
    }
    int x = 0;
    int y = 0;
};

/// A whole tick: the move is taken from the queue, the window under it found, told and lit.
void tickAt(AMainWin& window, const Pointer& pointer)
{
    displayhost::current().input().move(pointer.x, pointer.y);
    window.runTick();
}

/// A scene that does not react would be fast and worth nothing.
void expectHot(AMainWin& window, AWnd* wnd)
{
    const auto* button = dynamic_cast<const AButton*>(wnd);
    if (!button || window.getCurFocusWnd() != wnd || button->getButtonState() != AButton::BS_HOT)
        throw std::runtime_error("the button under the pointer is not lit");
}

void timeTicks(benchmark::State& state, AMainWin& window)
{
    Pointer pointer;
    for (auto _ : state) {
        tickAt(window, pointer);
        pointer.moveOn();
    }
}

void tick(benchmark::State& state, const ManyWindows& many)
{
    ManyScene scene(many, ManyScene::Leaves::Buttons);
    AMainWin& window = scene.stage.window();
    tickAt(window, Pointer{}); // the first leaf of all lies there, unless the next ones overlap it
    expectHot(window, scene.screen->getWndAtPos(0, 0, 1));
    timeTicks(state, window);
    state.counters["windows"] = many.count();
}

void hit(benchmark::State& state, const ManyWindows& many)
{
    ManyScene scene(many, ManyScene::Leaves::Buttons);
    Pointer pointer;
    for (auto _ : state) {
        benchmark::DoNotOptimize(scene.screen->getWndAtPos(pointer.x, pointer.y, 1));
        pointer.moveOn();
    }
    state.counters["windows"] = many.count();
}

/// Windows as large as the screen, one in the other, a button in the last: the pointer is in all of them, so
/// every tick goes down to the button.
void chain(benchmark::State& state)
{
    Stage stage(manyWidth, manyHeight);
    AWnd* last = stage.addScreen("");
    for (int i = 1; i < state.range(0); ++i)
        last = last->addChildWindow(new AWnd(AWnd::WND_PLAIN, "static", 0, 0, manyWidth, manyHeight));
    last = last->addChildWindow(new AButton("static", 0, 0, manyWidth, manyHeight));
    stage.show();
    tickAt(stage.window(), Pointer{});
    expectHot(stage.window(), last);
    const double start = nanosecondsNow();
    timeTicks(state, stage.window());
    const double windows = static_cast<double>(state.iterations()) * static_cast<double>(state.range(0));
    state.counters["ns/window"] = (nanosecondsNow() - start) / windows;
}

BENCHMARK_CAPTURE(tick, a, many1k)->Name("S3/1k/tick")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(tick, b, many10k)->Name("S3/10k/tick")->Unit(benchmark::kMicrosecond);
BENCHMARK_CAPTURE(hit, c, many10k)->Name("S3/10k/hit")->Unit(benchmark::kMicrosecond);
// A step down costs the same in a chain of any length.
BENCHMARK(chain)->Name("S3/chain")->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

} // namespace

// S3, input: ticks in which only the pointer moves, over S2 with a button for each leaf, and over a chain of
// nested windows.

#include "bench/many_scene.h"
#include "bench/measure.h"

#include "platform/display/host.h"
#include "tgx/controls/button.h"

#include <stdexcept>

namespace {

/// The pointer's position in each tick: 1024 positions all over the screen before they repeat.
class Pointer {
public:
    void advance()
    {
        x = (x + 7) % manyWidth;
        y = (y + 3) % manyHeight;
    }
    int x = 0;
    int y = 0;
};

/// Runs a whole tick: takes the move from the queue, and finds, notifies and highlights the window under the
/// pointer.
void tickAt(AMainWin& window, const Pointer& pointer)
{
    displayhost::current().input().move(pointer.x, pointer.y);
    window.runTick();
}

/// Fails if the scene does not react to the pointer, because that would be fast but meaningless.
void expectHot(AMainWin& window, AWnd* wnd)
{
    const auto* button = dynamic_cast<const AButton*>(wnd);
    if (!button || window.getCurFocusWnd() != wnd || button->getButtonState() != AButton::BS_HOT)
        throw std::runtime_error("the button under the pointer is not highlighted");
}

void timeTicks(benchmark::State& state, AMainWin& window)
{
    Pointer pointer;
    for (auto _ : state) {
        tickAt(window, pointer);
        pointer.advance();
    }
}

void tick(benchmark::State& state, const ManyWindows& many)
{
    ManyScene scene(many, ManyScene::Leaves::Buttons);
    AMainWin& window = scene.stage.window();
    tickAt(window, Pointer{}); // the first leaf is there, unless the next ones overlap it
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
        pointer.advance();
    }
    state.counters["windows"] = many.count();
}

/// Nested windows as large as the screen, with a button in the innermost one. The pointer is in all of them,
/// so every tick descends to the button.
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
// The cost for each window must not depend on the length of the chain.
BENCHMARK(chain)->Name("S3/chain")->Arg(50)->Arg(100)->Arg(200)->Unit(benchmark::kMicrosecond);

} // namespace

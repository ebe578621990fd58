// S2, many windows on a plain screen.

#include "bench/many_scene.h"
#include "bench/measure.h"

namespace {

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

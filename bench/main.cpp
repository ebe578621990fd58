// The scenes are described in docs/performance.md. Rows come in the order of the source list: measure.cpp
// first, so that the copy of a frame heads the table.

#include <benchmark/benchmark.h>

BENCHMARK_MAIN();

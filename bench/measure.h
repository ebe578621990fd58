#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

/// Nanoseconds that a copy of one 1024x768 frame (3 MiB, warm) takes on this core at this moment: the median
/// of some short spells.
double copyNanoseconds();

/// Runs body as the timed part of a row and gives the row its counter "copies": time / copy of a frame,
/// measured right before.
template<class Body>
void timeInCopies(benchmark::State& state, Body body);

/// Heap bytes in use, as the allocator counts them.
std::size_t heapBytes();

/// Processor time of this thread, nanoseconds: what else the machine does counts little.
double nanosecondsNow();

template<class Body>
void timeInCopies(benchmark::State& state, Body body)
{
    for (int warm = 0; warm < 3; ++warm)
        body();
    const double copy = copyNanoseconds();
    const double start = nanosecondsNow();
    for (auto _ : state)
        body();
    const double each = (nanosecondsNow() - start) / static_cast<double>(state.iterations());
    state.counters["copies"] = each / copy;
}

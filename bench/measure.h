#pragma once

#include <benchmark/benchmark.h>

#include <cstddef>

/// Measures how many nanoseconds a copy of one 1024x768 frame (3 MiB, in a warm cache) takes now: the median
/// of several short measurements.
double copyNanoseconds();

/// Runs body as the timed part of a row and sets the row's counter "copies": the time of body, divided by the
/// time of a frame copy measured just before.
template<class Body>
void timeInCopies(benchmark::State& state, Body body);

/// Returns the number of heap bytes in use, according to the allocator.
std::size_t heapBytes();

/// Returns the processor time of this thread in nanoseconds, which other load on the machine hardly affects.
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

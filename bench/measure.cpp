#include "bench/measure.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <ctime>
#include <malloc.h>
#include <vector>

namespace {

constexpr std::size_t frameBytes = 1024 * 768 * 4;

struct Frames {
    std::vector<unsigned char> from = std::vector<unsigned char>(frameBytes, 1);
    std::vector<unsigned char> to = std::vector<unsigned char>(frameBytes, 2);

    void copy()
    {
        std::memcpy(to.data(), from.data(), frameBytes);
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
};

Frames& frames()
{
    static Frames both;
    return both;
}

void copyOneFrame(benchmark::State& state)
{
    Frames& both = frames();
    both.copy();
    for (auto _ : state)
        both.copy();
    state.SetBytesProcessed(static_cast<std::int64_t>(frameBytes) * state.iterations());
}
BENCHMARK(copyOneFrame)->Name("memcpy/1024");

} // namespace

double nanosecondsNow()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) * 1e9 + static_cast<double>(now.tv_nsec);
}

double copyNanoseconds()
{
    constexpr int copiesInSpell = 20;
    Frames& both = frames();
    both.copy();
    std::array<double, 15> spells;
    for (double& spell : spells) {
        const double start = nanosecondsNow();
        for (int i = 0; i < copiesInSpell; ++i)
            both.copy();
        spell = (nanosecondsNow() - start) / copiesInSpell;
    }
    std::nth_element(spells.begin(), spells.begin() + spells.size() / 2, spells.end());
    return spells[spells.size() / 2];
}

std::size_t heapBytes()
{
    const struct mallinfo2 info = mallinfo2();
    return info.uordblks + info.hblkhd;
}

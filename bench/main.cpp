// The scenes are described in docs/performance.md. Rows come in the order of the source list: measure.cpp
// first, so that the copy of a frame heads the table.

#include "bench/table.h"

#include <algorithm>
#include <string_view>

int main(int argc, char** argv)
{
    // The library takes a writer for the file only together with the file's name.
    const bool hasFile = std::any_of(argv, argv + argc, [](std::string_view argument) {
        return argument.substr(0, 16) == "--benchmark_out=";
    });
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 1;
    Table table;
    benchmark::RunSpecifiedBenchmarks(nullptr, hasFile ? &table : nullptr);
    benchmark::Shutdown();
    return 0;
}

// docs/performance.md describes the scenes. Rows are in the order of the source list in CMakeLists.txt:
// measure.cpp is first, so that the table begins with the copy of a frame.

#include "bench/table.h"

#include <algorithm>
#include <string_view>

int main(int argc, char** argv)
{
    // The library accepts a file reporter only together with the file's name.
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

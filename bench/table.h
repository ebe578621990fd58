#pragma once

#include <benchmark/benchmark.h>

#include <vector>

/// Writes the rows as CSV, with a column for each counter of any row. The library's own reporter ends the
/// program if a row has a counter that the first row does not have.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Writes all rows, because the columns are known only at the end.
    void Finalize() override;

private:
    std::vector<Run> rows;
};

#pragma once

#include <benchmark/benchmark.h>

#include <vector>

/// Writes the rows as CSV, with a column for each counter that any row has. The library's own writer ends the
/// program at a row with a counter that the first row has not.
class Table : public benchmark::BenchmarkReporter {
public:
    bool ReportContext(const Context&) override { return true; }
    void ReportRuns(const std::vector<Run>& runs) override;
    /// Writes it all: only now the columns are known.
    void Finalize() override;

private:
    std::vector<Run> rows;
};

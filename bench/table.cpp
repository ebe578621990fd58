#include "bench/table.h"

#include <ostream>
#include <set>
#include <string>

void Table::ReportRuns(const std::vector<Run>& runs)
{
    rows.insert(rows.end(), runs.begin(), runs.end());
}

void Table::Finalize()
{
    std::set<std::string> counters;
    for (const Run& row : rows)
        for (const auto& [name, counter] : row.counters)
            counters.insert(name);

    std::ostream& out = GetOutputStream();
    out << "name,iterations,real_time,cpu_time,time_unit";
    for (const std::string& name : counters)
        out << ',' << name;
    out << '\n';
    for (const Run& row : rows) {
        out << row.benchmark_name() << ',' << row.iterations << ',' << row.GetAdjustedRealTime() << ','
            << row.GetAdjustedCPUTime() << ',' << benchmark::GetTimeUnitString(row.time_unit);
        for (const std::string& name : counters) {
            out << ',';
            const auto found = row.counters.find(name);
            if (found != row.counters.end())
                out << found->second.value;
        }
        out << '\n';
    }
}

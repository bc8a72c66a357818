#include "benchmarks/RatioTable.h"

#include <cstdio>

namespace
{
struct PlannedRow {
    std::string name;
    std::string yardstick;
    double limit;
};

std::vector<PlannedRow> &PlannedRows()
{
    static std::vector<PlannedRow> rows;
    return rows;
}
} // namespace

void RatioTable::Row(const std::string &name, const std::string &yardstick, double limit)
{
    PlannedRows().push_back({name, yardstick, limit});
}

void RatioTable::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs)
        if (run.run_type == Run::RT_Aggregate && run.aggregate_name == "median")
            mMedians[run.run_name.function_name]
                = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit) * 1e6;
}

void RatioTable::Print() const
{
    std::printf("\n%-34s %12s %12s %7s %6s  %s\n", "row", "keelmark us", "yardstick us", "ratio", "limit", "yardstick");
    for (const PlannedRow &row : PlannedRows()) {
        const auto ours = mMedians.find(row.name + "/keelmark");
        const auto yardstick = mMedians.find(row.name + "/yardstick");
        if (ours == mMedians.end() || yardstick == mMedians.end())
            continue;
        const double ratio = ours->second / yardstick->second;
        std::printf("%-34s %12.1f %12.1f %7.2f %6.2f  %s%s\n", row.name.c_str(), ours->second, yardstick->second, ratio,
                    row.limit, row.yardstick.c_str(), ratio > row.limit ? "  OVER ITS LIMIT" : "");
    }
}

#include "benchmarks/RatioTable.h"

#include <cstdio>

namespace
{
struct PlannedRow {
    std::string name;
    std::string yardstick;
    double limit;
    double fixedMicroseconds = 0.0; ///< 0 where the yardstick is a benchmark of its own
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

void RatioTable::Row(const std::string &name, double microseconds, const std::string &yardstick, double limit)
{
    PlannedRows().push_back({name, yardstick, limit, microseconds});
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
    const auto median = [this](const std::string &name) {
        const auto found = mMedians.find(name);
        return found == mMedians.end() ? 0.0 : found->second;
    };
    for (const PlannedRow &row : PlannedRows()) {
        const double ours = median(row.name + "/keelmark");
        const double yardstick = row.fixedMicroseconds > 0 ? row.fixedMicroseconds : median(row.name + "/yardstick");
        if (ours <= 0 || yardstick <= 0)
            continue;
        const double ratio = ours / yardstick;
        std::printf("%-34s %12.1f %12.1f %7.2f %6.2f  %s%s\n", row.name.c_str(), ours, yardstick, ratio, row.limit,
                    row.yardstick.c_str(), ratio > row.limit ? "  OVER ITS LIMIT" : "");
    }
}

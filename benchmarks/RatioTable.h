#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Collects the times of one run and prints each row of this program beside its yardstick.
///
/// A row is a pair of benchmarks "name/keelmark" and "name/yardstick"; the medians of the repetitions are compared.
class RatioTable : public benchmark::ConsoleReporter
{
public:
    /// The most that the row's ratio is meant to be.
    static void Row(const std::string &name, const std::string &yardstick, double limit);
    /// A row whose yardstick is a fixed time and no benchmark.
    static void Row(const std::string &name, double microseconds, const std::string &yardstick, double limit);

    void ReportRuns(const std::vector<Run> &runs) override;
    /// The table; what lies over its limit is marked.
    void Print() const;

private:
    std::map<std::string, double> mMedians; ///< microseconds by benchmark name
};

#include "benchmarks/RatioTable.h"

#include <string>
#include <vector>

int main(int argc, char **argv)
{
    // Repetitions of both sides are mixed, so that a slow moment of the machine meets both alike.
    std::vector<std::string> arguments {argv[0], "--benchmark_repetitions=7", "--benchmark_min_time=0.1",
                                        "--benchmark_enable_random_interleaving=true",
                                        "--benchmark_report_aggregates_only=true"};
    arguments.insert(arguments.end(), argv + 1, argv + argc);
    std::vector<char *> pointers;
    for (std::string &argument : arguments)
        pointers.push_back(argument.data());
    int count = static_cast<int>(pointers.size());
    benchmark::Initialize(&count, pointers.data());
    if (benchmark::ReportUnrecognizedArguments(count, pointers.data()))
        return 1;
    RatioTable table;
    benchmark::RunSpecifiedBenchmarks(&table);
    table.Print();
    return 0;
}

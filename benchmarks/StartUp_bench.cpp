#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "frame/store/StoreMaker.h"

#include <algorithm>
#include <array>
#include <cstdio>

namespace
{
/// A folder as a user has it: the program and a store with the sample ships.
const std::filesystem::path &ProgramCopy()
{
    static const std::filesystem::path folder = [] {
        std::string name = (std::filesystem::temp_directory_path() / "keelmark-start-XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr)
            BenchFailure("no temporary folder");
        const std::filesystem::path made(name);
        for (const char *program : {KEELMARK_STARTED, BARE_STARTED})
            std::filesystem::copy_file(program, made / std::filesystem::path(program).filename());
        if (!MakeStore(made / "DS.dat", StoreContent::Sample))
            BenchFailure("the store is there already");
        std::atexit([] {
            std::error_code ignored;
            std::filesystem::remove_all(ProgramCopy(), ignored);
        });
        return made;
    }();
    return folder;
}

/// Runs a program until its first window is painted; the memory that it has held by then, in KiB.
long RunToFirstPaint(const std::filesystem::path &program)
{
    std::FILE *told = popen(("exec '" + program.string() + "'").c_str(), "r");
    long peak = 0;
    const bool isTold = told != nullptr && std::fscanf(told, "%ld", &peak) == 1;
    if (told == nullptr || pclose(told) != 0 || !isTold || peak == 0)
        BenchFailure(program.string() + " did not paint a window");
    return peak;
}

void Start(benchmark::State &state, const char *program)
{
    const std::filesystem::path file = ProgramCopy() / std::filesystem::path(program).filename();
    for (auto unused : state)
        benchmark::DoNotOptimize(RunToFirstPaint(file));
}

/// Memory is counted once, for time does not change it: the median of some starts.
void Memory(benchmark::State &state, const char *program)
{
    const std::filesystem::path file = ProgramCopy() / std::filesystem::path(program).filename();
    for (auto unused : state) {
        std::array<long, 5> sizes {};
        std::generate(sizes.begin(), sizes.end(), [&file] { return RunToFirstPaint(file); });
        std::sort(sizes.begin(), sizes.end());
        state.SetIterationTime(static_cast<double>(sizes[sizes.size() / 2]) * 1e-6);
    }
}

const bool kRegistered = [] {
    for (const auto &[side, program] :
         {std::pair("/keelmark", KEELMARK_STARTED), std::pair("/yardstick", BARE_STARTED)}) {
        benchmark::RegisterBenchmark((std::string("start to first window") + side).c_str(), Start, program)
            ->Unit(benchmark::kMillisecond);
        benchmark::RegisterBenchmark((std::string("memory at first window, KiB") + side).c_str(), Memory, program)
            ->UseManualTime()
            ->Iterations(1);
    }
    RatioTable::Row("start to first window", "bare Qt program with an MDI area", 1.2);
    RatioTable::Row("memory at first window, KiB", "the same", 1.3);
    return true;
}();
} // namespace

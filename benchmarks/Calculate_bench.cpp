#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/ReturnCode.h"
#include "core/clsDraft.h"

#include <sqlite3.h>

namespace
{
/// A draft in the middle of the table, which reaches from 2 m to 14 m whatever its number of rows.
void TakeReadings(clsDraft &draft)
{
    draft.SpecificGravity("1.0150");
    draft.FwdPort("7.52");
    draft.FwdStbd("7.48");
    draft.MidPort("8.03");
    draft.MidStbd("7.97");
    draft.AftPort("8.61");
    draft.AftStbd("8.59");
    draft.ListCorrected(false);
}

void CalculateInKeelmark(benchmark::State &state, int rows)
{
    const BenchStore store;
    store.AddShip(1, rows);
    clsDraft draft;
    draft.ShipID(1);
    TakeReadings(draft);
    for (auto unused : state) {
        if (draft.Calculate(0) != ReturnCode::Calculated || draft.NetDisplacement().IsAbsent())
            BenchFailure("the draft could not be calculated");
        benchmark::DoNotOptimize(draft.NetDisplacement());
    }
}

/// The same rows, every column, through the C interface.
void FetchPlainly(benchmark::State &state, int rows)
{
    const BenchStore store;
    store.AddShip(1, rows);
    for (auto unused : state) {
        sqlite3_stmt *statement = nullptr;
        sqlite3_prepare_v2(store.Handle(), "SELECT * FROM HydrostaticDataTable WHERE ShipID = 1 ORDER BY TMD", -1,
                           &statement, nullptr);
        double sum = 0.0;
        int count = 0;
        const int columns = sqlite3_column_count(statement);
        while (sqlite3_step(statement) == SQLITE_ROW) {
            for (int column = 0; column < columns; ++column)
                sum += sqlite3_column_double(statement, column);
            ++count;
        }
        sqlite3_finalize(statement);
        if (count != rows)
            BenchFailure("the table is not whole");
        benchmark::DoNotOptimize(sum);
    }
}

const bool kRegistered = [] {
    for (const int rows : {30, 200, 1000, 5000}) {
        const std::string name = "Calculate, " + std::to_string(rows) + " rows";
        benchmark::RegisterBenchmark((name + "/keelmark").c_str(), CalculateInKeelmark, rows);
        benchmark::RegisterBenchmark((name + "/yardstick").c_str(), FetchPlainly, rows);
        RatioTable::Row(name, "fetch of the same rows, plain SQLite", 2.0);
    }
    return true;
}();
} // namespace

#include "benchmarks/BenchClock.h"
#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/MsgBox.h"
#include "frame/mdlMain.h"
#include "masters/frmPortMaster.h"

#include <QCoreApplication>

namespace
{
/// One port with 100 ships and 10,000 surveys.
void FillPort(const BenchStore &store)
{
    store.AddShip(1, 30);
    const std::string numbers = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ";
    store.Plain("BEGIN");
    store.Plain(numbers + "99) INSERT INTO Ship (ShipName, LBP, PortOfRegistry) SELECT 'Bench ' || i, 180, 1 FROM n");
    store.Plain(numbers
                + "10000) INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, Cargo, Constant, IsLoading)"
                  " SELECT i, 1 + i % 100, 'V' || i, 1, 'Coal', 250, True FROM n");
    store.Plain("COMMIT");
}

void DeleteInKeelmark(benchmark::State &state)
{
    const ScopedPort factory(ChildFactoryPort(ChildWindow::Port), [] { return new frmPortMaster; });
    const ScopedPort boxes(MsgBoxPort(), [](const Message &message) {
        return message.buttons == MsgButtons::YesNo ? MsgAnswer::Yes : MsgAnswer::Ok;
    });
    for (auto unused : state) {
        const BenchStore store;
        FillPort(store);
        ShowMainWindow();
        OpenChild(ChildWindow::Port);
        const auto start = Clock::now();
        Child(ChildWindow::Port).RDelete();
        state.SetIterationTime(SecondsSince(start));
        Child(ChildWindow::Port).Unload();
        QCoreApplication::processEvents();
    }
}

void DeletePlainly(benchmark::State &state)
{
    for (auto unused : state) {
        const BenchStore store;
        FillPort(store);
        const auto start = Clock::now();
        store.Plain("DELETE FROM Port WHERE PortID = 1");
        state.SetIterationTime(SecondsSince(start));
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("delete a port/keelmark", DeleteInKeelmark)->UseManualTime();
    benchmark::RegisterBenchmark("delete a port/yardstick", DeletePlainly)->UseManualTime();
    RatioTable::Row("delete a port", "the same DELETE with its cascades, plain SQLite", 1.3);
    return true;
}();
} // namespace

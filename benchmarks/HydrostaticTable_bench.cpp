#include "benchmarks/BenchClock.h"
#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/MsgBox.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "frame/store/Connection.h"
#include "masters/frmHDT.h"

#include <sqlite3.h>

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

#include <algorithm>
#include <vector>

namespace
{
constexpr int kRows = 2000;
constexpr int kColumns = 8;

/// The editor in the main window, on the ship's table.
class OpenEditor
{
public:
    OpenEditor()
    {
        ShowMainWindow();
        PaintAll();
        const auto start = Clock::now();
        OpenChild(ChildWindow::HydrostaticData);
        mOpened = SecondsSince(start);
        PaintAll();
    }
    ~OpenEditor()
    {
        if (Form *form = LoadedChild(ChildWindow::HydrostaticData))
            form->Unload();
        PaintAll();
    }

    [[nodiscard]] double Opened() const { return mOpened; }
    [[nodiscard]] static frmHDT &Window() { return static_cast<frmHDT &>(Child(ChildWindow::HydrostaticData)); }
    static void TypeRow(int number)
    {
        auto &box = *Window().findChild<QLineEdit *>(QStringLiteral("txtGridTextbox"));
        for (int column = 0; column < kColumns; ++column) {
            box.setText(QString::number(column == 0 ? 1 + number * 0.001 : column + 1));
            QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
            QCoreApplication::sendEvent(&box, &enter);
        }
    }

private:
    double mOpened = 0.0;
    ScopedPort<ChildFactory> mFactory {ChildFactoryPort(ChildWindow::HydrostaticData), [] { return new frmHDT; }};
};

/// Rows read as texts, which is what the editor keeps of them.
std::vector<std::string> ReadPlainly(const BenchStore &store)
{
    sqlite3_stmt *statement = nullptr;
    sqlite3_prepare_v2(store.Handle(), "SELECT * FROM HydrostaticDataTable ORDER BY TMD", -1, &statement, nullptr);
    std::vector<std::string> texts;
    while (sqlite3_step(statement) == SQLITE_ROW)
        for (int column = 1; column <= kColumns; ++column)
            texts.emplace_back(reinterpret_cast<const char *>(sqlite3_column_text(statement, column)));
    sqlite3_finalize(statement);
    return texts;
}

/// What a table of that length adds to the opening of the window.
void LoadTable(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, 0);
    double bare = 1.0;
    for (int attempt = 0; attempt < 10; ++attempt)
        bare = std::min(bare, OpenEditor().Opened());
    store.Plain("DELETE FROM Ship");
    store.AddShip(1, kRows);
    for (auto unused : state)
        state.SetIterationTime(OpenEditor().Opened() - bare);
}

void LoadPlainly(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, kRows);
    for (auto unused : state) {
        const auto start = Clock::now();
        benchmark::DoNotOptimize(ReadPlainly(store));
        state.SetIterationTime(SecondsSince(start));
    }
}

/// A row is typed before each save; the box that tells of it is no part of the time.
void SaveTable(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, kRows);
    const OpenEditor editor;
    int number = 0;
    for (auto unused : state) {
        OpenEditor::TypeRow(++number);
        const auto start = Clock::now();
        double seconds = 0.0;
        const ScopedPort box(MsgBoxPort(), [&](const Message &message) {
            if (message.icon != MsgIcon::Information)
                BenchFailure(message.text);
            seconds = SecondsSince(start);
            return MsgAnswer::Ok;
        });
        OpenEditor::Window().RSave();
        state.SetIterationTime(seconds);
    }
}

void SavePlainly(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, kRows);
    const std::vector<std::string> cells = ReadPlainly(store);
    for (auto unused : state) {
        const auto start = Clock::now();
        store.Plain("BEGIN IMMEDIATE");
        store.Plain("DELETE  FROM HydrostaticDataTable WHERE ShipID = 1");
        for (std::size_t cell = 0; cell < cells.size();) {
            std::string row
                = "INSERT INTO HydrostaticDataTable (ShipID, TMD, Displacement, TPC, MCTC, LCB, LCF, KM, KB)"
                  " VALUES(1";
            for (int column = 0; column < kColumns; ++column)
                row.append(", ").append(cells[cell++]);
            store.Plain(row.append(")"));
        }
        store.Plain("COMMIT");
        benchmark::DoNotOptimize(ReadPlainly(store));
        state.SetIterationTime(SecondsSince(start));
    }
}

/// The last Enter of a row: sorted, shown again, painted.
void CommitRow(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, kRows);
    const OpenEditor editor;
    int number = 0;
    for (auto unused : state) {
        const auto start = Clock::now();
        OpenEditor::TypeRow(++number);
        PaintAll();
        state.SetIterationTime(SecondsSince(start));
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("load 2,000 hydrostatic rows/keelmark", LoadTable)->UseManualTime();
    benchmark::RegisterBenchmark("load 2,000 hydrostatic rows/yardstick", LoadPlainly)->UseManualTime();
    RatioTable::Row("load 2,000 hydrostatic rows", "the same statement, plain SQLite", 1.5);
    benchmark::RegisterBenchmark("save 2,000 hydrostatic rows/keelmark", SaveTable)->UseManualTime();
    benchmark::RegisterBenchmark("save 2,000 hydrostatic rows/yardstick", SavePlainly)->UseManualTime();
    RatioTable::Row("save 2,000 hydrostatic rows", "the same statements, plain SQLite", 1.5);
    benchmark::RegisterBenchmark("hydrostatic row into 2,000/keelmark", CommitRow)->Iterations(50)->UseManualTime();
    RatioTable::Row("hydrostatic row into 2,000", kFrameMicroseconds, "one frame of 16 ms", 1.0);
    return true;
}();
} // namespace

#include "benchmarks/BenchClock.h"
#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/MsgBox.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "frame/platform/Settings.h"
#include "survey_loading/frmDraftSurvey.h"

#include <QApplication>
#include <QLineEdit>
#include <QPushButton>

namespace
{
constexpr int kRows = 200;

/// The Loading window in the main window, on a store with one survey of ship 1 that its setting names.
class OpenWindow
{
public:
    OpenWindow()
    {
        ShowMainWindow();
        OpenChild(ChildWindow::Loading);
        PaintAll();
    }
    ~OpenWindow()
    {
        if (Form *form = LoadedChild(ChildWindow::Loading))
            form->Unload();
        PaintAll();
    }

    [[nodiscard]] static Form &Window() { return Child(ChildWindow::Loading); }
    template<class Control> [[nodiscard]] static Control &Find(const char *name)
    {
        auto *control = Window().findChild<Control *>(QString::fromLatin1(name));
        if (control == nullptr)
            BenchFailure(name);
        return *control;
    }

private:
    ScopedPort<ChildFactory> mFactory {ChildFactoryPort(ChildWindow::Loading), [] { return new frmDraftSurvey; }};
};

void AddDraft(const BenchStore &store, int draftID, int recordID)
{
    store.Plain("INSERT INTO DraftDetails (DraftID,RecordID, SpecificGravity,DraftType, FwdPortDraft, FwdStbdDraft,"
                "MidshipPortDraft, MidshipStbdDraft, AftPortDraft, AftStbdDraft, ListCorrected, NetDisplacement,"
                "Comments,[DateTime]) VALUES("
                + std::to_string(draftID) + ", " + std::to_string(recordID)
                + ", 1.015, 0,7.52, 7.48, 8.03, 7.97, 8.61, 8.59, False, 30000.5, '', 202403151430)");
}

void StoreWithSurvey(const BenchStore &store)
{
    store.AddShip(1, kRows);
    store.AddSurvey(1, 1);
    AddDraft(store, 1, 1);
    SaveSetting("Draft Survey Loading", "RecordID", "1");
}

void PressCalculate(benchmark::State &state)
{
    const BenchStore store;
    StoreWithSurvey(store);
    const OpenWindow window;
    auto &button = OpenWindow::Find<QPushButton>("cmdCalculate");
    auto &mark = OpenWindow::Find<QLineEdit>("txtFwdPort");
    bool odd = false;
    for (auto unused : state) {
        odd = !odd;
        mark.setText(odd ? QStringLiteral("7.53") : QStringLiteral("7.54"));
        PaintAll();
        const auto start = Clock::now();
        button.click();
        PaintAll();
        state.SetIterationTime(SecondsSince(start));
    }
}

/// The whole of a save as the user feels it: press, write, and the message that it is done.
void PressSave(benchmark::State &state)
{
    const BenchStore store;
    StoreWithSurvey(store);
    const OpenWindow window;
    auto &mark = OpenWindow::Find<QLineEdit>("txtFwdPort");
    auto &calculate = OpenWindow::Find<QPushButton>("cmdCalculate");
    bool odd = false;
    for (auto unused : state) {
        odd = !odd;
        mark.setText(odd ? QStringLiteral("7.53") : QStringLiteral("7.54"));
        calculate.click();
        PaintAll();
        const auto start = Clock::now();
        double seconds = 0.0;
        const ScopedPort box(MsgBoxPort(), [&](const Message &message) {
            if (message.text != "Record/s updated successfully.")
                BenchFailure(message.text);
            seconds = SecondsSince(start);
            return MsgAnswer::Ok;
        });
        OpenWindow::Window().RSave();
        state.SetIterationTime(seconds);
    }
}

/// What that save writes: one draft without quantities.
void SavePlainly(benchmark::State &state)
{
    const BenchStore store;
    StoreWithSurvey(store);
    bool odd = false;
    for (auto unused : state) {
        odd = !odd;
        const auto start = Clock::now();
        store.Plain("BEGIN IMMEDIATE");
        store.Plain(std::string("UPDATE DraftDetails set SpecificGravity=1.015,DraftType=0, FwdPortDraft=")
                    + (odd ? "7.53" : "7.54")
                    + ", FwdStbdDraft=7.48, MidshipPortDraft=8.03, MidshipStbdDraft=7.97, AftPortDraft=8.61,"
                      " AftStbdDraft=8.59, ListCorrected = False, NetDisplacement = 30000.5, Comments='',"
                      " [DateTime] =202403151430 WHERE DraftID = 1");
        store.Plain("DELETE FROM DeductionTrans WHERE DraftID = 1");
        store.Plain("COMMIT");
        state.SetIterationTime(SecondsSince(start));
    }
}

/// 1,000 ships and so many surveys under 500 voyage names at most, three drafts each with quantities.
void FillStore(const BenchStore &store, int surveys)
{
    store.AddShip(1, kRows);
    const std::string numbers = "WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < ";
    store.Plain("BEGIN");
    store.Plain(numbers + "999) INSERT INTO Ship (ShipName, LBP, PortOfRegistry) SELECT 'Bench ' || i, 180, 1 FROM n");
    store.Plain(numbers + std::to_string(surveys)
                + ") INSERT INTO DraftParticulars (RecordID, ShipID, VoyageID, PortID, Cargo, Constant, IsLoading)"
                  " SELECT i, 1 + i / 500, 'V' || (i % 500), 1, 'Coal', 250, True FROM n");
    store.Plain(numbers + std::to_string(3 * surveys)
                + ") INSERT INTO DraftDetails SELECT i, 1 + (i - 1) / 3, 1.015, (i - 1) % 3, 7.52, 7.48, 8.03, 7.97,"
                  " 8.61, 8.59, False, 30000.5, '', 202403151430 FROM n");
    store.Plain("INSERT INTO DeductionTrans SELECT D.DraftID, M.ItemID, 10 + M.ItemID FROM DraftDetails AS D,"
                " (SELECT ItemID FROM DeductionMaster LIMIT 7) AS M");
    store.Plain("COMMIT");
    SaveSetting("Draft Survey Loading", "RecordID", "1");
}

void OpenOn(benchmark::State &state, int surveys)
{
    const BenchStore store;
    FillStore(store, surveys);
    for (auto unused : state) {
        const auto start = Clock::now();
        const OpenWindow window;
        state.SetIterationTime(SecondsSince(start));
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("Calculate, press to paint/keelmark", PressCalculate)->UseManualTime();
    RatioTable::Row("Calculate, press to paint", kFrameMicroseconds, "one frame of 16 ms", 1.0);
    benchmark::RegisterBenchmark("Save, press to message/keelmark", PressSave)->UseManualTime();
    benchmark::RegisterBenchmark("Save, press to message/yardstick", SavePlainly)->UseManualTime();
    RatioTable::Row("Save, press to message", "the same statements, plain SQLite", 1.5);
    benchmark::RegisterBenchmark("open on 20,000 surveys/keelmark", OpenOn, 20000)->UseManualTime();
    benchmark::RegisterBenchmark("open on 20,000 surveys/yardstick", OpenOn, 20)->UseManualTime();
    RatioTable::Row("open on 20,000 surveys", "the same ships and 20 surveys", 1.5);
    return true;
}();
} // namespace

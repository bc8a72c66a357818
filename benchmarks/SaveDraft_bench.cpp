#include "benchmarks/BenchStore.h"
#include "benchmarks/RatioTable.h"
#include "core/ReturnCode.h"
#include "core/clsDraft.h"

#include <array>

namespace
{
constexpr std::array<int, 8> kItems {2, 3, 24, 25, 26, 27, 28, 29};

/// One stored draft with eight quantities is written again; the odd saves differ from the even ones.
void SaveInKeelmark(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, 200);
    store.AddSurvey(1, 1);
    clsDraft draft;
    draft.ShipID(1);
    draft.SpecificGravity("1.0150");
    draft.FwdPort("7.52");
    draft.FwdStbd("7.48");
    draft.MidPort("8.03");
    draft.MidStbd("7.97");
    draft.AftPort("8.61");
    draft.AftStbd("8.59");
    for (const int item : kItems)
        draft.Deduction(item, Decimal(100 + item));
    if (draft.Calculate(0) != ReturnCode::Calculated || draft.SaveDraft(1) != ReturnCode::Success)
        BenchFailure("the draft could not be saved");
    draft.DraftMode(1);
    bool odd = false;
    for (auto unused : state) {
        odd = !odd;
        draft.FwdPort(odd ? "7.53" : "7.54");
        gConnection->BeginTrans();
        if (draft.SaveDraft(1) != ReturnCode::Success)
            BenchFailure("the draft could not be saved");
        gConnection->CommitTrans();
    }
}

void SavePlainly(benchmark::State &state)
{
    const BenchStore store;
    store.AddShip(1, 200);
    store.AddSurvey(1, 1);
    store.Plain("INSERT INTO DraftDetails (DraftID,RecordID, SpecificGravity,DraftType, FwdPortDraft, FwdStbdDraft,"
                "MidshipPortDraft, MidshipStbdDraft, AftPortDraft, AftStbdDraft, ListCorrected, NetDisplacement,"
                "Comments,[DateTime]) VALUES(1, 1, 1.015, 0,7.52, 7.48, 8.03, 7.97, 8.61, 8.59, False, 30000.5, '',"
                " 202403151430)");
    bool odd = false;
    for (auto unused : state) {
        odd = !odd;
        store.Plain("BEGIN IMMEDIATE");
        store.Plain(std::string("UPDATE DraftDetails set SpecificGravity=1.015,DraftType=0, FwdPortDraft=")
                    + (odd ? "7.53" : "7.54")
                    + ", FwdStbdDraft=7.48, MidshipPortDraft=8.03, MidshipStbdDraft=7.97, AftPortDraft=8.61,"
                      " AftStbdDraft=8.59, ListCorrected = False, NetDisplacement = 30000.5, Comments='',"
                      " [DateTime] =202403151430 WHERE DraftID = 1");
        store.Plain("DELETE FROM DeductionTrans WHERE DraftID = 1");
        for (const int item : kItems)
            store.Plain("INSERT INTO DeductionTrans (DraftID, ItemID, Quantity) VALUES(1, " + std::to_string(item)
                        + ", " + std::to_string(100 + item) + ")");
        store.Plain("COMMIT");
    }
}

const bool kRegistered = [] {
    benchmark::RegisterBenchmark("SaveDraft/keelmark", SaveInKeelmark);
    benchmark::RegisterBenchmark("SaveDraft/yardstick", SavePlainly);
    RatioTable::Row("SaveDraft", "the same statements, plain SQLite", 1.3);
    return true;
}();
} // namespace

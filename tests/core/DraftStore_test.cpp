#include "core/ReturnCode.h"
#include "tests/core/SurveyTest.h"

#include <algorithm>

namespace
{
class DraftStore : public SurveyTest
{
protected:
    /// The worked draft at a moment "dd-MM-yyyy HH:mm", saved into the survey.
    clsDraft Saved(std::int16_t type, const std::string &moment)
    {
        clsDraft draft = WorkedDraft(mShipID, type);
        draft.DSDate(moment.substr(0, 10));
        draft.DSTime(moment.substr(11));
        EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::Success);
        return draft;
    }
    clsDraft Loaded(std::int16_t type, const std::string &date = "", const std::string &time = "")
    {
        clsDraft draft = NewDraftOf(mShipID, type);
        EXPECT_EQ(draft.GetDraft(mRecordID, date, time), ReturnCode::Success);
        return draft;
    }
    static int Count(const std::string &table) { return Ask("SELECT COUNT(*) FROM " + table).ToInteger(); }
    /// "DraftMode ToSave HasRecord"
    static std::string State(const clsDraft &draft)
    {
        return draft.DraftMode().Text() + " " + Value(draft.ToSave()).Text() + " " + Value(draft.HasRecord()).Text();
    }

    std::int32_t mShipID = AddShip(kWorkedShip);
    std::int32_t mRecordID = AddSurvey(mShipID);
};

/// The store's own words where a table is missing.
std::string WordsFor(const std::string &table)
{
    try {
        Recordset().Open("SELECT * FROM " + table, CursorType::Dynamic, LockType::BatchOptimistic);
    } catch (const RuntimeError &error) {
        return error.Description();
    }
    return "no failure";
}
} // namespace

TEST_F(DraftStore, InsertsUpdatesAndLoadsWhatWasTyped)
{
    clsDraft draft = NewDraftOf(mShipID);
    EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::Success) << "nothing to save";
    EXPECT_EQ(Count("DraftDetails"), 0);

    draft = Saved(DraftTypeCode::Initial, "15-03-2024 14:30");
    EXPECT_EQ(State(draft), "0 True False") << "saving changes none of these";
    const std::string row = "SELECT json_array(DraftID, RecordID, SpecificGravity, DraftType, FwdPortDraft, "
                            "FwdStbdDraft, MidshipPortDraft, MidshipStbdDraft, AftPortDraft, AftStbdDraft, "
                            "ListCorrected, NetDisplacement, Comments, DateTime) FROM DraftDetails";
    EXPECT_EQ(Ask(row).Text(), "[1,1,1.015,0,7.52,7.48,8.03,7.97,8.61,8.59,0,22441.68513,\"\",202403151430]");

    clsDraft loaded = Loaded(DraftTypeCode::Initial);
    EXPECT_EQ(State(loaded), "1 False True");
    EXPECT_EQ(loaded.DSDate() + " " + loaded.DSTime(), "15-03-2024 14:30");
    loaded.Comments("Swell 0.5 m");
    loaded.AftStbd("8.6");
    loaded.ListCorrected(true);
    loaded.DSTime("15:00");
    ASSERT_EQ(loaded.Calculate(0), ReturnCode::Calculated);
    ASSERT_EQ(loaded.SaveDraft(99), ReturnCode::Success) << "an update leaves the RecordID alone";
    const std::string net = loaded.NetDisplacement().Text();
    EXPECT_EQ(Ask(row).Text(), "[1,1,1.015,0,7.52,7.48,8.03,7.97,8.61,8.6,1," + net + ",\"Swell 0.5 m\",202403151500]");
    EXPECT_EQ(Count("DeductionTrans"), 2);

    Run("UPDATE DraftDetails SET Comments = NULL, NetDisplacement = 1");
    ASSERT_EQ(loaded.GetDraft(mRecordID, "15-03-2024", "15:00"), ReturnCode::Success);
    EXPECT_EQ(State(loaded), "1 True True");
    EXPECT_EQ(loaded.Comments(), "");
    EXPECT_TRUE(loaded.ListCorrected());
    EXPECT_EQ(loaded.NetDisplacement().Text(), net) << "calculated, not read";
    Saved(DraftTypeCode::Final, "16-03-2024 08:00");
    EXPECT_EQ(Ask("SELECT MAX(DraftID) FROM DraftDetails").Text(), "2");
}

TEST_F(DraftStore, RefusesADuplicateAndWhatTheStoreCannotTake)
{
    clsDraft twin = Saved(DraftTypeCode::Daily, "15-03-2024 14:30");
    Saved(DraftTypeCode::Initial, "15-03-2024 14:30");
    Saved(DraftTypeCode::Daily, "15-03-2024 14:31");
    EXPECT_EQ(twin.SaveDraft(mRecordID), ReturnCode::DuplicateDraft) << "inserted again";
    clsDraft later = Loaded(DraftTypeCode::Daily, "15-03-2024", "14:31");
    later.DSTime("14:30");
    EXPECT_EQ(later.SaveDraft(mRecordID), ReturnCode::DuplicateDraft) << "moved onto another";

    const std::pair<const char *, void (*)(clsDraft &)> spoils[] = {
        {"an apostrophe", [](clsDraft &draft) { draft.Comments("ship's side"); }},
        {"a second statement", [](clsDraft &draft) { draft.Comments("',1); DELETE FROM Ship; --"); }},
        {"no date", [](clsDraft &draft) { draft.DSDate("__-__-____"); }},
        {"never calculated", [](clsDraft &draft) { draft.NewDraft(), Type(draft, kWorkedReadings); }},
        {"marks not typed", [](clsDraft &draft) { draft.NewDraft(), Type(draft, "1.025 8"); }},
        {"no such item", [](clsDraft &draft) { draft.Deduction(999, Decimal(1)); }},
        {"no quantity", [](clsDraft &draft) { draft.Deduction(24, Value::Null()); }},
    };
    for (const auto &[what, spoil] : spoils) {
        clsDraft draft = WorkedDraft(mShipID, DraftTypeCode::Final);
        spoil(draft);
        gConnection->BeginTrans();
        EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::SaveDraftFailed) << what;
        gConnection->RollbackTrans();
    }
    EXPECT_EQ(WorkedDraft(mShipID).SaveDraft(mRecordID + 1), ReturnCode::SaveDraftFailed) << "no such survey";
    EXPECT_EQ(Count("DraftDetails"), 3);
}

TEST_F(DraftStore, ADraftKnowsItsRowFromTheFirstSaveOn)
{
    clsDraft draft = WorkedDraft(mShipID);
    ASSERT_EQ(draft.SaveDraft(mRecordID), ReturnCode::Success);
    draft.DraftMode(1);
    Run("DELETE FROM DraftDetails");
    draft.Comments("nobody to keep this");
    EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::SaveDraftFailed) << "the row is gone";
    EXPECT_EQ(draft.DeleteDraft(), ReturnCode::Success);
    EXPECT_EQ(Count("DraftParticulars"), 0);
}

TEST_F(DraftStore, NoCommentReachesBeyondItself)
{
    Saved(DraftTypeCode::Daily, "15-03-2024 14:30");
    Saved(DraftTypeCode::Daily, "15-03-2024 14:31");
    for (const char *comment : {"swell at 24' -- calm later", "24' /* x", "24'; -- x", "x', FwdPortDraft='9.9", "it''s",
                                "x', NetDisplacement='77777", "5' - '6"}) {
        clsDraft draft = Loaded(DraftTypeCode::Daily, "15-03-2024", "14:31");
        draft.Comments(comment);
        EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::SaveDraftFailed) << comment;
    }
    EXPECT_EQ(Ask("SELECT count(*) FROM DraftDetails WHERE FwdPortDraft = 7.52 AND Comments = ''").ToLong(), 2);
    clsDraft draft = Loaded(DraftTypeCode::Daily, "15-03-2024", "14:31");
    draft.Comments("-- fenders /* 3 */ rigged");
    EXPECT_EQ(draft.SaveDraft(mRecordID), ReturnCode::Success);
    EXPECT_EQ(Loaded(DraftTypeCode::Daily, "15-03-2024", "14:31").Comments(), "-- fenders /* 3 */ rigged");
}

TEST_F(DraftStore, DropsQuantitiesOfZeroWhereverTheyStand)
{
    constexpr std::int32_t kItems[] {2, 3, 24, 25, 26, 27, 28, 29};
    for (const std::vector<int> &quantities : {std::vector {0, 0, 7, 0, 0, 5, 0, 0}, {0, 0, 0}, {1, 2, 3, 4}}) {
        clsDraft draft = NewDraftOf(mShipID);
        Type(draft, kWorkedReadings);
        for (int item = 0; const int quantity : quantities)
            draft.Deduction(kItems[item++], Decimal(quantity));
        ASSERT_EQ(draft.Calculate(0), ReturnCode::Calculated);
        mRecordID = AddSurvey(mShipID, std::to_string(quantities.size()));
        ASSERT_EQ(draft.SaveDraft(mRecordID), ReturnCode::Success);
        clsDraft loaded = Loaded(DraftTypeCode::Initial);
        const auto kept = std::ssize(quantities) - std::count(quantities.begin(), quantities.end(), 0);
        EXPECT_EQ(std::ssize(*draft.Deductions()), kept);
        EXPECT_EQ(std::ssize(*loaded.Deductions()), kept);
        EXPECT_EQ(loaded.NetDisplacement(), draft.NetDisplacement());
    }
}

TEST_F(DraftStore, FindsTheLatestDailyDraftOrTheOneAskedFor)
{
    for (const char *moment : {"31-12-2023 23:59", "01-01-2024 00:00", "30-11-2023 12:00"})
        Saved(DraftTypeCode::Daily, moment);
    clsDraft draft = Loaded(DraftTypeCode::Daily);
    EXPECT_EQ(draft.DSDate(), "01-01-2024");
    EXPECT_EQ(Loaded(DraftTypeCode::Daily, "30-11-2023", "12:00").DSTime(), "12:00");

    EXPECT_EQ(draft.GetDraft(mRecordID, "30-11-2023", "12:01"), ReturnCode::NoSuchDraft);
    EXPECT_EQ(State(draft), "0 False False");
    EXPECT_TRUE(draft.FwdPort().IsEmptyText());
    EXPECT_EQ(NewDraftOf(mShipID, DraftTypeCode::Initial).GetDraft(mRecordID, "", ""), ReturnCode::NoSuchDraft);
    EXPECT_EQ(draft.GetDraft(AddSurvey(mShipID, "2"), "", ""), ReturnCode::NoSuchDraft) << "another survey";
    EXPECT_EQ(draft.GetDraft(mRecordID, "", "12:00"), ReturnCode::GetDraftFailed);
}

TEST_F(DraftStore, DeletesOneDraftOrWithTheInitialOneTheWholeSurvey)
{
    clsDraft unloaded = Saved(DraftTypeCode::Initial, "15-03-2024 08:00");
    Saved(DraftTypeCode::Final, "16-03-2024 08:00");
    Saved(DraftTypeCode::Daily, "15-03-2024 12:00");
    Saved(DraftTypeCode::Daily, "15-03-2024 18:00");
    EXPECT_EQ(unloaded.DeleteDraft(), ReturnCode::Success);
    EXPECT_TRUE(unloaded.NetDisplacement().IsEmptyText());
    EXPECT_EQ(Count("DraftDetails"), 4) << "made new, and nothing is deleted";

    clsDraft daily = Loaded(DraftTypeCode::Daily);
    EXPECT_EQ(daily.DeleteDraft(), ReturnCode::Success);
    EXPECT_EQ(State(daily), "0 False False");
    EXPECT_EQ(Loaded(DraftTypeCode::Daily).DSTime(), "12:00");
    EXPECT_EQ(Count("DeductionTrans"), 6);

    EXPECT_EQ(Loaded(DraftTypeCode::Initial).DeleteDraft(), ReturnCode::Success);
    EXPECT_EQ(Count("DraftParticulars") + Count("DraftDetails") + Count("DeductionTrans"), 0);
}

TEST_F(DraftStore, AnswersWithCodesWhenStatementsFail)
{
    Saved(DraftTypeCode::Final, "15-03-2024 08:00");
    clsDraft loaded = Loaded(DraftTypeCode::Final);
    loaded.ToSave(true);
    clsDraft fresh = WorkedDraft(mShipID, DraftTypeCode::Daily);
    Run("DROP TABLE DeductionTrans");
    Run("DROP TABLE DraftDetails");

    EXPECT_EQ(loaded.SaveDraft(mRecordID), ReturnCode::SaveDraftFailed);
    EXPECT_EQ(loaded.GetDraft(mRecordID, "", ""), ReturnCode::GetDraftFailed);
    EXPECT_EQ(loaded.DeleteDraft(), ReturnCode::DeleteDraftFailed);
    EXPECT_EQ(State(loaded), "1 True True");
    EXPECT_EQ(loaded.NetDisplacement().Text(), "22441.68513") << "what was on the screen is still there";

    mMessages.Expect(
        {.text = WordsFor("DraftDetails") + "\n\nSource :  clsDraft::GetNewDraftID", .icon = MsgIcon::Critical});
    EXPECT_EQ(fresh.SaveDraft(mRecordID), ReturnCode::SaveDraftFailed);
    mMessages.Expect(
        {.text = WordsFor("DeductionTrans") + "\n\nSource :  clsDraft::InitDeductions", .icon = MsgIcon::Critical});
    fresh.NewDraft();
}

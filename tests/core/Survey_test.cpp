#include "core/Survey.h"

#include "core/ReturnCode.h"
#include "tests/core/SurveyTest.h"

namespace
{
class SurveyInMemory : public SurveyTest
{
protected:
    SurveyInMemory()
    {
        mSurvey.New();
        EXPECT_TRUE(mSurvey.SetShip(Value(mShipID)));
        Work(Stage::Initial, kWorkedReadings);
    }
    void Work(const Stage &stage, const std::string &readings)
    {
        clsDraft &draft = mSurvey.Draft(stage);
        Type(draft, readings);
        draft.Deduction(Value(2), Value(350));
        EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    }
    std::int32_t Save(const std::string &voyage = "V1")
    {
        return mSurvey.Save({.shipID = Value(mShipID), .voyageID = voyage, .portID = Value(1), .cargo = "Coal"});
    }
    /// What of the survey is not in the store yet, and "mode ToSave HasRecord" of each draft.
    [[nodiscard]] std::string State() const
    {
        std::string state = mSurvey.HeaderDirty() ? "dirty" : "clean";
        for (const Stage &stage : Stage::All()) {
            const clsDraft &draft = mSurvey.Draft(stage);
            state += ", " + draft.DraftMode().Text() + (draft.ToSave() ? " to save" : "")
                + (draft.HasRecord() ? " has record" : "");
        }
        return state;
    }
    static std::string Stored()
    {
        return Ask("SELECT (SELECT count(*) FROM DraftParticulars) || ' ' || (SELECT count(*) FROM DraftDetails) || ' "
                   "' "
                   "|| (SELECT count(*) FROM DeductionTrans) || ' ' || "
                   "coalesce((SELECT group_concat(NetDisplacement) FROM DraftDetails), '')")
            .Text();
    }

    const std::int32_t mShipID = AddShip(kWorkedShip);
    Survey mSurvey {{.isLoading = "True", .noConstant = ""}};
};

TEST_F(SurveyInMemory, IsSavedWholeOrLeftAsItWas)
{
    Work(Stage::Final, Level("8.5"));
    const std::string before = State();
    EXPECT_EQ(before, "dirty, 0 to save, 0, 0 to save");
    for (const char *hurdle : {"INSERT ON DraftParticulars", "INSERT ON DraftDetails WHEN NEW.DraftType = 1",
                               "INSERT ON DeductionTrans WHEN NEW.DraftID = 2"}) {
        SCOPED_TRACE(hurdle);
        Run(std::string("CREATE TRIGGER Full BEFORE ") + hurdle + " BEGIN SELECT RAISE(ABORT, 'full'); END");
        EXPECT_NE(Save(), ReturnCode::Success);
        EXPECT_EQ(State(), before);
        EXPECT_EQ(Stored(), "0 0 0 ");
        EXPECT_FALSE(mSurvey.StoredCargo());
        Run("DROP TRIGGER Full");
    }
    EXPECT_EQ(Save(), ReturnCode::Success);
    EXPECT_EQ(State(), "clean, 1 has record, 0, 1 has record");
    EXPECT_EQ(mSurvey.StoredCargo(), "Coal");
    EXPECT_EQ(Save(), ReturnCode::NothingToSave);

    // A change of what is stored is undone the same way.
    mSurvey.Draft(Stage::Final).Comments("Swell");
    mSurvey.HeaderDirty(true);
    Run("CREATE TRIGGER Full BEFORE UPDATE ON DraftDetails BEGIN SELECT RAISE(ABORT, 'full'); END");
    EXPECT_EQ(Save("V2"), ReturnCode::SaveDraftFailed);
    EXPECT_EQ(State(), "dirty, 1 has record, 0, 1 to save has record");
    EXPECT_EQ(Ask("SELECT VoyageID FROM DraftParticulars").Text(), "V1");
    Run("DROP TRIGGER Full");
    EXPECT_EQ(Save("V2"), ReturnCode::Success);

    mSurvey.New();
    Work(Stage::Initial, kWorkedReadings);
    mSurvey.HeaderDirty(true);
    EXPECT_EQ(Save("V2"), ReturnCode::DuplicateSurvey);
    EXPECT_EQ(State(), "dirty, 0 to save, 0, 0");
}

TEST_F(SurveyInMemory, IsFoundAsFarAsItCanBeRead)
{
    EXPECT_EQ(Save(), ReturnCode::Success);
    Survey other({.isLoading = "True", .noConstant = ""});
    EXPECT_FALSE(other.Find("SELECT * FROM DraftParticulars WHERE IsLoading = False"));
    ASSERT_TRUE(other.SetShip(Value(mShipID)));
    EXPECT_EQ(other.Find("SELECT * FROM DraftParticulars").value().voyageID, "V1");
    EXPECT_EQ(other.GetDrafts(), Survey::Found::All);
    EXPECT_EQ(other.Draft(Stage::Initial).NetDisplacement(), mSurvey.Draft(Stage::Initial).NetDisplacement());
    Run("INSERT INTO DraftDetails SELECT 2, 1, 1, 2, 8, 8, 8, 8, 8, 8, NULL, 1, '', 202403150000 FROM DraftDetails");
    EXPECT_EQ(other.GetDrafts(), Survey::Found::LaterBroken);
    EXPECT_TRUE(other.Draft(Stage::Initial).HasRecord());
    EXPECT_FALSE(other.Draft(Stage::Daily).IsThere());
    Run("DELETE FROM DraftDetails");
    EXPECT_EQ(other.GetDrafts(), Survey::Found::NoInitial);
}

TEST_F(SurveyInMemory, IsWorkedOutByTheMarksOfASave)
{
    clsDraft &draft = mSurvey.Draft(Stage::Initial);
    mSurvey.Constant(draft.NetDisplacement() - mSurvey.Ship().LightShip());
    const Value before = draft.NetDisplacement();
    draft.FwdPort(Value("7.6"));
    EXPECT_TRUE(mSurvey.WorkOutDrafts(Stage::Final));
    EXPECT_GT(draft.NetDisplacement(), before);
    EXPECT_EQ(mSurvey.Constant(), draft.NetDisplacement() - mSurvey.Ship().LightShip());
    const Value worked = draft.NetDisplacement();
    for (const char *mark : {"", "30"}) {
        draft.FwdPort(Value(mark));
        EXPECT_FALSE(mSurvey.WorkOutDrafts(Stage::Initial));
        EXPECT_EQ(draft.NetDisplacement(), worked);
    }
}
} // namespace

#include "frame/store/Connection.h"
#include "tests/survey/SurveyDesk.h"

#include <gmock/gmock.h>

#include <QClipboard>
#include <QGuiApplication>

namespace
{
class SaveFailure : public SurveyDesk
{
protected:
    void ExpectFailure(const char *caption, const std::function<void()> &act)
    {
        ExpectTold("An internal error has occured while updating draft/s\n\n"
                   "Please contact us with the error no. on the titlebar of this dialog box.",
                   act, MsgIcon::Exclamation, caption);
    }
    /// A remark too long for the pages that the store has, each longer than the last.
    void PasteRemark()
    {
        mLines += 200;
        QGuiApplication::clipboard()->setText(
            QString("Swell, and the marks read three times over, all of it by boat\n").repeated(mLines));
        Fill("txtComments", "");
        PressKey(Frame(), Qt::Key_V, Qt::ControlModifier);
    }
    void OpenOther()
    {
        mOther = std::make_unique<Connection>();
        mOther->Open(File());
    }

    std::unique_ptr<Connection> mOther;
    int mLines = 0;
};

TEST_F(SaveFailure, LeavesTheStoreAndTheScreenAndASecondSaveSaves)
{
    struct Cause {
        const char *name;
        const char *caption;
        std::function<void()> begin;
        std::function<void()> end;
    };
    const Cause causes[] = {
        {"another reads, so that the commit fails", "Keelmark10004",
         [&] {
             OpenOther();
             mOther->Execute("BEGIN");
             mOther->Execute("SELECT COUNT(*) FROM DraftDetails");
         },
         [&] { mOther.reset(); }},
        {"another writes", "Keelmark10004",
         [&] {
             OpenOther();
             mOther->BeginTrans();
         },
         [&] { mOther.reset(); }},
        {"the disk is full", "Keelmark10003",
         [&] { Run("PRAGMA max_page_count = " + Ask("SELECT page_count FROM pragma_page_count").Text()); },
         [] { Run("PRAGMA max_page_count = 100000"); }},
        {"the file is read-only", "Keelmark10004", [] { Run("PRAGMA query_only = ON"); },
         [] { Run("PRAGMA query_only = OFF"); }},
    };
    StoreSurvey();
    Run("PRAGMA busy_timeout = 0");
    int number = 1;
    for (const Cause &cause : causes) {
        for (const bool isNew : {true, false}) {
            SCOPED_TRACE(std::string(cause.name) + (isNew ? ", a new survey" : ", a change"));
            Open();
            if (isNew) {
                PressNew();
                EnterWorked(QString("N%1").arg(++number));
            } else {
                Fill("txtFwdPort", "7.6");
                Calculate();
            }
            if (std::string(cause.name) == "the disk is full")
                PasteRemark();
            const std::string stored = Stored();
            const std::string mask = Window().ButtonMask();
            cause.begin();
            for (int attempt = 0; attempt < 2; ++attempt)
                ExpectFailure(cause.caption, [&] { PressSave(); });
            cause.end();
            EXPECT_EQ(Stored(), stored);
            EXPECT_EQ(Window().ButtonMask(), mask);
            EXPECT_EQ(LaterTabsAreOn(), !isNew);
            EXPECT_EQ(Text("txtFwdPort"), isNew ? "7.52" : "7.6");
            SaveWell();
            EXPECT_NE(Stored(), stored);
            EXPECT_EQ(Ask("SELECT COUNT(*) FROM DraftDetails").Text(), std::to_string(number));
            PressClose();
            ASSERT_FALSE(IsOpen());
        }
    }
}

TEST_F(SaveFailure, AnApostropheIsNeverWritten)
{
    const std::tuple<const char *, const char *, const char *> fields[]
        = {{"dcbVoyageID", "Keelmark10004", "O'Hara 1"},
           {"txtCargo", "Keelmark10004", "x', Constant = 1 --"},
           {"txtComments", "Keelmark10003", "5' - '6"}};
    StoreSurvey();
    for (const auto &[field, caption, text] : fields) {
        SCOPED_TRACE(field);
        Open();
        const std::string before = Text(field);
        const std::string stored = Stored();
        Fill(field, text);
        ExpectFailure(caption, [&] { PressSave(); });
        Prompt(kClosePrompt, MsgAnswer::Yes);
        ExpectFailure("Keelmark-20101", [&] { PressClose(); });
        ASSERT_TRUE(IsOpen());
        EXPECT_EQ(Stored(), stored);
        EXPECT_EQ(Text(field), text);
        Fill(field, QString::fromStdString(before) + " 2");
        SaveWell();
        PressClose();
        EXPECT_FALSE(IsOpen());
    }
    EXPECT_EQ(StoredSurveys(), R"([1,1,"V1 2",1,"Coal 2",341.68513,1])");
}

TEST_F(SaveFailure, AShipThatCannotBeReadEndsNothing)
{
    StoreSurvey();
    AddShip();
    Open();
    Run("PRAGMA busy_timeout = 0");
    OpenOther();
    mOther->Execute("BEGIN EXCLUSIVE");
    for (int reader = 0; reader < 4; ++reader)
        Tell("An internal error has occured."
             "Please contact us with the error code on the titlebar of this dialog box.",
             MsgIcon::Critical, "Keelmark-10105");
    ExpectTold(
        "Unable to retrieve ship particulars.", [this] { Pick("dcbShip", 1); }, MsgIcon::None);
    mOther.reset();
    Fill("txtFwdPort", "7.6");
    ExpectTold(
        "clsDraft::Calculate", [this] { Calculate(); }, MsgIcon::None);
    EXPECT_EQ(Text("txtFwdPort"), "7.6");
    SaveWell();
    PressClose();
    EXPECT_FALSE(IsOpen());
}

TEST_F(SaveFailure, ADateWithPromptsIsNoDateForTheStore)
{
    StoreSurvey();
    Open();
    const std::string stored = Stored();
    Fill("mbxDate", "12");
    ExpectFailure("Keelmark10003", [&] { PressSave(); });
    EXPECT_EQ(Stored(), stored);
    Fill("mbxDate", "13032024");
    SaveWell();
}

TEST_F(SaveFailure, TextThatNoCheckHasSeenEndsTheProgramButAtSave)
{
    StoreSurvey();
    Open();
    const std::string stored = Stored();
    FatalRecorder fatal;
    for (const char *field : {"txtDensity", "txtMidshipStbd"}) {
        Fill(field, "8,o");
        ExpectTold(
            "frmDraftSurvey::RSave", [&] { PressSave(); }, MsgIcon::None);
        PressNew();
        EXPECT_EQ(Text(field), "8,o");
        Fill(field, "8");
    }
    Fill("txtAftPort", "x");
    PressClose();
    EXPECT_THAT(fatal.Numbers(), testing::AllOf(testing::SizeIs(3), testing::Each(ErrorNumber::TypeMismatch)));
    EXPECT_FALSE(gConnection->InTransaction());
    EXPECT_EQ(Stored(), stored);
}

} // namespace

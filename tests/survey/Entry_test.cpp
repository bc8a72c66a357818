#include "core/numeric/Regional.h"
#include "frame/controls/Colours.h"
#include "tests/survey/SurveyDesk.h"

#include <QLineEdit>

namespace
{
class Entry : public SurveyDesk
{
protected:
    void Leave(const char *field, const QString &text, Qt::Key key = Qt::Key_Tab)
    {
        Fill(field, text);
        Press(key);
    }
    /// Whichever key leaves the field with that text, the user is told, the focus stays and the field is blank.
    void ExpectRefused(const char *field, const QString &texts, const std::string &message)
    {
        for (const QString &text : texts.split(' '))
            for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Return, Qt::Key_Backtab}) {
                SCOPED_TRACE(std::string(field) + " " + text.toStdString());
                ExpectTold(message, [&] { Leave(field, text, key); });
                EXPECT_EQ(Focus() + Text(field), field);
            }
    }
};

TEST_F(Entry, AFieldRefusesWhatIsNoNumberOrOutOfRange)
{
    const char *const marks[][2] = {{"txtFwdPort", "Foward Port"},      {"txtFwdStbd", "Foward Starboard"},
                                    {"txtMidShipPort", "Midship Port"}, {"txtMidshipStbd", "Midship Starboard"},
                                    {"txtAftPort", "Aft Port"},         {"txtAftStbd", "Aft Starboard"}};
    Open();
    ExpectRefused("txtDensity", "abc 1.0.2", "Invalid density value.\n\nOnly numbers are allowed.");
    ExpectRefused("txtDensity", "0 10 -1.025 0.00004 9.99996 1e40",
                  "Invalid density value.\n\nPlease enter values  greater than 0 and less than 10.");
    for (const auto &[field, name] : marks) {
        const std::string invalid = "Invalid value for " + std::string(name) + " draft.\n\n";
        ExpectRefused(field, "x 7.5m", invalid + "Please enter numeric value.");
        ExpectRefused(field, "0 100 -7.5 (7.5) 0.0004 123.4567",
                      invalid + "Please enter value  greater than 0 and less than 100.");
    }
}

TEST_F(Entry, AFieldShowsTheNumberRoundedHalfToEven)
{
    const char *const cases[][3] = {
        {"txtDensity", "1.02540", "1.0254"}, {"txtDensity", " 1.03125 ", "1.0312"}, {"txtDensity", "  ", ""},
        {"txtDensity", "9.99994", "9.9999"}, {"txtFwdPort", "99.999", "99.999"},    {"txtFwdPort", "1e1", "10"},
        {"txtFwdPort", "1,5", "15"},         {"txtFwdPort", "8.0005", "8"},         {"txtFwdPort", "8.0015", "8.002"},
        {"txtFwdPort", "0.0006", "0.001"},   {"txtAftStbd", "7.52000001", "7.52"}};
    Open();
    for (const auto &[field, typed, shown] : cases) {
        Leave(field, typed);
        EXPECT_EQ(Text(field), shown) << typed;
    }
}

TEST_F(Entry, ADateOrTimeThatIsNoneGivesWayToThePresentOnce)
{
    const char *const taken[][3] = {{"mbxDate", "15032024", "15-03-2024"}, {"mbxDate", "05132024", "13-05-2024"},
                                    {"mbxDate", "12312024", "31-12-2024"}, {"mbxDate", "29022024", "29-02-2024"},
                                    {"mbxTime", "0630", "06:30"},          {"mbxTime", "2359", "23:59"}};
    Open();
    for (const auto &[field, typed, shown] : taken) {
        Leave(field, typed);
        EXPECT_EQ(Text(field), shown);
        EXPECT_NE(Focus(), field);
    }
    for (const auto &[field, texts, message, present] :
         {std::tuple("mbxDate", "31042024 29022023 13132024 00012024 1503 ", "Invalid Date", "14-03-2024"),
          std::tuple("mbxTime", "2500 0660 063 ", "Invalid Time", "09:26")})
        for (const QString &typed : QString(texts).split(' ')) {
            SCOPED_TRACE(typed.toStdString());
            ExpectTold(message, [&, leaving = field] { Leave(leaving, typed); });
            EXPECT_EQ(Focus() + " " + Text(field), std::string(field) + " " + present);
            EXPECT_EQ(The<QLineEdit>(field).selectedText().toStdString(), present) << "what is typed next replaces it";
            Press(Qt::Key_Return);
            EXPECT_NE(Focus(), field);
        }
}

TEST_F(Entry, AMachineWithDecimalCommasReadsShowsAndStoresThem)
{
    const ScopedPort inForce(RegionalPort(), {.decimalSeparator = ",", .groupSeparator = ".", .currencySymbol = "€"});
    AddShip();
    Open();
    FillHeader();
    ExpectRefused("txtFwdPort", "7.52",
                  "Invalid value for Foward Port draft.\n\nPlease enter value  greater than 0 and less than 100.");
    FillMarks(QString(kWorkedMarks).replace('.', ','));
    FillCell(0, "350");
    FillCell(1, "120,5");
    Calculate();
    EXPECT_EQ(Texts({"txtInitNetDisp", "txtFwdMean", "txtMidshipStbd", "txtConstant"}),
              "22441,68513 7,5 7,97 341,68513");
    SaveWell();
    EXPECT_EQ(StoredSurveys(), R"([1,1,"V1",1,"Coal",341.68513,1])");
    EXPECT_EQ(StoredDrafts(), "[1,1,0,202403140926,1.015,7.52,7.48,8.03,7.97,8.61,8.59,0,22441.68513,\"\"]");
    EXPECT_EQ(StoredDeductions(), "1:2=350 1:3=120.5");
    PressClose();
    Open();
    EXPECT_EQ(Text("txtConstant") + " " + Cell("fgrdDeduction", 1, 1), "341,68513 120,5");
}

TEST_F(Entry, EnterWalksTheFieldsAndIntoTheGrid)
{
    StoreSurvey();
    Open();
    FillCell(4, "");
    GoTo("dcbShip");
    std::string walk;
    for (int step = 0; step < 13; ++step) {
        Press(step % 2 == 0 ? Qt::Key_Return : Qt::Key_Enter);
        walk += Focus() + " ";
    }
    EXPECT_EQ(walk,
              "dcbVoyageID dcbPort txtCargo txtDensity mbxDate mbxTime txtFwdPort txtFwdStbd txtMidShipPort "
              "txtMidshipStbd txtAftPort txtAftStbd txtGridTextbox ");
    for (int row = 0; row < 8; ++row) {
        EXPECT_EQ(Deductions().CurrentRow(), row);
        EXPECT_EQ(Focus(), "txtGridTextbox");
        Press(Qt::Key_Return);
    }
    EXPECT_EQ(Focus(), "txtComments");
    Press(Qt::Key_Return);
    EXPECT_NE(Focus(), "txtComments");
    EXPECT_EQ(Text("txtComments"), "Calm");
}

TEST_F(Entry, AFieldThatGetsTheFocusIsSelectedWhole)
{
    StoreSurvey();
    Open();
    for (const char *name : {"txtDensity", "txtCargo", "txtFwdPort", "txtFwdStbd", "txtMidShipPort", "txtMidshipStbd",
                             "txtAftPort", "txtAftStbd"}) {
        Click(The(name));
        EXPECT_EQ(The<QLineEdit>(name).selectedText().toStdString(), Text(name)) << name;
    }
    Press(Qt::Key_Return);
    EXPECT_EQ(The<QLineEdit>("txtGridTextbox").selectedText(), "350");
}

TEST_F(Entry, TheCommentsCanBeReachedAgainAfterAClickIntoThem)
{
    StoreSurvey();
    Open();
    Fill("txtComments", "Swell");
    Fill("txtComments", "Calm");
    Click(The("txtDensity"));
    Fill("txtComments", "Swell");
    EXPECT_EQ(Focus() + " " + Text("txtComments"), "txtComments Swell");
}

TEST_F(Entry, TypingInABlankDailyDraftWakesNew)
{
    StoreSurvey();
    Open();
    for (const char *name : {"txtDensity", "txtAftStbd"}) {
        ClickTab("Daily");
        Click(The(name));
        Press(Qt::Key_Tab);
        Press(Qt::Key_Return);
        Fill("txtComments", "a");
        Press(Qt::Key_Backspace);
        EXPECT_FALSE(IsOn("cmdNewDailyDraft"));
        Click(The(name));
        Type(Frame(), "1");
        EXPECT_TRUE(IsOn("cmdNewDailyDraft")) << name;
        Press(Qt::Key_Backspace);
        ClickTab("Initial");
    }
}

TEST_F(Entry, TheCargoIntendedIsCheckedOnceTheForwardStarboardMarkStands)
{
    const char *const intended = "txtCargoIntendedToLoad";
    const std::string invalid = "Invalid value for Cargo intended to load.\n\nPlease enter ";
    StoreSurvey();
    Open();
    ClickTab("Daily");
    Leave(intended, "abc");
    EXPECT_NE(Focus(), intended);
    EXPECT_EQ(Text(intended), "abc");
    Fill(intended, "");
    FillMarks(kDailyMarks);
    ExpectRefused(intended, "abc 5000t", invalid + "numeric value.");
    ExpectRefused(intended, "-1 1000000 999999.9996", invalid + "value  greater than 0 and less than 1000000.");
    Leave(intended, "999999.9994");
    EXPECT_EQ(Texts({intended, "txtBalCargoToLoad"}), "999999.999 999999.999");
    Leave(intended, "0");
    EXPECT_EQ(Texts({intended, "txtBalCargoToLoad"}), "0 0");

    Leave(intended, "5000");
    FillCell(0, "470.5");
    Calculate();
    EXPECT_EQ(Texts({"txtTotCargoOnboard", "txtBalCargoToLoad"}), "1399.12026 3600.87974");
    const char *const exceeded = "You have exceeded the quantity of cargo intended to load on ship.";
    ExpectTold(exceeded, [&] { Leave(intended, "1399"); });
    EXPECT_EQ(Text("txtBalCargoToLoad"), "-0.12026");
    EXPECT_TRUE(IsRed(The<QLineEdit>("txtBalCargoToLoad")));
    EXPECT_NE(Focus(), intended);
    ExpectTold(exceeded, [&] { Calculate(); });
    Leave(intended, "1399.2");
    EXPECT_EQ(Text("txtBalCargoToLoad"), "0.07974");
    EXPECT_FALSE(IsRed(The<QLineEdit>("txtBalCargoToLoad")));
}

TEST_F(Entry, TheListCorrectionBoxWaitsForAFirstCalculation)
{
    AddShip();
    Open();
    FillHeader();
    ClickBox(The("chkInitListCorrection"));
    FillMarks(kWorkedMarks);
    FillCell(0, "470.5");
    EXPECT_EQ(Text("txtResultantTPCP"), "");
    Calculate();
    EXPECT_EQ(Texts({"txtResultantTPCP", "txtInitNetDisp"}), "42.53 22441.70652");
    Fill("txtMidshipStbd", "");
    ClickBox(The("chkInitListCorrection"));
    EXPECT_EQ(Text("txtResultantTPCP") + Cell("fgrdListCorrection", 1, 0), "");
    EXPECT_EQ(Text("txtInitNetDisp"), "22441.68513") << "the short run takes no mark anew";
}

TEST_F(Entry, CalculateWantsEveryFigure)
{
    const char *const fields[][2] = {{"txtDensity", "Density"},
                                     {"txtFwdPort", "Forward Port"},
                                     {"txtFwdStbd", "Forward Starboard"},
                                     {"txtMidShipPort", "Midship Port"},
                                     {"txtMidshipStbd", "Midship Starboard"},
                                     {"txtAftPort", "Aft Port"},
                                     {"txtAftStbd", "Aft Starboard"}};
    AddShip();
    Open();
    ExpectTold("Incomplete data.\n\nPlease select ship name.", [&] { Calculate(); });
    EXPECT_EQ(Focus(), "dcbShip");
    Pick("dcbShip", 0);
    QStringList marks = QString(kWorkedMarks).split(' ');
    for (const auto &[field, name] : fields) {
        ExpectTold("Incomplete data.\n\nPlease enter value for " + std::string(name) + ".", [&] { Calculate(); });
        EXPECT_EQ(Focus(), field);
        Fill(field, marks.takeFirst());
    }
    Calculate();
    EXPECT_EQ(Text("txtTrueMeanDraft"), "8.01660448");
}
} // namespace

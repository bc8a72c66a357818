#include "core/ReturnCode.h"
#include "core/numeric/Regional.h"
#include "tests/core/SurveyTest.h"

#include <algorithm>
#include <fstream>
#include <sstream>

namespace
{
using Calculation = SurveyTest;

const std::string kCheckInput = "\n\nPlease check your input values.";
const std::string kAbove = "Value of TMD > calculated TMD does not exists in Hydrostatic data for the current ship.";
const std::string kBelow = "Value of TMD < calculated TMD does not exists in Hydrostatic data for the current ship.";
const std::string kNoPlus50 = "The value of Hydrostatic draft corresponding to MCTC+50 is higher than the value of TMD "
                              "that exists in Hydrostatic Data Table.";
const std::string kNoMinus50 = "The value of Hydrostatic draft corresponding to MCTC-50 is lower than the value of TMD "
                               "that exists in Hydrostatic Data Table.";
const Message kCalculateTrap = {.text = "clsDraft::Calculate"};

/// The worked survey, to every digit that was written down by hand.
const std::string kWorkedFigures
    = "FwdMean=7.5 MidMean=8 AftMean=8.6 ApparentTrim=1.1 FwdCorrection=-0.00757749712973... "
      "MidCorrection=0.00189437428243... AftCorrection=0.02904707233065... FwdTrueDraft=7.49242250287026... "
      "MidTrueDraft=8.00189437428243... AftTrueDraft=8.62904707233065... TrueTrim=1.13662456946039... "
      "TrueMeanDraft=8.01660447761194... IpFactor=0.03320895522388... "
      "HDT(0,0)=8 HDT(0,1)=23100 HDT(0,2)=42.5 HDT(0,3)=-1.5 HDT(0,4)=440 HDT(0,5)=420 "
      "HDT(1,0)=8.5 HDT(1,1)=25225 HDT(1,2)=43 HDT(1,3)=-1 HDT(1,4)=450 HDT(1,5)=430 "
      "HDT(2,0)=0.5 HDT(2,1)=2125 HDT(2,2)=0.5 HDT(2,3)=0.5 HDT(2,4)=10 HDT(2,5)=10 "
      "IpResult(0,0)=70.569 IpResult(0,1)=0.017 IpResult(0,2)=0.017 IpResult(0,3)=0.332 IpResult(0,4)=0.332 "
      "IpResult(1,0)=23170.56903 IpResult(1,1)=42.517 IpResult(1,2)=-1.483 IpResult(1,3)=440.332 IpResult(1,4)=420.332 "
      "FinalResult(0)=23170.56903 FinalResult(1)=-39.8253930999753... FinalResult(2)=7.17730784389454... "
      "FinalResult(3)=-32.6480852560808... FinalResult(4)=0 FinalResult(5)=23137.9209447439... "
      "FinalResult(6)=-225.735814095062... FinalResult(7)=22912.1851306488... FinalResult(8)=470.5 "
      "FinalResult(9)=22441.68513 FinalResult(10)=5000.5";
/// What the list correction adds to it.
const std::string kWorkedListCorrection
    = "FinalResult(4)=0.0216 FinalResult(9)=22441.70652 HDTListCorr(0,0)=8 HDTListCorr(0,1)=42.5 HDTListCorr(0,2)=7.5 "
      "HDTListCorr(0,3)=42 HDTListCorr(1,0)=8.5 HDTListCorr(1,1)=43 HDTListCorr(1,2)=8 HDTListCorr(1,3)=42.5 "
      "HDTListCorr(2,0)=0.5 HDTListCorr(2,1)=0.5 HDTListCorr(2,2)=0.5 HDTListCorr(2,3)=0.5 IpFactorTPCP=0.06 "
      "IpValueTPCP=0.03 ResultantTPCP=42.53 IpFactorTPCS=0.94 IpValueTPCS=0.47 ResultantTPCS=42.47";
} // namespace

TEST_F(Calculation, GivesTheWorkedSurveyToEveryDigitFreshAndReloaded)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    for (const std::string separator : {".", ","}) {
        SCOPED_TRACE("decimal separator " + separator);
        const ScopedPort inForce(RegionalPort(), {separator, separator == "." ? "," : ".", "$"});
        const std::int32_t recordID = AddSurvey(shipID, separator);
        std::string readings = kWorkedReadings;
        std::replace(readings.begin(), readings.end(), '.', separator.front());

        clsDraft fresh = WorkedDraft(shipID, DraftTypeCode::Initial, readings);
        ExpectFigures(Figures(fresh), kWorkedFigures);
        EXPECT_TRUE(fresh.FinalResult()[11].IsEmptyText());
        fresh.ListCorrected(true);
        ASSERT_EQ(fresh.Calculate(0), ReturnCode::Calculated);
        ExpectFigures(Figures(fresh), kWorkedListCorrection);
        ASSERT_EQ(fresh.SaveDraft(recordID), ReturnCode::Success);

        clsDraft reloaded = NewDraftOf(shipID);
        ASSERT_EQ(reloaded.GetDraft(recordID, "", ""), ReturnCode::Success);
        const FigureMap figures = Figures(reloaded);
        for (const auto &[name, value] : Figures(fresh))
            EXPECT_EQ(figures.at(name).SqlText(), value.SqlText()) << name;
    }
}

TEST_F(Calculation, AgreesWithPublishedSurveys)
{
    std::ifstream file(KEELMARK_CORE_DATA "/published.txt");
    std::string survey;
    ShipData data;
    FigureMap figures;
    int compared = 0;
    for (std::string word, line; std::getline(file >> word >> std::ws, line);) {
        if (word == "survey") {
            survey = line;
        } else if (word == "ship") {
            data = {line, {}};
        } else if (word == "row") {
            data.rows.push_back(line);
        } else if (word == "readings") {
            const std::int32_t shipID = AddShip(data);
            clsDraft draft = NewDraftOf(shipID);
            Type(draft, line);
            EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated) << survey;
            figures = Figures(draft);
            clsShip ship;
            ship.SetShip(shipID);
            figures["GetDistBetDraftMarks"] = ship.GetDistBetDraftMarks();
        } else if (word == "figure") {
            std::string name, published, exact, tolerance;
            std::istringstream(line) >> name >> published >> exact >> tolerance;
            SCOPED_TRACE(survey + " " + name);
            EXPECT_EQ(Round(figures.at(name), 9).Text(), exact);
            EXPECT_LE(Abs(figures.at(name) - Decimal::Parse(published)), Value(Decimal::Parse(tolerance)));
            ++compared;
        }
    }
    EXPECT_EQ(compared, 49);
}

TEST_F(Calculation, SpecialDraftsGiveWhatTheyMust)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    clsDraft draft = NewDraftOf(shipID);
    Type(draft, Level("8.2"));
    ASSERT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    ExpectFigures(Figures(draft),
                  "FinalResult(1)=0 FinalResult(2)=0 FinalResult(5)=23950 FinalResult(6)=0 "
                  "FinalResult(7)=23950 FinalResult(9)=23950");

    // All marks at 0 pass without a word; the drafts are new, the results are those of the run before.
    Type(draft, Level("0"));
    EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    EXPECT_EQ(draft.TrueMeanDraft().Text(), "0");
    EXPECT_EQ(draft.NetDisplacement().Text(), "23950");

    Type(draft, Level("8"));
    ASSERT_EQ(draft.Calculate(7), ReturnCode::Calculated) << "any mode but 1 is the full run";
    ExpectFigures(Figures(draft),
                  "IpFactor=0 IpResult(0,0)=0 IpResult(0,1)=0 IpResult(0,2)=0 IpResult(1,3)=440 "
                  "IpResult(1,4)=420 HDT(0,0)=8 HDT(1,0)=8 HDT(2,1)=0 HDT(2,4)=0 "
                  "FinalResult(0)=23100");
}

TEST_F(Calculation, TellsWhyADraftCannotBeCalculated)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    const std::pair<std::string, std::string> cases[]
        = {{"9.001", kAbove},    {"7.499", kBelow},     {"9", kNoPlus50},
           {"8.501", kNoPlus50}, {"7.999", kNoMinus50}, {"7.5", kNoMinus50}};
    clsDraft draft = WorkedDraft(shipID);
    const auto before = draft.FinalResult();
    for (const auto &[mark, text] : cases) {
        SCOPED_TRACE(mark);
        Type(draft, Level(mark));
        EXPECT_EQ(CalculateTelling(draft, 0, {{.text = text + kCheckInput, .icon = MsgIcon::Critical}}),
                  ReturnCode::NotCalculated);
        EXPECT_EQ(draft.TrueMeanDraft().Text(), mark);
        EXPECT_EQ(draft.FinalResult(), before) << "the results stay";
    }

    clsDraft withoutTable = NewDraftOf(AddShip({"180, 0, 0, 0", {}}));
    Type(withoutTable, Level("0"));
    EXPECT_EQ(CalculateTelling(withoutTable, 0,
                               {{.text = "An internal error has occured while calculating draft.\n\nPlease contact us "
                                         "with the error no. on the titlebar of this dialog box.",
                                 .icon = MsgIcon::Exclamation,
                                 .caption = "Keelmark10009"}}),
              ReturnCode::NotCalculated);
}

TEST_F(Calculation, GoesOnAfterARunTimeErrorAsFarAsItCame)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    const struct {
        std::int32_t ship;
        std::string readings, lastFigure, nextFigure;
    } cases[] = {
        {shipID, "1.025 8 8 8 8 8", "MidMean", "AftMean"}, // a mark not typed
        {shipID + 100, Level("8.2"), "ApparentTrim", "FwdCorrection"}, // no such ship
        {AddShip({"0, 0, 0, 0", {}}), Level("8.2"), "ApparentTrim", "FwdCorrection"}, // no distance between marks
        {AddShip({"0, 1, 0, 0", kWorkedShip.rows}), Level("8.2"), "FinalResult(0)", "FinalResult(1)"}, // no length
    };
    for (const auto &[ship, readings, lastFigure, nextFigure] : cases) {
        clsDraft draft = NewDraftOf(ship);
        Type(draft, readings);
        EXPECT_EQ(CalculateTelling(draft, 0, {kCalculateTrap}), ReturnCode::Calculated);
        EXPECT_TRUE(Figures(draft).at(lastFigure).IsNumber()) << lastFigure;
        EXPECT_TRUE(Figures(draft).at(nextFigure).IsEmptyText()) << nextFigure;
    }
    clsDraft unbound;
    Type(unbound, kWorkedReadings);
    EXPECT_EQ(CalculateTelling(unbound, 0, {kCalculateTrap}), ReturnCode::Calculated);

    clsDraft badQuantity = WorkedDraft(shipID);
    badQuantity.Deduction(24, Value::Null());
    EXPECT_EQ(CalculateTelling(badQuantity, 0, {{.text = "clsDraft::GetTotDeductibles"}}), ReturnCode::Calculated);
    EXPECT_EQ(badQuantity.NetDisplacement().Text(), "22441.68513") << "the quantities as far as they were summed";
}

TEST_F(Calculation, ShortRunTakesTheListCorrectionAloneIntoTheResults)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    clsDraft draft = WorkedDraft(shipID);
    const FigureMap before = Figures(draft);
    draft.ListCorrected(true);
    ASSERT_EQ(draft.Calculate(1), ReturnCode::Calculated);

    const FigureMap after = Figures(draft);
    ExpectFigures(after, kWorkedListCorrection);
    const std::map<std::string, std::string> rises
        = {{"FinalResult(5)", "0.0216"}, {"FinalResult(6)", "-0.000210732"}, {"FinalResult(7)", "0.021389268"}};
    for (const auto &[name, rise] : rises)
        EXPECT_EQ(Round(after.at(name) - before.at(name), 9).Text(), rise) << name;
    for (const auto &[name, value] : before)
        EXPECT_TRUE(rises.contains(name) || kWorkedListCorrection.find(name + "=") != std::string::npos
                    || after.at(name) == value)
            << name;

    draft.ListCorrected(false);
    ASSERT_EQ(draft.Calculate(1), ReturnCode::Calculated);
    for (std::size_t item = 0; item < 10; ++item)
        EXPECT_EQ(draft.FinalResult()[item], before.at("FinalResult(" + std::to_string(item) + ")")) << item;

    // Before a full run there is nothing to take it into.
    clsDraft first = NewDraftOf(shipID);
    Type(first, kWorkedReadings);
    first.ListCorrected(true);
    EXPECT_EQ(CalculateTelling(first, 1, {kCalculateTrap}), ReturnCode::Calculated);
    EXPECT_EQ(first.FinalResult()[4].Text(), "0.0216");
    EXPECT_TRUE(first.NetDisplacement().IsEmptyText());
    clsDraft blank = NewDraftOf(shipID);
    blank.ListCorrected(true);
    EXPECT_EQ(CalculateTelling(blank, 1, {{.text = "clsDraft::CalculateListCorr"}, kCalculateTrap}),
              ReturnCode::Calculated);
}

TEST_F(Calculation, ListCorrectionNeedsOnlyTheRowsAtTheMidshipMarks)
{
    const std::int32_t shipID = AddShip(kWorkedShip);
    clsDraft draft = NewDraftOf(shipID);
    draft.ListCorrected(true);
    const auto type = [&draft](const std::string &midPort, const std::string &midStbd) {
        Type(draft, "1.025 8.1 8.1 " + midPort + " " + midStbd + " 8.1 8.1");
    };
    // Within half a metre of the ends, and the same whichever side is deeper.
    for (const auto &[midPort, midStbd] : {std::pair("8.9", "7.6"), {"7.6", "8.9"}}) {
        type(midPort, midStbd);
        EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
        EXPECT_EQ(draft.FinalResult()[4].Text(), "10.14");
    }
    const std::string tail = " does not exists in Hydrostatic data for the current ship.";
    const struct {
        std::string midPort, midStbd, text;
    } cases[] = {{"7.4", "8.9", "Value of TMD < Midship Port"},
                 {"8.9", "7.4", "Value of TMD < Midship Starboard"},
                 {"9.1", "7.6", "Value of TMD > Midship Port"},
                 {"7.6", "9.1", "Value of TMD > Midship Starboard"}};
    for (const auto &[midPort, midStbd, text] : cases) {
        type(midPort, midStbd);
        EXPECT_EQ(CalculateTelling(draft, 0, {{.text = text + tail, .icon = MsgIcon::Critical}}),
                  ReturnCode::NotCalculated);
        EXPECT_EQ(draft.FinalResult()[4].Text(), "10.14") << "the last correction stays";
    }
    type("8.2", "8.2");
    EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    EXPECT_EQ(draft.FinalResult()[4], Value(std::int16_t {0}));
    EXPECT_EQ(draft.HDTListCorr()[1][2].Text(), "8.5");

    // The factor on show is that of the moments, half a metre above the mark.
    draft.ShipID(AddShip(kUnevenShip));
    EXPECT_EQ(draft.Calculate(0), ReturnCode::Calculated);
    EXPECT_EQ(draft.IpFactorTPCP().Text(), "0.25");
    EXPECT_EQ(draft.ResultantTPCP().Text(), "42.76");
}

#include "tests/core/SurveyTest.h"

#include <sstream>

const ShipData kWorkedShip = {"180.00, -1.20, 0.30, 4.60",
                              {"7.50, 21000, 42.00, -2.00, 420", "8.00, 23100, 42.50, -1.50, 430",
                               "8.50, 25225, 43.00, -1.00, 440", "9.00, 27375, 43.50, -0.50, 450"}};
const ShipData kUnevenShip = {"180, 0, 0, 0",
                              {"9.3, 28700, 43.8, -0.2, 456", "8, 23100, 42.5, -1.5, 430", "7, 18950, 41.5, -2.5, 410",
                               "8, 23110, 42.6, -1.4, 432", "8.5, 25225, 43, -1, 440", "7.2, 19770, 41.7, -2.3, 414"}};
const std::string kWorkedReadings = "1.0150 7.52 7.48 8.03 7.97 8.61 8.59";

std::string Level(const std::string &mark)
{
    std::string readings = "1.025";
    for (int i = 0; i < 6; ++i)
        readings += " " + mark;
    return readings;
}

FigureMap Figures(const clsDraft &draft)
{
    FigureMap figures;
    const auto take = [&figures](const std::string &names, std::initializer_list<Value> values) {
        std::istringstream words(names);
        std::string name;
        for (const Value &value : values)
            figures[words >> name ? name : names] = value;
    };
    take("FwdMean MidMean AftMean", {draft.FwdMean(), draft.MidMean(), draft.AftMean()});
    take("FwdCorrection MidCorrection AftCorrection",
         {draft.FwdCorrection(), draft.MidCorrection(), draft.AftCorrection()});
    take("FwdTrueDraft MidTrueDraft AftTrueDraft", {draft.FwdTrueDraft(), draft.MidTrueDraft(), draft.AftTrueDraft()});
    take("ApparentTrim TrueTrim TrueMeanDraft", {draft.ApparentTrim(), draft.TrueTrim(), draft.TrueMeanDraft()});
    take("IpFactor MCTCPlus50IpFactor MCTCMinus50IpFactor",
         {draft.IpFactor(), draft.MCTCPlus50IpFactor(), draft.MCTCMinus50IpFactor()});
    take("IpFactorTPCP IpValueTPCP ResultantTPCP", {draft.IpFactorTPCP(), draft.IpValueTPCP(), draft.ResultantTPCP()});
    take("IpFactorTPCS IpValueTPCS ResultantTPCS", {draft.IpFactorTPCS(), draft.IpValueTPCS(), draft.ResultantTPCS()});

    const auto takeCells = [&figures](const std::string &table, const auto &cells) {
        for (std::size_t i = 0; i < cells.size(); ++i)
            figures[table + std::to_string(i) + ")"] = cells[i];
    };
    for (const std::size_t row : {0U, 1U, 2U}) {
        takeCells("HDT(" + std::to_string(row) + ",", draft.HDT()[row]);
        takeCells("HDTListCorr(" + std::to_string(row) + ",", draft.HDTListCorr()[row]);
    }
    takeCells("IpResult(0,", draft.IpResult()[0]);
    takeCells("IpResult(1,", draft.IpResult()[1]);
    takeCells("FinalResult(", draft.FinalResult());
    return figures;
}

void ExpectFigures(const FigureMap &figures, const std::string &list)
{
    std::istringstream entries(list);
    for (std::string name, digits; std::getline(entries >> std::ws, name, '=') && entries >> digits;) {
        const std::string text = figures.at(name).SqlText();
        const std::size_t given = digits.find("...");
        EXPECT_EQ(given == std::string::npos ? text : text.substr(0, given), digits.substr(0, given)) << name;
    }
}

std::int32_t SurveyTest::AddShip(const ShipData &ship)
{
    Run("INSERT INTO Port (PortName) VALUES('Singapore')");
    Run("INSERT INTO Ship (ShipName, LightShip, PortOfRegistry, LBP, FwdX, MidX, AftX) "
        "SELECT 'MV Try', 5000.5, MAX(PortID), "
        + ship.lengths + " FROM Port");
    for (const std::string &row : ship.rows)
        Run("INSERT INTO HydrostaticDataTable (ShipID, TMD, Displacement, TPC, LCF, MCTC) SELECT MAX(ShipID), " + row
            + " FROM Ship");
    return Ask("SELECT MAX(ShipID) FROM Ship").ToLong();
}

std::int32_t SurveyTest::AddSurvey(std::int32_t shipID, const std::string &voyage)
{
    Run("INSERT INTO DraftParticulars (ShipID, VoyageID, PortID, IsLoading) SELECT " + std::to_string(shipID) + ", '"
        + voyage + "', MAX(PortID), True FROM Port");
    return Ask("SELECT MAX(RecordID) FROM DraftParticulars").ToLong();
}

clsDraft SurveyTest::NewDraftOf(std::int32_t shipID, std::int16_t type)
{
    clsDraft draft;
    draft.DraftType(type);
    draft.ShipID(shipID);
    return draft;
}

void SurveyTest::Type(clsDraft &draft, const std::string &readings)
{
    using Setter = void (clsDraft::*)(const Value &);
    std::istringstream texts(readings);
    std::string text;
    for (const Setter set : {Setter(&clsDraft::SpecificGravity), Setter(&clsDraft::FwdPort), Setter(&clsDraft::FwdStbd),
                             Setter(&clsDraft::MidPort), Setter(&clsDraft::MidStbd), Setter(&clsDraft::AftPort),
                             Setter(&clsDraft::AftStbd)})
        if (texts >> text)
            (draft.*set)(text);
}

clsDraft SurveyTest::WorkedDraft(std::int32_t shipID, std::int16_t type, const std::string &readings)
{
    clsDraft draft = NewDraftOf(shipID, type);
    Type(draft, readings);
    draft.Deduction(2, Decimal::Parse("350"));
    draft.Deduction(3, Decimal::Parse("120.5"));
    EXPECT_EQ(draft.Calculate(0), 0);
    return draft;
}

std::int32_t SurveyTest::CalculateTelling(clsDraft &draft, std::int16_t mode, const std::vector<Message> &messages)
{
    for (const Message &message : messages)
        mMessages.Expect(message);
    const std::int32_t code = draft.Calculate(mode);
    mMessages.ExpectNoneLeft();
    return code;
}

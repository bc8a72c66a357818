#include "reports/ReportFilling.h"

#include "reports/Report.h"

#include <QString>

#include <algorithm>
#include <string_view>

namespace
{
constexpr std::string_view kMetres = " m";
constexpr std::string_view kTonnes = " MT";

struct ItemLabel {
    std::int32_t itemID;
    std::string_view ending;
};

// The second miscellaneous item goes to the first one's label too, and is meant to.
constexpr std::array kItemLabels {ItemLabel {2, "FO"},     ItemLabel {3, "DO"},       ItemLabel {24, "LO"},
                                  ItemLabel {25, "FW"},    ItemLabel {26, "Ballast"}, ItemLabel {27, "Provisions"},
                                  ItemLabel {28, "Misc1"}, ItemLabel {29, "Misc1"}};

constexpr std::size_t kTrueDisplacement = 7;
constexpr std::size_t kTotalDeductibles = 8;
constexpr std::size_t kNetDisplacement = 9;

Value Rounded(const Value &value, int places)
{
    return value.IsAbsent() ? value : Round(value, places);
}

void FillShip(Report &report, const ReportedShip &ship)
{
    const auto fill = [&report](std::string_view label, const Value &value, std::string_view unit = {}) {
        report.Caption(label, value.Text().append(unit));
    };
    fill("lblShipName", QString::fromStdString(ship.name).toUpper().toStdString());
    fill("lblCallSign", ship.callSign);
    fill("lblGrossTonnage", ship.grossTonnage);
    fill("lblPortOfRegistry", ship.portOfRegistry);
    fill("lblNetTonnage", ship.netTonnage);
    fill("lblOfficialNo", ship.officialNo);
    fill("lblSummerDraft", ship.summerDraft, kMetres);
    fill("lblFlag", ship.flag);
    fill("lblSummerDeadweight", ship.summerDeadweight, kTonnes);
    fill("lblLOA", ship.loa, kMetres);
    fill("lblBreadth", ship.breadth, kMetres);
    fill("lblFwdX", ship.fwdX, kMetres);
    fill("lblLBP", ship.lbp, kMetres);
    fill("lblLightShip", ship.lightShip, kTonnes);
    fill("lblAftX", ship.aftX, kMetres);
}

/// One of the two columns of figures.
class Column
{
public:
    Column(Report &report, std::string_view prefix, const ReportedDraft &draft)
        : mReport(report)
        , mPrefix(prefix)
        , mDraft(draft)
    {
    }

    /// totalDeductibles: what the first row of that name shows.
    void Fill(const Value &totalDeductibles) const
    {
        Fill("Date", mDraft.date);
        Fill("Time", mDraft.time);
        FillDeductions();
        FillDrafts();
        FillHydrostatics();
        Fill("TotDeductibles", totalDeductibles, kTonnes);
        FillDisplacements();
        Fill("Comments", mDraft.comments);
    }

private:
    void Fill(std::string_view ending, const Value &value, std::string_view unit = {}) const
    {
        mReport.Caption(std::string(mPrefix).append(ending), value.Text().append(unit));
    }

    void FillDeductions() const
    {
        for (const auto &[itemID, quantity] : mDraft.deductions) {
            const auto label = std::ranges::find(kItemLabels, itemID, &ItemLabel::itemID);
            if (label != kItemLabels.end())
                Fill(label->ending, quantity, kTonnes);
        }
    }

    void FillDrafts() const
    {
        Fill("FwdMeanDraft", Rounded(mDraft.fwdMean, 3), kMetres);
        Fill("FwdCorrection", Rounded(mDraft.fwdCorrection, 3), kMetres);
        Fill("CorrDraftFwd", Rounded(mDraft.fwdTrueDraft, 3), kMetres);
        Fill("AftMeanDraft", Rounded(mDraft.aftMean, 3), kMetres);
        Fill("AftCorrection", Rounded(mDraft.aftCorrection, 3), kMetres);
        Fill("CorrDraftAft", Rounded(mDraft.aftTrueDraft, 3), kMetres);
        const bool measured = !mDraft.fwdMean.IsAbsent();
        Fill("FwdAftMean", measured ? (mDraft.fwdMean + mDraft.aftMean) / Value(std::int16_t {2}) : Value(), kMetres);
        Fill("MidPortDraft", mDraft.midPort, kMetres);
        Fill("MidStbdDraft", mDraft.midStbd, kMetres);
        Fill("MeanMidDraft", Rounded(mDraft.midMean, 3), kMetres);
        if (measured)
            FillDeflection();
        Fill("TrueMeanDraft", Rounded(mDraft.trueMeanDraft, 8), kMetres);
    }

    /// Centimetres by which the midships draft is above (sag) or below (hog) the mean of the ends.
    void FillDeflection() const
    {
        const Value zero(std::int16_t {0});
        const Value deflection
            = Value(std::int16_t {50}) * (Value(std::int16_t {2}) * mDraft.midMean - mDraft.aftMean - mDraft.fwdMean);
        if (deflection > zero)
            Fill("Deflection", "Sag " + deflection.Text() + " cm");
        else if (deflection < zero)
            Fill("Deflection", "Hog " + (Value(std::int16_t {-1}) * deflection).Text() + " cm");
    }

    void FillHydrostatics() const
    {
        const auto &[displacement, tpc, lcf, mctcPlus50, mctcMinus50] = mDraft.hydrostatics;
        Fill("TPC", tpc);
        Fill("LCF", lcf);
        Fill("dMCTC", mctcPlus50.IsAbsent() ? Value() : mctcPlus50 - mctcMinus50);
    }

    void FillDisplacements() const
    {
        const auto &items = mDraft.finalResult;
        Fill("DispInSeaWater", Rounded(items[0], 5), kTonnes);
        Fill("1stTrimCorr", Rounded(items[1], 4), kTonnes);
        Fill("2ndTrimCorr", Rounded(items[2], 4), kTonnes);
        Fill("TotTrimCorr", Rounded(items[3], 4), kTonnes);
        Fill("DispAtEvenKeel", Rounded(items[5], 5), kTonnes);
        Fill("Density", mDraft.density);
        Fill("TrueDisplacement", Rounded(items[kTrueDisplacement], 5), kTonnes);
        Fill("TotDeductibles2", Rounded(items[kTotalDeductibles], 5), kTonnes);
        Fill("NGDisp", Rounded(items[kNetDisplacement], 5), kTonnes);
    }

    Report &mReport;
    std::string_view mPrefix;
    const ReportedDraft &mDraft;
};

void FillHead(Report &report, std::string_view title, const ReportedSurvey &survey)
{
    // Nothing of the survey that was filled in before.
    report.Unload();
    report.Caption("lblReportTitle", title);
    FillShip(report, survey.ship);
    report.Caption("lblVoyageID", survey.voyage);
    report.Caption("lblCargo", survey.cargo);
    if (survey.port)
        report.Caption("lblPortName", *survey.port);
}

void FillInitial(Report &report, const ReportedDraft &draft)
{
    Column(report, "lblInit", draft).Fill(Rounded(draft.finalResult[kTotalDeductibles], 5));
}

void FillFinal(Report &report, const ReportedDraft &draft)
{
    // The net displacement in the total's row, and meant to be.
    Column(report, "lblFin", draft).Fill(Rounded(draft.finalResult[kNetDisplacement], 5));
}

void FillConstant(Report &report, const ReportedDraft &draft, const ReportedShip &ship)
{
    report.Caption("lblConstant", (draft.finalResult[kNetDisplacement] - ship.lightShip).Text().append(kTonnes));
}

void FillCargo(Report &report, const ReportedDraft &heavier, const ReportedDraft &lighter)
{
    const Value cargo = heavier.finalResult[kNetDisplacement] - lighter.finalResult[kNetDisplacement];
    report.Caption("lblTotCargoLoaded", Round(cargo, 5).Text().append(kTonnes));
}
} // namespace

void FillLoadportReport(Report &report, const ReportedSurvey &survey)
{
    FillHead(report, "LOADPORT DRAFT SURVEY REPORT", survey);
    FillInitial(report, survey.initial);
    FillConstant(report, survey.initial, survey.ship);
    if (survey.final) {
        FillFinal(report, *survey.final);
        FillCargo(report, *survey.final, survey.initial);
    }
    report.Caption("lblShipName2", survey.ship.name);
}

void FillDischargePortReport(Report &report, const ReportedSurvey &survey)
{
    FillHead(report, "DISCHARGE PORT DRAFT SURVEY REPORT", survey);
    FillInitial(report, survey.initial);
    if (survey.final) {
        FillFinal(report, *survey.final);
        FillConstant(report, *survey.final, survey.ship);
        FillCargo(report, survey.initial, *survey.final);
    }
    report.Caption("lblShipName2", survey.ship.name);
}

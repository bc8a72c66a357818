#include "reports/ReportFilling.h"

#include "core/HullDeflection.h"
#include "core/Survey.h"
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

void FillShip(Report &report, const clsShip &ship, const std::string &portOfRegistry)
{
    const auto fill = [&report](std::string_view label, const Value &value, std::string_view unit = {}) {
        report.Caption(label, value.Text().append(unit));
    };
    fill("lblShipName", QString::fromStdString(ship.ShipName()).toUpper().toStdString());
    fill("lblCallSign", ship.CallSign());
    fill("lblGrossTonnage", ship.GrossTonnage());
    fill("lblPortOfRegistry", portOfRegistry);
    fill("lblNetTonnage", ship.NetTonnage());
    fill("lblOfficialNo", ship.OfficialNo());
    fill("lblSummerDraft", ship.SummerDraft(), kMetres);
    fill("lblFlag", ship.Flag());
    fill("lblSummerDeadweight", ship.SummerDeadweight(), kTonnes);
    fill("lblLOA", ship.LOA(), kMetres);
    fill("lblBreadth", ship.Breadth(), kMetres);
    fill("lblFwdX", ship.FwdX(), kMetres);
    fill("lblLBP", ship.LBP(), kMetres);
    fill("lblLightShip", ship.LightShip(), kTonnes);
    fill("lblAftX", ship.AftX(), kMetres);
}

/// One of the two columns of figures.
class Column
{
public:
    Column(Report &report, std::string_view prefix, const clsDraft &draft)
        : mReport(report)
        , mPrefix(prefix)
        , mDraft(draft)
    {
    }

    /// totalDeductibles: what the first row of that name shows.
    void Fill(const Value &totalDeductibles) const
    {
        Fill("Date", mDraft.DSDate());
        Fill("Time", mDraft.DSTime());
        FillDeductions();
        FillDrafts();
        FillHydrostatics();
        Fill("TotDeductibles", totalDeductibles, kTonnes);
        FillDisplacements();
        Fill("Comments", mDraft.Comments());
    }

private:
    void Fill(std::string_view ending, const Value &value, std::string_view unit = {}) const
    {
        mReport.Caption(std::string(mPrefix).append(ending), value.Text().append(unit));
    }

    void FillDeductions() const
    {
        for (const auto &[itemID, quantity] : mDraft.Quantities()) {
            const auto label = std::ranges::find(kItemLabels, itemID.ToLong(), &ItemLabel::itemID);
            if (label != kItemLabels.end())
                Fill(label->ending, quantity, kTonnes);
        }
    }

    void FillDrafts() const
    {
        Fill("FwdMeanDraft", RoundIfPresent(mDraft.FwdMean(), 3), kMetres);
        Fill("FwdCorrection", RoundIfPresent(mDraft.FwdCorrection(), 3), kMetres);
        Fill("CorrDraftFwd", RoundIfPresent(mDraft.FwdTrueDraft(), 3), kMetres);
        Fill("AftMeanDraft", RoundIfPresent(mDraft.AftMean(), 3), kMetres);
        Fill("AftCorrection", RoundIfPresent(mDraft.AftCorrection(), 3), kMetres);
        Fill("CorrDraftAft", RoundIfPresent(mDraft.AftTrueDraft(), 3), kMetres);
        const bool measured = !mDraft.FwdMean().IsAbsent();
        Fill("FwdAftMean", measured ? (mDraft.FwdMean() + mDraft.AftMean()) / Value(std::int16_t {2}) : Value(),
             kMetres);
        Fill("MidPortDraft", mDraft.MidPort(), kMetres);
        Fill("MidStbdDraft", mDraft.MidStbd(), kMetres);
        Fill("MeanMidDraft", RoundIfPresent(mDraft.MidMean(), 3), kMetres);
        if (measured)
            FillDeflection();
        Fill("TrueMeanDraft", RoundIfPresent(mDraft.TrueMeanDraft(), 8), kMetres);
    }

    void FillDeflection() const
    {
        const Value deflection = HullDeflection(mDraft.FwdMean(), mDraft.MidMean(), mDraft.AftMean());
        if (deflection != Value::Zero())
            Fill("Deflection", DeflectionWord(deflection) + (" " + Abs(deflection).Text()) + " cm");
    }

    void FillHydrostatics() const
    {
        const auto &[displacement, tpc, lcf, mctcPlus50, mctcMinus50] = mDraft.IpResult()[1];
        Fill("TPC", tpc);
        Fill("LCF", lcf);
        Fill("dMCTC", mctcPlus50.IsAbsent() ? Value() : mctcPlus50 - mctcMinus50);
    }

    void FillDisplacements() const
    {
        const auto &items = mDraft.FinalResult();
        Fill("DispInSeaWater", RoundIfPresent(items[0], 5), kTonnes);
        Fill("1stTrimCorr", RoundIfPresent(items[1], 4), kTonnes);
        Fill("2ndTrimCorr", RoundIfPresent(items[2], 4), kTonnes);
        Fill("TotTrimCorr", RoundIfPresent(items[3], 4), kTonnes);
        Fill("DispAtEvenKeel", RoundIfPresent(items[5], 5), kTonnes);
        Fill("Density", mDraft.SpecificGravity());
        Fill("TrueDisplacement", RoundIfPresent(items[kTrueDisplacement], 5), kTonnes);
        Fill("TotDeductibles2", RoundIfPresent(items[kTotalDeductibles], 5), kTonnes);
        Fill("NGDisp", RoundIfPresent(mDraft.NetDisplacement(), 5), kTonnes);
    }

    Report &mReport;
    std::string_view mPrefix;
    const clsDraft &mDraft;
};

void FillHead(Report &report, std::string_view title, const Survey &survey, const ReportedHeader &header)
{
    // Nothing of the survey that was filled in before.
    report.Unload();
    report.Caption("lblReportTitle", title);
    FillShip(report, survey.Ship(), header.portOfRegistry);
    report.Caption("lblVoyageID", header.voyage);
    report.Caption("lblCargo", header.cargo);
    if (header.port)
        report.Caption("lblPortName", *header.port);
}

const Value &NetDisplacementOf(const Survey &survey, const Stage &stage)
{
    return survey.Draft(stage).NetDisplacement();
}

void FillInitial(Report &report, const Survey &survey)
{
    const clsDraft &draft = survey.Draft(Stage::Initial);
    Column(report, "lblInit", draft).Fill(RoundIfPresent(draft.FinalResult()[kTotalDeductibles], 5));
}

void FillFinal(Report &report, const Survey &survey)
{
    const clsDraft &draft = survey.Draft(Stage::Final);
    // The net displacement in the total's row, and meant to be.
    Column(report, "lblFin", draft).Fill(RoundIfPresent(draft.NetDisplacement(), 5));
}

void FillConstant(Report &report, const Survey &survey, const Stage &stage)
{
    const Value constant = NetDisplacementOf(survey, stage) - survey.Ship().LightShip();
    report.Caption("lblConstant", constant.Text().append(kTonnes));
}

void FillCargo(Report &report, const Survey &survey, const Stage &heavier, const Stage &lighter)
{
    const Value cargo = NetDisplacementOf(survey, heavier) - NetDisplacementOf(survey, lighter);
    report.Caption("lblTotCargoLoaded", Round(cargo, 5).Text().append(kTonnes));
}
} // namespace

void FillLoadportReport(Report &report, const Survey &survey, const ReportedHeader &header)
{
    FillHead(report, "LOADPORT DRAFT SURVEY REPORT", survey, header);
    FillInitial(report, survey);
    FillConstant(report, survey, Stage::Initial);
    if (survey.Draft(Stage::Final).IsThere()) {
        FillFinal(report, survey);
        FillCargo(report, survey, Stage::Final, Stage::Initial);
    }
    report.Caption("lblShipName2", survey.Ship().ShipName());
}

void FillDischargePortReport(Report &report, const Survey &survey, const ReportedHeader &header)
{
    FillHead(report, "DISCHARGE PORT DRAFT SURVEY REPORT", survey, header);
    FillInitial(report, survey);
    if (survey.Draft(Stage::Final).IsThere()) {
        FillFinal(report, survey);
        FillConstant(report, survey, Stage::Final);
        FillCargo(report, survey, Stage::Initial, Stage::Final);
    }
    report.Caption("lblShipName2", survey.Ship().ShipName());
}

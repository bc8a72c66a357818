#include "survey/SurveyReport.h"

#include "core/numeric/RuntimeError.h"
#include "survey/SurveyLists.h"

namespace
{
ReportedShip ShipOf(const clsShip &ship, SurveyLists &lists)
{
    return {.name = ship.ShipName(),
            .callSign = ship.CallSign(),
            .flag = ship.Flag(),
            .portOfRegistry = lists.PortText(ship.PortOfRegistry()),
            .officialNo = ship.OfficialNo(),
            .grossTonnage = ship.GrossTonnage(),
            .netTonnage = ship.NetTonnage(),
            .summerDraft = ship.SummerDraft(),
            .summerDeadweight = ship.SummerDeadweight(),
            .loa = ship.LOA(),
            .lbp = ship.LBP(),
            .breadth = ship.Breadth(),
            .fwdX = ship.FwdX(),
            .aftX = ship.AftX(),
            .lightShip = ship.LightShip()};
}

std::vector<std::pair<std::int32_t, Value>> QuantitiesOf(const clsDraft &draft)
{
    const std::vector<ItemQuantity> *quantities = draft.Deductions();
    if (!quantities)
        throw RuntimeError(StoreError::WrongState, "The quantities of the draft could not be read.");
    std::vector<std::pair<std::int32_t, Value>> reported;
    for (const ItemQuantity &each : *quantities)
        reported.emplace_back(each.itemID.ToLong(), each.quantity);
    return reported;
}

ReportedDraft DraftOf(const clsDraft &draft)
{
    return {.date = draft.DSDate(),
            .time = draft.DSTime(),
            .comments = draft.Comments(),
            .density = draft.SpecificGravity(),
            .deductions = QuantitiesOf(draft),
            .fwdMean = draft.FwdMean(),
            .midMean = draft.MidMean(),
            .aftMean = draft.AftMean(),
            .fwdCorrection = draft.FwdCorrection(),
            .aftCorrection = draft.AftCorrection(),
            .fwdTrueDraft = draft.FwdTrueDraft(),
            .aftTrueDraft = draft.AftTrueDraft(),
            .midPort = draft.MidPort(),
            .midStbd = draft.MidStbd(),
            .trueMeanDraft = draft.TrueMeanDraft(),
            .hydrostatics = draft.IpResult()[1],
            .finalResult = draft.FinalResult()};
}
} // namespace

ReportedSurvey ReportOf(const Survey &survey, const SurveyHeader &header, SurveyLists &lists)
{
    const clsDraft &final = survey.Draft(Stage::Final);
    ReportedSurvey reported {.ship = ShipOf(survey.Ship(), lists),
                             .voyage = header.voyageID,
                             .cargo = header.cargo,
                             .port = {},
                             .initial = DraftOf(survey.Draft(Stage::Initial)),
                             .final = {}};
    if (!header.portID.IsAbsent())
        reported.port = lists.PortText(header.portID);
    if (final.IsThere())
        reported.final = DraftOf(final);
    return reported;
}

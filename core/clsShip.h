#pragma once

#include "core/numeric/Value.h"
#include "frame/store/Recordset.h"

#include <cstdint>
#include <string>

/// A read-only view of one row of the table Ship. Lengths are in metres, weights in tonnes.
///
/// Each property reads its column at the moment it is called. Before SetShip that raises NoObject (91), for a ship
/// that is not in the store NoCurrentRow. An X is the distance of draft marks from their perpendicular (MidX: from
/// midships), positive toward the bow.
class clsShip
{
public:
    /// ReturnCode::Success, also for a ship that is not in the store. After a run-time error, whose message has been
    /// shown, ReturnCode::ShipNotSet; the view is then of the row that it was of.
    std::int32_t SetShip(std::int32_t shipID);

    /// Distance between the forward and aft draft marks: LBP + FwdX - AftX. The integer 0 where there is no ship.
    [[nodiscard]] Value GetDistBetDraftMarks() const;

    [[nodiscard]] Value SummerDeadweight() const { return Column("SummerDeadweight"); }
    [[nodiscard]] Value SummerDraft() const { return Column("SummerDraft"); }
    [[nodiscard]] Value NetTonnage() const { return Column("NetTonnage"); }
    [[nodiscard]] Value GrossTonnage() const { return Column("GrossTonnage"); }
    [[nodiscard]] std::string Flag() const { return Column("Flag").Text(); }
    [[nodiscard]] Value IMONo() const { return Column("IMONo"); }
    [[nodiscard]] Value OfficialNo() const { return Column("OfficialNo"); }
    /// The PortID of the port of registry.
    [[nodiscard]] Value PortOfRegistry() const { return Column("PortOfRegistry"); }
    [[nodiscard]] std::string CallSign() const { return Column("CallSign").Text(); }
    [[nodiscard]] Value LightShip() const { return Column("LightShip"); }
    [[nodiscard]] Value AftX() const { return Column("AftX"); }
    [[nodiscard]] Value MidX() const { return Column("MidX"); }
    [[nodiscard]] Value FwdX() const { return Column("FwdX"); }
    [[nodiscard]] Value Breadth() const { return Column("Breadth"); }
    [[nodiscard]] Value LOA() const { return Column("LOA"); }
    [[nodiscard]] Value LBP() const { return Column("LBP"); }
    [[nodiscard]] std::string ShipName() const { return Column("ShipName").Text(); }
    [[nodiscard]] std::int32_t ShipID() const { return Column("ShipID").ToLong(); }

private:
    [[nodiscard]] Value Column(std::string_view name) const;

    Recordset mRow;
};

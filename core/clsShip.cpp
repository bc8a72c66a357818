#include "core/clsShip.h"

#include "core/MsgBox.h"
#include "core/ReturnCode.h"

std::int32_t clsShip::SetShip(std::int32_t shipID)
try {
    auto row = std::make_unique<Recordset>();
    row->Open("SELECT Ship.* FROM Ship WHERE Ship.ShipID = " + std::to_string(shipID), CursorType::Dynamic,
              LockType::BatchOptimistic);
    mRow = std::move(row);
    return ReturnCode::Success;
} catch (const RuntimeError &) {
    // The two sentences run together on purpose.
    MsgBox("An internal error has occured."
           "Please contact us with the error code on the titlebar of this dialog box.",
           MsgIcon::Critical, "Keelmark-10105");
    return ReturnCode::ShipNotSet;
}

Value clsShip::GetDistBetDraftMarks() const
{
    if (!mRow || mRow->State() != 1 || mRow->RecordCount() < 1)
        return std::int16_t {0};
    return LBP() + FwdX() - AftX();
}

Value clsShip::Column(std::string_view name) const
{
    if (!mRow)
        throw RuntimeError(ErrorNumber::NoObject);
    return mRow->Fields(name);
}

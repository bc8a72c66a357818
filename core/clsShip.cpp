#include "core/clsShip.h"

#include "core/MsgBox.h"
#include "core/ReturnCode.h"

std::int32_t clsShip::SetShip(std::int32_t shipID)
try {
    mRow.Reopen("SELECT Ship.* FROM Ship WHERE Ship.ShipID = " + std::to_string(shipID), CursorType::Dynamic,
                LockType::BatchOptimistic);
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
    if (!mRow.HasRows())
        return Value::Zero();
    return LBP() + FwdX() - AftX();
}

Value clsShip::Column(std::string_view name) const
{
    if (!mRow.IsOpen())
        throw RuntimeError(ErrorNumber::NoObject);
    return mRow.Fields(name);
}

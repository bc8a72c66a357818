#pragma once

#include "core/clsDraft.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestStore.h"

#include <map>
#include <string>
#include <vector>

/// A ship as texts for the store: LBP, FwdX, MidX, AftX; rows by TMD, Displacement, TPC, LCF, MCTC in the order in
/// which they are stored.
struct ShipData {
    std::string lengths;
    std::vector<std::string> rows;
};

extern const ShipData kWorkedShip;
/// Rows at uneven steps and two of the same draft, stored out of order.
extern const ShipData kUnevenShip;

/// What is read on board, with blanks between: density, FwdPort, FwdStbd, MidPort, MidStbd, AftPort, AftStbd.
extern const std::string kWorkedReadings;
/// Standard sea water, every mark the same.
std::string Level(const std::string &mark);

/// All that a calculation gives, by name: "TrueTrim", "HDT(0,1)", "FinalResult(9)".
using FigureMap = std::map<std::string, Value>;
FigureMap Figures(const clsDraft &draft);
/// Holds figures against a list such as "TrueTrim=1.1366... FinalResult(9)=22441.68513"; "..." stands for more digits.
void ExpectFigures(const FigureMap &figures, const std::string &list);

/// What the tests of a survey share: a store of their own, a script for the message boxes, ships and drafts to try.
class SurveyTest : public TestStore
{
protected:
    std::int32_t AddShip(const ShipData &ship);
    /// A survey of that ship; its RecordID.
    std::int32_t AddSurvey(std::int32_t shipID, const std::string &voyage = "1");

    static clsDraft NewDraftOf(std::int32_t shipID, std::int16_t type = DraftTypeCode::Initial);
    static void Type(clsDraft &draft, const std::string &readings);
    /// Typed and calculated, with deductions of 350 and 120.5.
    static clsDraft WorkedDraft(std::int32_t shipID, std::int16_t type = DraftTypeCode::Initial,
                                const std::string &readings = kWorkedReadings);
    /// The code of a calculation during which these boxes come and no others.
    std::int32_t CalculateTelling(clsDraft &draft, std::int16_t mode, const std::vector<Message> &messages);

    MessageScript mMessages;
};

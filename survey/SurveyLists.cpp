#include "survey/SurveyLists.h"

#include "frame/controls/ScreenText.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyMessages.h"

#include <QSignalBlocker>

namespace
{
/// dd-MM-yyyy and HH:mm out of the twelve digits of the column DateTime.
constexpr std::string_view kDate
    = "(substr(DD.DateTime,7,2) || '-' || substr(DD.DateTime,5,2) || '-' || substr(DD.DateTime,1,4))";
constexpr std::string_view kTime = "(substr(DD.DateTime,9,2) || ':' || substr(DD.DateTime,-2))";

std::string DailyDraftsOf(const Survey &survey)
{
    // Ordered by the text of the date, as this list always was: 02-03-2024 comes before 15-01-2024.
    return " FROM DraftDetails AS DD WHERE DD.RecordID = " + std::to_string(survey.RecordID())
        + " AND DD.DraftType = 2 ORDER BY " + std::string(kDate) + " ASC";
}
} // namespace

SurveyLists::SurveyLists(const Ui::SurveyWindow &controls, const Survey &survey)
    : ui(controls)
    , mSurvey(survey)
{
}

void SurveyLists::UseBaselines(QComboBox &list, std::function<void()> picked)
{
    mBaselines = &list;
    mBaselinePicked = std::move(picked);
    QObject::connect(&list, &QComboBox::activated, &list, [this] { PickBaseline(); });
}

void SurveyLists::Fill(DataCombo &list, Recordset &rows, const std::string &sql, const char *shown, const char *bound,
                       const char *source)
try {
    rows.Reopen(sql, CursorType::Dynamic, LockType::BatchOptimistic);
    list.SetRows(rows, shown, bound);
} catch (const RuntimeError &error) {
    TellSource(error, source);
}

void SurveyLists::InitShipDataCombo()
{
    Fill(*ui.dcbShip, mRsShip, "SELECT * FROM Ship ORDER BY ShipName", "ShipName", "ShipID", "InitShipDataCombo");
}

void SurveyLists::InitVoyageIDDataCombo()
{
    Fill(*ui.dcbVoyageID, mRsVoyage,
         "SELECT DISTINCT VoyageID FROM DraftParticulars WHERE isLoading = "
             + std::string(mSurvey.Direction().isLoading) + " ORDER BY VoyageID",
         "VoyageID", "", "InitVoyageIDDataCombo");
}

void SurveyLists::InitPortDataCombo()
{
    Fill(*ui.dcbPort, mRsPort, "SELECT * FROM Port ORDER BY PortName", "PortName", "PortID", "InitPortDataCombo");
}

void SurveyLists::InitDateDataCombo()
{
    Fill(*ui.dcbDate, mRsDate, "SELECT DISTINCT " + std::string(kDate) + " AS DSDate" + DailyDraftsOf(mSurvey),
         "DSDate", "", "InitDateDataCombo");
}

void SurveyLists::FillTimes(const QString &date)
{
    mRsTime.Reopen("SELECT DISTINCT " + std::string(kDate) + " AS DSDate, " + std::string(kTime) + " AS DSTime"
                       + DailyDraftsOf(mSurvey),
                   CursorType::Static, LockType::ReadOnly);
    ui.cmbTime->clear();
    if (!mRsTime.HasRows())
        return;
    mRsTime.Filter("DSDate = " + date.toStdString());
    for (const Recordset::Row &row : mRsTime.EachRow())
        ui.cmbTime->addItem(ScreenText(row.Fields("DSTime")));
    mRsTime.Filter("");
    ui.cmbTime->setCurrentIndex(-1);
}

void SurveyLists::InitTimeDataCombo()
try {
    FillTimes(QString::fromStdString(mSurvey.Draft(Stage::Daily).DSDate()));
} catch (const RuntimeError &error) {
    TellSource(error, "InitTimeDataCombo");
}

void SurveyLists::ShowTimesOfPickedDate()
try {
    FillTimes(ui.dcbDate->Text());
} catch (const RuntimeError &error) {
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  dcbDate::Change"), MsgIcon::Critical);
}

void SurveyLists::InitDateTimedatacombo()
try {
    mRsDailyList.Reopen("SELECT (" + std::string(kDate) + " || ' ' || " + std::string(kTime)
                            + ") AS [DateTime], NetDisplacement, DraftType FROM DraftDetails AS DD WHERE RecordID = "
                            + std::to_string(mSurvey.RecordID())
                            + " AND (DraftType = 0 or DraftType = 2) ORDER BY DD.DraftType, DD.DateTime",
                        CursorType::Keyset, LockType::BatchOptimistic);
    if (!mRsDailyList.HasRows())
        return;
    {
        const QSignalBlocker quiet(mBaselines);
        mBaselines->clear();
        // The first row is the Initial draft's, whatever its date.
        for (const Recordset::Row &row : mRsDailyList.EachRow())
            mBaselines->addItem(ScreenText(row.Fields("DateTime")));
        mBaselines->setItemText(0, QStringLiteral("Initial Draft"));
    }
    PickFirstBaseline();
} catch (const RuntimeError &error) {
    TellSource(error, "InitDateTimedatacombo");
}

void SurveyLists::PickFirstBaseline()
{
    if (mBaselines->count() == 0)
        return;
    {
        const QSignalBlocker quiet(mBaselines);
        mBaselines->setCurrentIndex(0);
    }
    PickBaseline();
}

void SurveyLists::PickBaseline()
{
    // The drafts that the list names may be gone.
    if (mRsDailyList.HasRows())
        mBaselinePicked();
}

void SurveyLists::FindShip(const Value &shipID)
{
    mRsShip.FindFirst("ShipID = " + shipID.SqlText());
}

bool SurveyLists::InitialIsBaseline() const
{
    return mBaselines->currentText() == QLatin1String("Initial Draft");
}

Value SurveyLists::BaselineNetDisplacement()
{
    mRsDailyList.MoveFirst();
    if (!InitialIsBaseline())
        mRsDailyList.Move(mBaselines->currentIndex(), Recordset::kBookmarkFirst);
    return mRsDailyList.Fields("NetDisplacement");
}

std::string SurveyLists::PortText(const Value &portID)
{
    const std::string criterion = "PortID = " + portID.SqlText();
    mRsPort.FindFirst(criterion);
    if (mRsPort.AtEnd()) {
        mRsPort.Requery();
        mRsPort.FindFirst(criterion);
    }
    return mRsPort.Fields("PortName").Text() + ", " + TextOrEmpty(mRsPort.Fields("Country"));
}

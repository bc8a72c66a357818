#pragma once

#include "core/Survey.h"
#include "frame/store/Recordset.h"

#include <functional>
#include <string>

class DataCombo;
class QComboBox;
class QString;

namespace Ui
{
class SurveyWindow;
}

/// The lists that a survey is picked from, each with the rows behind it. A list that cannot be filled stays as it was,
/// and a message tells so.
class SurveyLists
{
public:
    SurveyLists(const Ui::SurveyWindow &controls, const Survey &survey);
    /// The list of drafts whose cargo the Daily figures are compared with, and what a new pick there sets off.
    void UseBaselines(QComboBox &list, std::function<void()> picked);

    void InitShipDataCombo();
    void InitVoyageIDDataCombo();
    void InitPortDataCombo();
    /// Dates of the stored Daily drafts.
    void InitDateDataCombo();
    /// Times of those on the date of the survey's Daily draft.
    void InitTimeDataCombo();
    /// Times of those on the date that was picked.
    void ShowTimesOfPickedDate();
    /// Drafts to compare with; picks the first.
    void InitDateTimedatacombo();
    /// Picks the first draft to compare with, where there is one.
    void PickFirstBaseline();

    /// The row of a ship becomes the list's current one.
    void FindShip(const Value &shipID);
    /// Light ship of the list's current row, tonnes.
    [[nodiscard]] Value LightShipOfRow() const { return mRsShip.Fields("LightShip"); }
    [[nodiscard]] bool InitialIsBaseline() const;
    /// Net displacement in the store of the draft to compare with, tonnes. NoCurrentRow where there is none.
    [[nodiscard]] Value BaselineNetDisplacement();
    /// "Name, Country" of a port, also of one added since the list was filled. NoCurrentRow where there is none.
    [[nodiscard]] std::string PortText(const Value &portID);

private:
    static void Fill(DataCombo &list, Recordset &rows, const std::string &sql, const char *shown, const char *bound,
                     const char *source);
    void FillTimes(const QString &date);
    void PickBaseline();

    const Ui::SurveyWindow &ui;
    const Survey &mSurvey;
    QComboBox *mBaselines = nullptr;
    std::function<void()> mBaselinePicked;
    Recordset mRsShip;
    Recordset mRsVoyage;
    Recordset mRsPort;
    Recordset mRsDate;
    Recordset mRsTime;
    Recordset mRsDailyList;
};

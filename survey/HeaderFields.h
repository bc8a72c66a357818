#pragma once

#include "core/Survey.h"
#include "reports/ReportFilling.h"

#include <string>

class SurveyLists;

namespace Ui
{
class SurveyWindow;
}

/// The fields of a survey's header: ship, voyage, port and cargo.
class HeaderFields
{
public:
    HeaderFields(const Ui::SurveyWindow &controls, Survey &survey, SurveyLists &lists);

    [[nodiscard]] SurveyHeader Read() const;
    /// The same for a report. Run-time errors for a ship or port that cannot be read.
    [[nodiscard]] ReportedHeader Reported() const;
    /// Ship, voyage and port as if the user had picked them.
    void ShowPicks(const SurveyHeader &header) const;
    void ShowCargo(const std::string &cargo) const;
    void Blank() const;
    void Enable(bool enable) const;

    /// The ship on show becomes the survey's; a failure is told.
    void ShipPicked() const;
    /// Tells where the ship has no hydrostatic table, and holds the focus.
    void CheckShip(bool &cancel) const;
    /// True where ship, voyage and port are picked; otherwise it tells which is not.
    [[nodiscard]] bool ValidSelection() const;
    /// What a save says of the first of the four that is empty; nothing where none is.
    [[nodiscard]] const char *Missing() const;

private:
    const Ui::SurveyWindow &ui;
    Survey &mSurvey;
    SurveyLists &mLists;
};

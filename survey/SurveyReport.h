#pragma once

#include "core/Survey.h"
#include "reports/ReportFilling.h"

class SurveyLists;

/// The survey as its report tells it, with the header on the screen. Run-time errors for a ship or port that cannot be
/// read, or for quantities that could not be.
[[nodiscard]] ReportedSurvey ReportOf(const Survey &survey, const SurveyHeader &header, SurveyLists &lists);

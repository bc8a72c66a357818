#pragma once

#include <optional>
#include <string>

class Report;
class Survey;

/// What a report takes from the survey's window.
struct ReportedHeader {
    std::string voyage;
    std::string cargo;
    std::string portOfRegistry;
    std::optional<std::string> port; ///< where the survey names none, the design's text stays
};

/// Fill the labels one after another; what is not filled shows the design's text. A figure that was never calculated
/// leaves its unit alone on the label; where a sum needs one, TypeMismatch (13), WrongState for quantities that could
/// not be read, and the ship's own errors: what was filled up to there stays.
void FillLoadportReport(Report &report, const Survey &survey, const ReportedHeader &header);
void FillDischargePortReport(Report &report, const Survey &survey, const ReportedHeader &header);

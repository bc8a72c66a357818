#pragma once

#include "core/numeric/Value.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

class Report;

/// A ship as the report states her: lengths in metres, weights in tonnes.
struct ReportedShip {
    std::string name;
    std::string callSign;
    std::string flag;
    std::string portOfRegistry;
    Value officialNo;
    Value grossTonnage;
    Value netTonnage;
    Value summerDraft;
    Value summerDeadweight;
    Value loa;
    Value lbp;
    Value breadth;
    Value fwdX;
    Value aftX;
    Value lightShip;
};

/// One column of the report: what clsDraft holds under these names, not rounded.
struct ReportedDraft {
    std::string date;
    std::string time;
    std::string comments;
    Value density;
    /// ItemID and tonnes, in the order of the draft's rows.
    std::vector<std::pair<std::int32_t, Value>> deductions;
    Value fwdMean, midMean, aftMean;
    Value fwdCorrection, aftCorrection;
    Value fwdTrueDraft, aftTrueDraft;
    Value midPort, midStbd;
    Value trueMeanDraft;
    /// Displacement, TPC, LCF, MCTC+50, MCTC-50.
    std::array<Value, 5> hydrostatics;
    /// As clsDraft::FinalItems.
    std::array<Value, 12> finalResult;
};

/// All that a report tells of a survey.
struct ReportedSurvey {
    ReportedShip ship;
    std::string voyage;
    std::string cargo;
    std::optional<std::string> port; ///< where the survey names none, the design's text stays
    ReportedDraft initial;
    std::optional<ReportedDraft> final;
};

/// Fill the labels one after another; what is not filled shows the design's text. A figure that was never calculated
/// leaves its unit alone on the label; where a sum needs one, TypeMismatch (13), and what was filled up to there stays.
void FillLoadportReport(Report &report, const ReportedSurvey &survey);
void FillDischargePortReport(Report &report, const ReportedSurvey &survey);

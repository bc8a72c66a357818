#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

enum class LabelAlignment : std::uint8_t { Left, Right, Centre };

/// One label of a report's block. Distances are twips (1440 an inch) from the block's top left.
struct ReportLabel {
    std::string name;
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    std::string text; ///< what it shows until it is filled
    LabelAlignment alignment = LabelAlignment::Left;
    double points = 9.75; ///< size of its Arial
    bool bold = false;
};

/// The design of a report: one block of labels on one page.
struct ReportLayout {
    std::string_view title; ///< of the window that shows it
    int width = 0;
    int height = 0;
    std::vector<ReportLabel> labels;
};

/// The survey of a loading ship.
[[nodiscard]] const ReportLayout &LoadportLayout();
/// The survey of a discharging ship: the same labels, some of them elsewhere.
[[nodiscard]] const ReportLayout &DischargePortLayout();

#pragma once

#include "reports/ReportLayout.h"

#include <string>
#include <string_view>
#include <vector>

/// A report that is loaded once it is used: a layout and what its labels show.
class Report
{
public:
    explicit Report(const ReportLayout &layout);
    Report(const Report &) = delete;
    Report &operator=(const Report &) = delete;

    [[nodiscard]] const ReportLayout &Layout() const { return mLayout; }

    /// What a label shows, in UTF-8. NoObject (91) for a name that no label has.
    [[nodiscard]] const std::string &Caption(std::string_view name) const;
    void Caption(std::string_view name, std::string_view text);

    /// Every label shows the design's text again.
    void Unload();

    /// What a label shows, by its place in the layout.
    [[nodiscard]] const std::string &CaptionAt(std::size_t index) const { return mCaptions[index]; }

private:
    [[nodiscard]] std::size_t IndexOf(std::string_view name) const;

    const ReportLayout &mLayout;
    std::vector<std::string> mCaptions;
};

/// The shared reports, made at first use.
[[nodiscard]] Report &drptDraftSurvey();
[[nodiscard]] Report &drptDSDispatch();

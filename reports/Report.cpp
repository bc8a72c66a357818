#include "reports/Report.h"

#include "core/numeric/RuntimeError.h"

#include <algorithm>

Report::Report(const ReportLayout &layout)
    : mLayout(layout)
{
    Unload();
}

std::size_t Report::IndexOf(std::string_view name) const
{
    const auto &labels = mLayout.labels;
    const auto found = std::ranges::find(labels, name, &ReportLabel::name);
    if (found == labels.end())
        throw RuntimeError(ErrorNumber::NoObject);
    return static_cast<std::size_t>(found - labels.begin());
}

const std::string &Report::Caption(std::string_view name) const
{
    return mCaptions[IndexOf(name)];
}

void Report::Caption(std::string_view name, std::string_view text)
{
    mCaptions[IndexOf(name)] = text;
}

void Report::Unload()
{
    mCaptions.clear();
    for (const ReportLabel &label : mLayout.labels)
        mCaptions.push_back(label.text);
}

Report &drptDraftSurvey()
{
    static Report report(LoadportLayout());
    return report;
}

Report &drptDSDispatch()
{
    static Report report(DischargePortLayout());
    return report;
}

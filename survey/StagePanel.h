#pragma once

#include "survey/SurveyKind.h"

#include <QWidget>

class QComboBox;

/// Rows 9 to 11 of the results and the fields of each stage: what a survey of one direction makes of the net
/// displacements.
class StagePanel : public QWidget
{
    Q_OBJECT

public:
    explicit StagePanel(const SurveyParts &parts)
        : mParts(parts)
    {
    }

    /// The list of drafts whose cargo the Daily figures are compared with.
    [[nodiscard]] virtual QComboBox &Baselines() const = 0;
    virtual void BaselinePicked() = 0;
    virtual void ShowFrames(const Stage &stage) = 0;
    /// Figures of a calculated draft. False where its deductions are not to be shown afterwards.
    [[nodiscard]] bool Show(const Stage &stage, const clsDraft &draft)
    {
        mCurrentNetDisp = draft.NetDisplacement();
        return ShowResults(stage, draft);
    }
    /// The checks of the figures after a run; they only tell.
    virtual void Check(const Stage &stage) = 0;

protected:
    [[nodiscard]] virtual bool ShowResults(const Stage &stage, const clsDraft &draft) = 0;

    /// Net displacement last shown, tonnes.
    [[nodiscard]] const Value &CurrentNetDisp() const { return mCurrentNetDisp; }

    const SurveyParts mParts;

private:
    Value mCurrentNetDisp;
};

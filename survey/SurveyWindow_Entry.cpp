#include "core/ReturnCode.h"
#include "frame/controls/FloatingEditor.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyWindow.h"

#include <QApplication>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace
{
constexpr std::int16_t kShortRun = 1;
} // namespace

bool SurveyWindow::Form_KeyPress(QKeyEvent &event)
{
    QWidget *active = QApplication::focusWidget();
    if ((event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter) || active == nullptr)
        return false;
    if (active == &mDeductions.Editor()) {
        if (mDeductions.EnterPressed())
            SendTab();
    } else if (active == ui->txtAftStbd && mDeductions.HasRows()) {
        if (MayLeave(active))
            mDeductions.Enter();
    } else {
        SendTab();
    }
    return true;
}

bool SurveyWindow::PutListCorrection(const Stage &stage, bool on)
{
    QCheckBox &box = ListCorrectionOf(stage);
    const bool changes = box.isChecked() != on;
    const QSignalBlocker quiet(box);
    box.setChecked(on);
    return changes;
}

void SurveyWindow::ListCorrection_Click(const Stage &stage)
{
    if (!mResults.IsCalculated() || mNoEvents)
        return;
    clsDraft &draft = mSurvey.Draft(stage);
    const bool on = ListCorrectionOf(stage).isChecked();
    if (!on)
        mResults.ClearListCorrection();
    draft.ListCorrected(on);
    CollectDraft(stage);
    if (draft.Calculate(kShortRun) == ReturnCode::NotCalculated)
        ClearReadOnly();
    else
        LoadDraft(stage);
}

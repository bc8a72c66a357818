#pragma once

#include "survey/SurveyWindow.h"

/// The survey of a discharging ship.
class frmDSDispatch : public SurveyWindow
{
    Q_OBJECT

public:
    explicit frmDSDispatch(QWidget *parent = nullptr);

    using SurveyWindow::Calculate;

    bool Form_KeyPress(QKeyEvent &event) override;

protected:
    bool event(QEvent *event) override;
};

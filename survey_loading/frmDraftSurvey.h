#pragma once

#include "survey/SurveyWindow.h"

/// The survey of a loading ship.
class frmDraftSurvey : public SurveyWindow
{
    Q_OBJECT

public:
    explicit frmDraftSurvey(QWidget *parent = nullptr);
};

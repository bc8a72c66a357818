#pragma once

#include "survey/SurveyKind.h"

class QLineEdit;
class QString;

/// The fields in which the readings of a draft are entered: density, date and time, the six marks.
class SurveyEntries
{
public:
    /// Puts each field's check on the form.
    explicit SurveyEntries(Form &form, const Ui::SurveyWindow &controls, const SurveyKind &kind);

    /// What a draft holds; 0 shows as blank.
    void Show(const clsDraft &draft) const;
    void ShowMoment(const clsDraft &draft) const;
    void Collect(clsDraft &draft) const;
    /// True where density and marks are there. Otherwise it tells which is not, and the focus goes there.
    [[nodiscard]] bool AllFilled() const;

private:
    void txtDensity_Validate(bool &cancel) const;
    void mbxDate_Validate(bool &cancel) const;
    void mbxTime_Validate(bool &cancel) const;

    Form &mForm;
    const Ui::SurveyWindow &ui;
    const SurveyKind &mKind;
};

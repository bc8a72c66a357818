#pragma once

#include "survey/SurveyWindow.h"

namespace Ui
{
class LoadingResults;
}

/// The survey of a loading ship. Her constant comes from the Initial draft; cargo is the rise of the net displacement.
class frmDraftSurvey : public SurveyWindow
{
    Q_OBJECT

public:
    explicit frmDraftSurvey(QWidget *parent = nullptr);
    ~frmDraftSurvey() override;

protected:
    [[nodiscard]] std::string IsLoading() const override { return "True"; }
    [[nodiscard]] std::string SettingsSection() const override { return "Draft Survey Loading"; }
    [[nodiscard]] std::string CloseFailureCaption() const override { return "Keelmark-20101"; }
    [[nodiscard]] QComboBox &DailyDateTimes() const override;
    void cmbDailyDateTime_Click() override;
    [[nodiscard]] ResultCaptions FreshCaptions(const Stage &stage) const override;
    [[nodiscard]] bool ShowStageResults(const Stage &stage, clsDraft &draft) override;
    void CheckResults(const Stage &stage) override;
    void ShowStageFrames(const Stage &stage) override;
    void ResetFrames() override;
    [[nodiscard]] std::string SavedConstant(bool isNewRow) const override;
    [[nodiscard]] NumberRule RuleOf(const QString &field) const override;
    [[nodiscard]] Report &OwnReport() const override;
    void FillReport(const ReportedSurvey &survey) const override;
    [[nodiscard]] std::string PrintFailureCaption() const override { return "Keelmark-10067"; }

private:
    void ShowInitialResults(clsDraft &draft);
    /// False where the draft has no net displacement to work from; so is the next.
    [[nodiscard]] bool ShowDailyResults(clsDraft &draft);
    [[nodiscard]] bool ShowFinalResults(clsDraft &draft);
    void ShowCargoOnboard(const Value &cargo);
    /// Balance of the cargo intended; red and told where it is exceeded.
    void ShowBalance(const Value &balance);
    void txtCargoIntendedToLoad_Validate(bool &cancel);

    std::unique_ptr<Ui::LoadingResults> mResults;
};

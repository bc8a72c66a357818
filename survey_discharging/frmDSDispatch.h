#pragma once

#include "survey/SurveyWindow.h"

namespace Ui
{
class DischargingResults;
}

/// The survey of a discharging ship. Cargo is the fall of the net displacement from the Initial draft, compared with
/// the Bill of Lading; no constant is kept. What is not here is as in a loading survey.
class frmDSDispatch : public SurveyWindow
{
    Q_OBJECT

public:
    explicit frmDSDispatch(QWidget *parent = nullptr);
    ~frmDSDispatch() override;

    using SurveyWindow::Calculate;

    bool Form_KeyPress(QKeyEvent &event) override;

protected:
    bool event(QEvent *event) override;
    [[nodiscard]] std::string IsLoading() const override { return "False"; }
    [[nodiscard]] std::string SettingsSection() const override { return "Draft Survey Discharging"; }
    [[nodiscard]] std::string CloseFailureCaption() const override { return "Keelmark-20100"; }
    [[nodiscard]] Value ShipForDrafts(const Value &bound) const override { return bound.ToLong(); }
    [[nodiscard]] QComboBox &DailyDateTimes() const override;
    void cmbDailyDateTime_Click() override;

    void LoadDraft(const Stage &stage) override;
    [[nodiscard]] ResultCaptions FreshCaptions(const Stage &stage) const override;
    [[nodiscard]] bool ShowStageResults(const Stage &stage, clsDraft &draft) override;
    void CheckResults(const Stage &stage) override;
    void PrepareQuantities() override;

    void ShowStageFrames(const Stage &stage) override;
    void ResetFrames() override;
    void BeforeDailyShown() override { InitDateDataCombo(); }
    /// Silent here.
    void ReportTabFailure() override { }
    [[nodiscard]] QStringList KeptFields() const override;

    [[nodiscard]] NumberRule RuleOf(const QString &field) const override;
    void BlankDensityLeft() override;

    void LeavePartlyFilled() override;
    /// The check comes before the answer counts: a draft that fails it starts a new one whatever the answer.
    [[nodiscard]] bool StartsNewDaily(MsgAnswer answer) override;
    /// A discharging survey is saved whatever its figures.
    [[nodiscard]] std::string WrongFigures() const override { return {}; }
    [[nodiscard]] std::string SavedConstant(bool isNewRow) const override;
    /// What was typed since the last copy of the screen does not count as a change here.
    void CollectBeforeClosing() override { }
    [[nodiscard]] Report &OwnReport() const override;
    void FillReport(const ReportedSurvey &survey) const override;
    [[nodiscard]] std::string PrintFailureCaption() const override { return "Keelmark-10066"; }
    /// A lone Daily draft is enough here; the Initial column then has no figures.
    [[nodiscard]] bool AnyToPrint() const override;

private:
    void ShowInitialResults(const Value &netDisplacement);
    void ShowDailyResults(const Value &netDisplacement);
    void ShowFinalResults(const Value &netDisplacement);
    void ShowAssumedConstant(const Value &constant);
    /// A result under its own colour: red where it is below 0.
    void ShowResultCell(const Value &cargo, QLineEdit *field);
    /// Tells where a field's figure is below 0.
    static void CheckNotNegative(const QLineEdit &field, std::string_view message);
    void txtBLQty_Validate(bool &cancel);

    std::unique_ptr<Ui::DischargingResults> mResults;
};

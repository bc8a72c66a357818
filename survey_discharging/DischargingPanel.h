#pragma once

#include "survey/StagePanel.h"

#include <memory>
#include <string_view>

class QLineEdit;

namespace Ui
{
class DischargingResults;
}

/// The figures of a discharging ship: cargo is the fall of the net displacement from the Initial draft, compared with
/// the Bill of Lading; no constant is kept.
class DischargingPanel : public StagePanel
{
    Q_OBJECT

public:
    explicit DischargingPanel(const SurveyParts &parts);
    ~DischargingPanel() override;

    [[nodiscard]] QComboBox &Baselines() const override;
    void BaselinePicked() override;
    void ShowFrames(const Stage &stage) override;
    void Check(const Stage &stage) override;

protected:
    [[nodiscard]] bool ShowResults(const Stage &stage, const clsDraft &draft) override;

private:
    void ShowInitialResults(const Value &netDisplacement);
    void ShowDailyResults(const Value &netDisplacement);
    void ShowFinalResults(const Value &netDisplacement);
    void ShowAssumedConstant(const Value &constant);
    /// Row 11 and its field: red where the figure is below 0.
    void ShowLastRow(const Value &cargo, QLineEdit *field);
    [[nodiscard]] Value InitialNetDisplacement() const;
    /// 0 where the field is empty. Type mismatch (13) where it holds blanks or anything else that is no number.
    [[nodiscard]] Value BillOfLadingQuantity() const;
    /// Tells where a field's figure is below 0.
    static void CheckNotNegative(const QLineEdit &field, std::string_view message);
    void txtBLQty_Validate(bool &cancel);

    std::unique_ptr<Ui::DischargingResults> ui;
};

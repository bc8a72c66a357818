#pragma once

#include "survey/StagePanel.h"

#include <memory>

namespace Ui
{
class LoadingResults;
}

/// The figures of a loading ship: her constant comes from the Initial draft, cargo is the rise of the net displacement.
class LoadingPanel : public StagePanel
{
    Q_OBJECT

public:
    explicit LoadingPanel(const SurveyParts &parts);
    ~LoadingPanel() override;

    [[nodiscard]] QComboBox &Baselines() const override;
    void BaselinePicked() override;
    void ShowFrames(const Stage &stage) override;
    void Check(const Stage &stage) override;

protected:
    [[nodiscard]] bool ShowResults(const Stage &stage, const clsDraft &draft) override;

private:
    void ShowInitialResults(const Value &netDisplacement);
    /// False where the draft has no net displacement to work from; so is the next.
    [[nodiscard]] bool ShowDailyResults(const Value &netDisplacement);
    [[nodiscard]] bool ShowFinalResults(const Value &netDisplacement);
    /// Blanks rows 10 and 11 where a draft has no net displacement, or the Initial one has none. True where it did.
    [[nodiscard]] bool BlankWithout(const Value &netDisplacement);
    void ShowCargoOnboard(const Value &cargo);
    /// Balance of the cargo intended; red and told where it is exceeded.
    void ShowBalance(const Value &balance);
    void ShowCargoSince(const Value &cargo);
    void txtCargoIntendedToLoad_Validate(bool &cancel);

    std::unique_ptr<Ui::LoadingResults> ui;
};

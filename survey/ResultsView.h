#pragma once

#include "core/Stage.h"
#include "core/clsDraft.h"

#include <QString>

#include <array>

namespace Ui
{
class SurveyWindow;
}

/// Shows a draft in the read-only controls that both survey windows have; keeps nothing.
class ResultsView
{
public:
    /// Captions of rows 9 to 11 of the results grid.
    using Captions = std::array<const char *, 3>;

    explicit ResultsView(const Ui::SurveyWindow &controls);

    /// All grids with their headings and no figures.
    void ShowFresh(const Stage &stage, const Captions &captions) const;
    void ShowHeadings(const Stage &stage, const Captions &captions) const;
    void ClearListCorrection() const;

    /// Means, trims and drafts; the hull's deflection where there is a draft.
    void ShowDrafts(const clsDraft &draft) const;
    /// What a calculation gives: the table's rows, the list correction where it is in use, rows 0 to 9 of the results.
    void ShowFigures(const clsDraft &draft, bool listCorrected) const;
    void ShowCaptions(const Captions &captions) const;
    void ShowCell(int row, const Value &value) const;
    /// Cell and field of a cargo or constant: red where the figure is below 0.
    void SetCellRed(int row, bool red) const;

    // What the screen shows is read back where a routine goes by it.

    /// The draft on show has been calculated: its true mean draft is shown.
    [[nodiscard]] bool IsCalculated() const;
    /// The net displacement is shown, which a save asks for.
    [[nodiscard]] bool HasNetDisplacement() const;
    /// The text of row 11: the constant or the cargo of the stage.
    [[nodiscard]] QString LastRow() const;
    [[nodiscard]] bool IsNetDisplacementRed() const;
    /// The text of the total deductibles.
    [[nodiscard]] QString TotalDeductibles() const;

private:
    void LayOut() const;
    void ShowDeflection(const clsDraft &draft) const;
    void ShowHydrostatics(const clsDraft &draft) const;
    void ShowListCorrection(const clsDraft &draft) const;

    const Ui::SurveyWindow &ui;
};

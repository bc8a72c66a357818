#pragma once

class QWidget;

namespace Ui
{
class SurveyWindow;
}

/// Gives every field of a window the width of as many digits as its property "characters" says.
void FitFields(QWidget &window);
/// Column widths and heights of the result grids, so that each shows all its cells. After their rows and columns are
/// set, and once only: the widths stay when cells are cleared.
void FitGrids(const Ui::SurveyWindow &ui);
/// The tab order of the entry fields, the editor of quantities before the comments.
void SetEntryOrder(const Ui::SurveyWindow &ui, QWidget &quantity);

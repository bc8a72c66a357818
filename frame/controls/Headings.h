#pragma once

#include <QFont>
#include <QHeaderView>
#include <QTableView>

/// Sizes of a window's heading and of its legend beside the window's own text.
inline constexpr double kHeadingSize = 1.2;
inline constexpr double kLegendSize = 0.9;

inline void ScaleFont(QWidget &widget, double factor)
{
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    widget.setFont(font);
}

/// Rows as high as a line of the grid's text and a little more; again after each change of font or style.
inline void FitRowHeight(const QTableView &grid)
{
    constexpr int kRoomAboveAndBelow = 6;
    const int height = grid.fontMetrics().height() + kRoomAboveAndBelow;
    grid.verticalHeader()->setMinimumSectionSize(height);
    grid.verticalHeader()->setDefaultSectionSize(height);
}

#pragma once

#include <QFont>
#include <QWidget>

/// Sizes of a window's heading and of its legend beside the window's own text.
inline constexpr double kHeadingSize = 1.2;
inline constexpr double kLegendSize = 0.9;

inline void ScaleFont(QWidget &widget, double factor)
{
    QFont font = widget.font();
    font.setPointSizeF(font.pointSizeF() * factor);
    widget.setFont(font);
}

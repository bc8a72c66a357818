#pragma once

#include <QColor>

class QLineEdit;
class QPalette;

/// The red of a figure that cannot be right, chosen to be readable on the palette's base colour.
[[nodiscard]] QColor FigureRed(const QPalette &palette);

/// Red or the palette's text colour for a field's text.
void SetRed(QLineEdit &field, bool red);
[[nodiscard]] bool IsRed(const QLineEdit &field);

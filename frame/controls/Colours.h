#pragma once

#include <QColor>

class QLineEdit;
class QPalette;
class QWidget;

/// The red of a figure that cannot be right, chosen to be readable on the palette's base colour.
[[nodiscard]] QColor FigureRed(const QPalette &palette);

/// Red or the palette's text colour for a field's text.
void SetRed(QLineEdit &field, bool red);
[[nodiscard]] bool IsRed(const QLineEdit &field);

/// Puts the window's own colour behind the fields that are locked; again after each change of the palette.
void ShowLocked(QWidget &window);

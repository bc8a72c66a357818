#pragma once

#include <QString>
#include <QWidget>

/// What a user does at a window, and what follows before the user's next act.

/// Lets everything happen that is due: moves of the focus, layouts, windows that go.
void Settle();

/// Shows the window and makes it the active one.
void ShowActive(QWidget &window);

/// Types into the widget of that window that has the focus.
void Type(QWidget &window, const QString &text);
void PressKey(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);

/// Clicks with the main button into the middle, or at a place inside the widget.
void Click(QWidget &widget);
void Click(QWidget &widget, QPoint place);

/// Turns the wheel one notch towards the user.
void TurnWheel(QWidget &widget);

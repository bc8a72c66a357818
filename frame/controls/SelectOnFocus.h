#pragma once

#include <QLineEdit>
#include <QTimer>

/// Selects a field's whole text as the focus comes to it. Not where the user only comes back to the program or closes a
/// menu: what was begun there would be lost with the next key.
inline void SelectOnFocus(QLineEdit &field, Qt::FocusReason reason)
{
    if (reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason)
        return;
    if (reason != Qt::MouseFocusReason) {
        field.selectAll();
        return;
    }
    // The press that gives the focus would undo the selection at once.
    QTimer::singleShot(0, &field, [&field] {
        if (field.hasFocus())
            field.selectAll();
    });
}

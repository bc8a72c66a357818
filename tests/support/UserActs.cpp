#include "tests/support/UserActs.h"

#include <QApplication>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/qtestspontaneevent.h>

namespace
{
QWidget &Focused(QWidget &window)
{
    QWidget *focused = window.window()->focusWidget();
    return focused ? *focused : window;
}
} // namespace

void Settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

void ShowActive(QWidget &window)
{
    window.show();
    QApplication::setActiveWindow(&window);
    Settle();
}

void Type(QWidget &window, const QString &text)
{
    QTest::keyClicks(&Focused(window), text);
    Settle();
}

void PressKey(QWidget &window, Qt::Key key, Qt::KeyboardModifiers modifiers)
{
    QTest::keyClick(&Focused(window), key, modifiers);
    Settle();
}

void Click(QWidget &widget)
{
    Click(widget, widget.rect().center());
}

void Click(QWidget &widget, QPoint place)
{
    QTest::mouseClick(&widget, Qt::LeftButton, Qt::NoModifier, place);
    Settle();
}

void TurnWheel(QWidget &widget)
{
    QWindow *window = widget.window()->windowHandle();
    const QPoint place = widget.mapTo(widget.window(), widget.rect().center());
    QWheelEvent wheel(place, window->mapToGlobal(place), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    // Only an event from outside is passed on to what lies around the widget.
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    qApp->notify(window, &wheel);
    Settle();
}

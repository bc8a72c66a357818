#pragma once

#include <QApplication>

/// The program's QApplication. Its notify is the one place that every event passes: run-time errors that no trap took
/// end the program there, a form sees a key before its active control does, and a control's check runs before the
/// focus can leave it. The mouse wheel moves no focus and changes neither a tab nor a combo box without the focus.
class Application : public QApplication
{
    Q_OBJECT

public:
    Application(int &argc, char **argv);

    bool notify(QObject *receiver, QEvent *event) override;

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override;
};

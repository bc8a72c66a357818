#pragma once

#include "frame/platform/Form.h"

#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollArea>
#include <QTabBar>

// A form like the program's own: Enter moves on, and a button, a tab strip and a refusing field stand in a scroll area.
class DeskForm : public Form
{
public:
    DeskForm();

    bool Form_KeyPress(QKeyEvent &event) override;
    void Form_Unload(bool &cancel) override;
    using Form::SendMask;
    using Form::SendMaskOnce;
    using Form::SetHint;

    // The first field is refused, from now on or no longer.
    void Refuse(bool refuse) { mRefuse = refuse; }

    QTabBar sstStages;
    QScrollArea mGround;
    QWidget mPage;
    QLineEdit txtFirst;
    QLabel lblSecond;
    QLineEdit txtSecond;
    QPushButton cmdGo;
    QPushButton cmdOff;
    QLabel lblPlain;

    int mChecks = 0;
    int mClicks = 0;
    int mUnloads = 0;
    bool mStay = false;
    QList<int> mKeys;

private:
    bool mRefuse = false;
};

// The main window with two such forms; the first is the active one and its first field has the focus.
class Desk : public QMainWindow
{
public:
    Desk();

    [[nodiscard]] QString Focus() const { return focusWidget() ? focusWidget()->objectName() : QString(); }
    DeskForm &Open(const QString &name);

    QMdiArea mArea;
    QAction *mCommand;
    DeskForm &mForm;
    DeskForm &mOther;
};

#include "tests/platform/Desk.h"

#include "tests/support/UserActs.h"

#include <QKeyEvent>
#include <QToolBar>
#include <QVBoxLayout>

DeskForm::DeskForm()
    : lblSecond("&Second")
    , cmdGo("&Go")
    , cmdOff("Off")
    , lblPlain("Plain")
{
    for (const char *stage : {"Initial", "Daily", "Final"})
        sstStages.addTab(stage);
    sstStages.setTabEnabled(2, false);
    cmdOff.setEnabled(false);
    lblSecond.setBuddy(&txtSecond);
    txtFirst.setObjectName("txtFirst");
    txtSecond.setObjectName("txtSecond");
    cmdGo.setObjectName("cmdGo");

    auto *page = new QVBoxLayout(&mPage);
    for (QWidget *control : std::initializer_list<QWidget *> {&txtFirst, &lblSecond, &txtSecond, &cmdGo, &cmdOff})
        page->addWidget(control);
    page->addWidget(&lblPlain);
    mGround.setWidget(&mPage);
    mGround.setWidgetResizable(true);
    auto *all = new QVBoxLayout(this);
    all->addWidget(&sstStages);
    all->addWidget(&mGround);

    OnValidate(&txtFirst, [this](bool &cancel) {
        ++mChecks;
        cancel = mRefuse;
    });
    connect(&cmdGo, &QPushButton::clicked, this, [this] { ++mClicks; });
}

bool DeskForm::Form_KeyPress(QKeyEvent &event)
{
    mKeys.append(event.key());
    if (event.key() != Qt::Key_Return)
        return false;
    SendTab();
    return true;
}

void DeskForm::Form_Unload(bool &cancel)
{
    ++mUnloads;
    cancel = mStay;
}

Desk::Desk()
    : mCommand(addToolBar("Commands")->addAction("Command"))
    , mForm(Open("First"))
    , mOther(Open("Other"))
{
    setCentralWidget(&mArea);
    resize(900, 500);
    ShowActive(*this);
    mArea.tileSubWindows();
    mOther.txtSecond.setFocus();
    mForm.txtFirst.setFocus();
    Settle();
}

DeskForm &Desk::Open(const QString &name)
{
    auto *form = new DeskForm;
    form->setObjectName(name);
    mArea.addSubWindow(form)->show();
    return *form;
}

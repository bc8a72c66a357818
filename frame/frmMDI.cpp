#include "frame/frmMDI.h"

#include "core/numeric/RuntimeError.h"
#include "frame/StatusPanels.h"
#include "frame/store/Connection.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QFrame>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QScreen>
#include <QToolBar>
#include <QVBoxLayout>

namespace
{
QPointer<frmMDI> gFrame;

/// What the form itself asks of its sub-window's title bar; nothing asks for all that the platform has.
Qt::WindowFlags TitleFlags(const Form &form)
{
    return form.windowFlags()
        & (Qt::CustomizeWindowHint | Qt::WindowTitleHint | Qt::WindowSystemMenuHint | Qt::WindowMinMaxButtonsHint
           | Qt::WindowCloseButtonHint);
}
} // namespace

frmMDI &frmMDI::Global()
{
    if (!gFrame)
        gFrame = new frmMDI;
    return *gFrame;
}

frmMDI *frmMDI::Loaded()
{
    return gFrame;
}

frmMDI::frmMDI()
    : imglstMDI({"New", "Open", "Save", "Close", "Print", "PrintPreview", "PortMaster", "ShipParticulars", "HDT",
                 "Loading", "Discharging", "Calculator", "Notepad", "TipOfDay", "Help", "TechSupport"})
    , imglstMDITbr({"New", "Save", "Print", "PrintPreview", "Delete", "Close"})
    , mArea(new QMdiArea)
    , cbMDI(new QFrame)
    , tbrMDI(new QToolBar)
    , sb1(new StatusPanels)
{
    setObjectName("frmMDI");
    setWindowTitle(tr("Keelmark"));
    setAccessibleName(tr("Keelmark"));
    setAttribute(Qt::WA_DeleteOnClose);
    Forms::Add(this);

    auto *middle = new QWidget;
    auto *layout = new QVBoxLayout(middle);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(cbMDI);
    layout->addWidget(mArea, 1);
    setCentralWidget(middle);
    setStatusBar(sb1);

    mArea->setObjectName("mdiArea");
    mArea->setAccessibleName(tr("Open windows"));
    mArea->setHorizontalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    mArea->setActivationOrder(QMdiArea::ActivationHistoryOrder);
    // A child opened over a maximized one keeps its own size and title.
    mArea->setOption(QMdiArea::DontMaximizeSubWindowOnActivation);
    connect(mArea, &QMdiArea::subWindowActivated, this, &frmMDI::FollowActiveChild);

    MakeToolbar();
    mChildCount = 0;
    MakeMenus();
    SetMDIToolbar({});

    resize(screen()->availableSize());
    setWindowState(Qt::WindowMaximized);
}

frmMDI::~frmMDI()
{
    // Children that are still there go after this.
    mArea->disconnect(this);
    Forms::Remove(this);
}

void frmMDI::SetHint(const QString &text)
{
    sb1->SetMessage(text);
}

QString frmMDI::OpenHint()
{
    return tr("Press Ctrl-O to open the Open file box");
}

void frmMDI::BringUp()
{
    show();
    raise();
    activateWindow();
}

void frmMDI::ShowCoolBar(bool shown)
{
    cbMDI->setVisible(shown);
}

QSize frmMDI::ChildRoom() const
{
    // The window may have been resized, or its toolbar brought up, since it was laid out last.
    layout()->activate();
    centralWidget()->layout()->activate();
    return mArea->maximumViewportSize();
}

int frmMDI::ToolbarHeight() const
{
    return tbrMDI->sizeHint().height();
}

void frmMDI::ShowChild(Form &form)
{
    auto *window = qobject_cast<QMdiSubWindow *>(form.parentWidget());
    if (!window)
        window = LoadChild(form);
    if (window->isMinimized())
        window->showNormal();
    else
        window->show();
    mArea->setActiveSubWindow(window);
    FollowActiveChild();
}

QMdiSubWindow *frmMDI::LoadChild(Form &form)
{
    const QSize room = ChildRoom();
    // A large font may need more than the form's own size.
    const QSize own = form.testAttribute(Qt::WA_Resized) ? form.size().expandedTo(form.sizeHint()) : form.sizeHint();
    QMdiSubWindow *window = mArea->addSubWindow(&form, TitleFlags(form));
    // The platform's close key there would make the menu's Ctrl+F4 ambiguous.
    for (QAction *action : window->systemMenu()->actions())
        action->setShortcuts(QList<QKeySequence>());
    const QSize frameSize = window->sizeHint() - form.sizeHint();
    window->resize((own + frameSize).boundedTo(room));
    form.Form_Load();
    return window;
}

Form *frmMDI::FormInFront() const
{
    const QMdiSubWindow *window = mArea->currentSubWindow();
    return window ? qobject_cast<Form *>(window->widget()) : nullptr;
}

void frmMDI::FollowActiveChild()
{
    // A maximized child adds its name at every change of the title, also while another one is in front.
    for (QMdiSubWindow *window : mArea->subWindowList()) {
        removeEventFilter(window);
        if (window->isMaximized() && window == mArea->currentSubWindow())
            installEventFilter(window);
    }
    setWindowTitle(tr("Keelmark"));
    Form *form = FormInFront();
    if (form && form != mActiveForm) {
        mActiveForm = form;
        MDIForm_Activate();
        form->Form_Activate();
    } else if (Forms::Count() == 1) {
        MDIForm_Activate();
    }
}

void frmMDI::ResendMask()
{
    const Form *form = FormInFront();
    if (form && form == mActiveForm && Forms::Count() > 1)
        SetMDIToolbar(form->ButtonMask());
}

Form &frmMDI::ActiveForm() const
{
    Form *form = FormInFront();
    if (!form)
        throw RuntimeError(ErrorNumber::NoObject);
    return *form;
}

bool frmMDI::event(QEvent *event)
{
    const bool handled = QMainWindow::event(event);
    if (event->type() == QEvent::WindowActivate || event->type() == QEvent::WindowDeactivate)
        MDIForm_Activate();
    return handled;
}

void frmMDI::MDIForm_Activate()
{
    SetHint(Forms::Count() == 1 ? OpenHint() : QString());
}

void frmMDI::closeEvent(QCloseEvent *event)
{
    if (!UnloadChildren()) {
        event->ignore();
        // A child that went has turned the commands off; the one in front wants its own again.
        mActiveForm = nullptr;
        FollowActiveChild();
        return;
    }
    MDIForm_Unload();
    Forms::Remove(this);
    event->accept();
    QCoreApplication::exit();
}

bool frmMDI::UnloadChildren()
{
    const QList<QWidget *> windows = Forms::All();
    for (QWidget *window : windows) {
        auto *form = qobject_cast<Form *>(window);
        if (form && !form->Unload())
            return false;
    }
    return true;
}

void frmMDI::MDIForm_Unload()
{
    if (!gConnection)
        return;
    for (void (Connection::*end)() : {&Connection::RollbackTrans, &Connection::Close}) {
        try {
            (*gConnection.*end)();
        } catch (const RuntimeError &) {
            // Meant: most often there is no transaction to abandon, and nobody is left to tell.
        }
    }
}

#include "frame/mdlMain.h"

#include "core/MsgBox.h"
#include "frame/frmAbout.h"
#include "frame/frmMDI.h"
#include "frame/frmTipOfDay.h"
#include "frame/store/Connection.h"

#include <QCoreApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QScreen>

#include <algorithm>
#include <cmath>

std::int16_t gOpenChildCount = 0;

namespace
{
void Connect(const std::filesystem::path &store)
{
    gConnection = std::make_unique<Connection>();
    gConnection->Open(store);
}

void TellFailure(const RuntimeError &error)
{
    if (error.Number() == ErrorNumber::StoreRefusal) {
        MsgBox("Unable to find database...!", MsgIcon::Critical);
        return;
    }
    MsgBox("An internal error has occured.\n\n"
           "Please contact us with the error no. mentioned on the titlebar of this dialog box",
           MsgIcon::Critical, "Keelmark-10200");
}

/// Half to even, as every conversion to a whole number.
int ToPixel(double position)
{
    return static_cast<int>(std::nearbyint(position));
}
} // namespace

std::filesystem::path ProgramFolder()
{
    return QCoreApplication::applicationDirPath().toStdU16String();
}

bool Main(const std::filesystem::path &store)
{
    try {
        Connect(store);
        frmAbout().exec();
        return true;
    } catch (const RuntimeError &error) {
        TellFailure(error);
        return false;
    }
}

void ShowMainWindow()
{
    frmMDI::Global().BringUp();
}

void ShowTipOfDay()
{
    frmMDI &frame = frmMDI::Global();
    // Counted before the main window becomes active, which tells its hint by the count.
    frmTipOfDay &tip = frmTipOfDay::Global();
    frame.BringUp();
    frame.ShowChild(tip);
}

void OpenChild(ChildWindow window)
{
    frmMDI &frame = frmMDI::Global();
    ++gOpenChildCount;
    frame.ShowCoolBar(true);
    frame.ShowChild(Child(window));
}

void ChildUnloaded(bool sendMask, bool hintOnlyAtTwo)
{
    --gOpenChildCount;
    frmMDI *frame = frmMDI::Loaded();
    if (!frame)
        return;
    if (gOpenChildCount == 0)
        frame->ShowCoolBar(false);
    const bool lastChild = hintOnlyAtTwo ? Forms::Count() == 2 : Forms::Count() <= 2;
    frame->SetHint(lastChild ? frmMDI::OpenHint() : QString());
    if (!sendMask)
        return;
    frame->SetMDIToolbar("001001010");
    // A child that stays in front is not activated anew.
    QMetaObject::invokeMethod(frame, &frmMDI::ResendMask, Qt::QueuedConnection);
}

bool CenterForm(Form &form)
{
    QWidget *window = form.parentWidget();
    const frmMDI *frame = frmMDI::Loaded();
    if (!frame || !qobject_cast<QMdiSubWindow *>(window))
        return false;
    const QSize screen = frame->screen()->availableSize();
    const QSize room = frame->ChildRoom();
    const int left = ToPixel(screen.width() / 2.0 - window->width() / 2.0);
    const int top = ToPixel(screen.height() / 2.0 - window->height() / 2.0 - frame->ToolbarHeight());
    window->move(std::clamp(left, 0, std::max(0, room.width() - window->width())),
                 std::clamp(top, 0, std::max(0, room.height() - window->height())));
    return true;
}

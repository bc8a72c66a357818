#include "frame/VendorAddresses.h"
#include "frame/frmAbout.h"
#include "frame/frmMDI.h"
#include "frame/frmOpen.h"
#include "frame/mdlMain.h"
#include "frame/platform/Shell.h"

#include <QCoreApplication>
#include <QDir>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

namespace
{
bool AnyWindowOpen()
{
    return Forms::Count() >= 2;
}

void OpenPage(int index, const QString &workingDirectory)
{
    for (const VendorAddresses::Page &page : VendorAddresses::Pages) {
        if (page.index == index)
            DesktopShell().OpenLink(page.address, workingDirectory);
    }
}
} // namespace

void frmMDI::SetMDIToolbar(std::string_view ButtonSettings)
{
    const auto on
        = [&](std::size_t digit) { return ButtonSettings.size() >= digit && ButtonSettings[digit - 1] == '1'; };
    const bool close = ButtonSettings.ends_with('1');
    Button(1).setEnabled(on(1));
    Button(2).setEnabled(on(2));
    Button(4).setEnabled(on(4));
    Button(5).setEnabled(on(5));
    Button(7).setEnabled(on(7));
    Button(9).setEnabled(close);
    MenuItem("mnuFile(0)").setEnabled(on(1));
    MenuItem("mnuFile(4)").setEnabled(on(2));
    MenuItem("mnuFile(14)").setEnabled(on(4));
    MenuItem("mnuFile(12)").setEnabled(on(5));
    MenuItem("mnuFile(6)").setEnabled(close);
}

void frmMDI::mnuFile_Click(int index)
{
    switch (index) {
    case 0:
        if (AnyWindowOpen())
            ActiveForm().RNew();
        break;
    case 2:
        frmOpen(this).exec();
        break;
    case 4:
        if (AnyWindowOpen())
            ActiveForm().RSave();
        break;
    case 6:
        if (AnyWindowOpen())
            ActiveForm().Unload();
        break;
    case 12:
        ActiveForm().RPrint();
        break;
    case 14:
        ActiveForm().RPrint(false);
        break;
    case 18:
        close();
        break;
    default:
        break;
    }
}

void frmMDI::tbrMDI_ButtonClick(const QString &tag)
{
    if (tag == "New")
        ActiveForm().RNew();
    else if (tag == "Save")
        ActiveForm().RSave();
    else if (tag == "PrintPreview")
        ActiveForm().RPrint();
    else if (tag == "Print")
        ActiveForm().RPrint(false);
    else if (tag == "Delete")
        ActiveForm().RDelete();
    else if (tag == "Close")
        ActiveForm().Unload();
}

void frmMDI::mnuShipData_Click(int index)
{
    if (index == 5)
        OpenChild(ChildWindow::ShipParticulars);
    else if (index == 10)
        OpenChild(ChildWindow::HydrostaticData);
    else if (index == 20)
        OpenChild(ChildWindow::Port);
}

void frmMDI::mnuDraftSurvey_Click(int index)
{
    OpenChild(index == 5 ? ChildWindow::Loading : ChildWindow::Discharging);
}

void frmMDI::mnuTools_Click(int index)
{
    if (index == 5)
        DesktopShell().StartCalculator();
    else
        DesktopShell().StartNotepad();
}

void frmMDI::mnuHelp_Click(int index)
{
    switch (index) {
    case 5:
        ShowTipOfDay();
        break;
    case 6:
        DesktopShell().ShowHelp(QDir::toNativeSeparators(QCoreApplication::applicationDirPath() + "/KeelmarkHelp.chm"));
        break;
    case 10:
        DesktopShell().OpenLink(VendorAddresses::SupportMail, "C:\\");
        break;
    case 14:
        OpenPage(VendorAddresses::BugReport, "c:\\");
        break;
    case 20:
        frmAbout(this).exec();
        break;
    default:
        break;
    }
}

void frmMDI::mnuTessel_Click(int index)
{
    OpenPage(index, "C:\\");
}

void frmMDI::ListWindows(QMenu &menu)
{
    menu.clear();
    int number = 0;
    for (QWidget *window : Forms::All()) {
        auto *form = qobject_cast<Form *>(window);
        if (!form)
            continue;
        QString title = form->windowTitle().replace('&', "&&");
        title = ++number < 10 ? QStringLiteral("&%1 %2").arg(number).arg(title) : title;
        QAction *action = menu.addAction(title, form, [this, form] { ShowChild(*form); });
        action->setCheckable(true);
        action->setChecked(form == FormInFront());
    }
}

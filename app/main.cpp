#include "frame/ImageList.h"
#include "frame/mdlMain.h"
#include "frame/platform/Application.h"
#include "frame/platform/Machine.h"
#include "survey_loading/frmDraftSurvey.h"

#include <cstdlib>

namespace
{
/// The windows that the menus open. An item whose window is not here stays off.
void FillChildWindows()
{
    SetChildFactory(ChildWindow::Loading, [] { return new frmDraftSurvey; });
}
} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    QApplication::setApplicationDisplayName("Keelmark");
    QApplication::setDesktopFileName("keelmark");
    QApplication::setWindowIcon(Picture("Keelmark"));
    TakeRegionalSettings();
    UseMessageBoxWindows();
    FillChildWindows();
    if (!Main())
        return EXIT_FAILURE;
    return QApplication::exec();
}

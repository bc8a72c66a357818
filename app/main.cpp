#include "frame/ImageList.h"
#include "frame/mdlMain.h"
#include "frame/platform/Application.h"
#include "frame/platform/Machine.h"
#include "masters/frmDeductionMaster.h"
#include "masters/frmHDT.h"
#include "masters/frmPortMaster.h"
#include "masters/frmShipParticulars.h"
#include "survey_discharging/frmDSDispatch.h"
#include "survey_loading/frmDraftSurvey.h"

#include <cstdlib>

namespace
{
/// The windows that the menus open. An item whose window is not here stays off.
void FillChildWindows()
{
    ChildFactoryPort(ChildWindow::HydrostaticData).Set([] { return new frmHDT; });
    ChildFactoryPort(ChildWindow::ShipParticulars).Set([] { return new frmShipParticulars; });
    ChildFactoryPort(ChildWindow::DeductionMaster).Set([] { return new frmDeductionMaster; });
    ChildFactoryPort(ChildWindow::Port).Set([] { return new frmPortMaster; });
    ChildFactoryPort(ChildWindow::Loading).Set([] { return new frmDraftSurvey; });
    ChildFactoryPort(ChildWindow::Discharging).Set([] { return new frmDSDispatch; });
}
} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    QApplication::setDesktopFileName("keelmark");
    QApplication::setWindowIcon(Picture("Keelmark"));
    TakeRegionalSettings();
    MsgBoxPort().Set(ShowMessageBoxWindow);
    FillChildWindows();
    if (!Main())
        return EXIT_FAILURE;
    return QApplication::exec();
}

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
    SetChildFactory(ChildWindow::HydrostaticData, [] { return new frmHDT; });
    SetChildFactory(ChildWindow::ShipParticulars, [] { return new frmShipParticulars; });
    SetChildFactory(ChildWindow::DeductionMaster, [] { return new frmDeductionMaster; });
    SetChildFactory(ChildWindow::Port, [] { return new frmPortMaster; });
    SetChildFactory(ChildWindow::Loading, [] { return new frmDraftSurvey; });
    SetChildFactory(ChildWindow::Discharging, [] { return new frmDSDispatch; });
}
} // namespace

int main(int argc, char **argv)
{
    Application application(argc, argv);
    QApplication::setDesktopFileName("keelmark");
    QApplication::setWindowIcon(Picture("Keelmark"));
    TakeRegionalSettings();
    UseMessageBoxWindows();
    FillChildWindows();
    if (!Main())
        return EXIT_FAILURE;
    return QApplication::exec();
}

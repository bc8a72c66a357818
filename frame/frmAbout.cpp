#include "frame/frmAbout.h"

#include "core/numeric/NumericText.h"
#include "frame/ImageList.h"
#include "frame/VendorAddresses.h"
#include "frame/frmTipOfDay.h"
#include "frame/mdlMain.h"
#include "frame/platform/Form.h"
#include "frame/platform/Settings.h"
#include "ui_frmAbout.h"

frmAbout::frmAbout(QWidget *parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , mUi(std::make_unique<Ui::frmAbout>())
{
    mUi->setupUi(this);
    QFont title = font();
    title.setPointSizeF(title.pointSizeF() * 2.4);
    title.setBold(true);
    mUi->lblTitle->setFont(title);
    mUi->lblEdition->setText(VendorAddresses::Edition);
    mUi->Image2->setPixmap(Picture("About").pixmap(QSize(175, 240)));
    connect(mUi->cmdContinue, &QPushButton::clicked, this, &frmAbout::cmdContinue_Click);
    Forms::Add(this);
}

frmAbout::~frmAbout()
{
    Forms::Remove(this);
}

void frmAbout::cmdContinue_Click()
{
    Forms::Remove(this);
    accept();
    // A setting that is no number must not keep the user out for good.
    const std::string setting = GetSetting(TipSetting::Section, TipSetting::Key, "1");
    if (!IsNumericText(setting) || NumericTextToDecimal(setting) == Decimal(1))
        ShowTipOfDay();
    else
        ShowMainWindow();
}

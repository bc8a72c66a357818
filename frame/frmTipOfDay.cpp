#include "frame/frmTipOfDay.h"

#include "core/MsgBox.h"
#include "frame/ImageList.h"
#include "frame/mdlMain.h"
#include "frame/platform/Machine.h"
#include "frame/platform/Settings.h"
#include "ui_frmTipOfDay.h"

frmTipOfDay::frmTipOfDay(QWidget *parent)
    : Form(parent)
    , mUi(std::make_unique<Ui::frmTipOfDay>())
{
    mUi->setupUi(this);
    QFont heading = font();
    heading.setPointSizeF(heading.pointSizeF() * 1.4);
    heading.setBold(true);
    mUi->Label1->setFont(heading);
    // Room for a long tip, whatever the font.
    constexpr int kCharacters = 48;
    constexpr int kLines = 7;
    mUi->lblTipText->setMinimumSize(fontMetrics().averageCharWidth() * kCharacters,
                                    fontMetrics().lineSpacing() * kLines);
    mUi->Picture1->setPixmap(Picture("TipOfDay").pixmap(QSize(40, 40)));
    mUi->fmeTip->setBackgroundRole(QPalette::Base);
    mUi->cmdOK->setFocus();
    connect(mUi->chkLoadTipsAtStartup, &QCheckBox::clicked, this,
            [](bool checked) { SaveSetting(TipSetting::Section, TipSetting::Key, checked ? "1" : "0"); });
    connect(mUi->cmdNextTip, &QPushButton::clicked, this, &frmTipOfDay::DoNextTip);
    connect(mUi->cmdOK, &QPushButton::clicked, this, &Form::Unload);
}

frmTipOfDay::~frmTipOfDay() = default;

frmTipOfDay &frmTipOfDay::Global()
{
    for (QWidget *window : Forms::All()) {
        if (auto *tip = qobject_cast<frmTipOfDay *>(window))
            return *tip;
    }
    return *new frmTipOfDay;
}

void frmTipOfDay::Form_Load()
{
    try {
        static_cast<void>(CenterForm(*this));
        rsTips.Reopen("SELECT Tip FROM TipOfDay", CursorType::Static, LockType::ReadOnly);
        // Meant: the box is ticked whatever the setting says, which only a click changes.
        mUi->chkLoadTipsAtStartup->setChecked(true);
        SeedRandom();
        LoadTips();
    } catch (const RuntimeError &) {
        MsgBox("An internal error has occured."
               "Please contact us with the error code on the titlebar of this dialog box.",
               MsgIcon::Critical, "Keelmark-10102");
    }
}

bool frmTipOfDay::LoadTips()
{
    for (const Recordset::Row &row : rsTips.EachRow())
        mTips.push_back(row.Fields("Tip").Text());
    DoNextTip();
    return true;
}

void frmTipOfDay::DoNextTip()
{
    mCurrentTip = static_cast<std::int32_t>(RandomNumber() * static_cast<double>(mTips.size()) + 1);
    DisplayCurrentTip();
}

void frmTipOfDay::DisplayCurrentTip()
{
    if (mTips.empty())
        return;
    const QString tip = QString::fromStdString(mTips.at(static_cast<std::size_t>(mCurrentTip - 1)));
    mUi->lblTipText->setText(tip);
    mUi->lblTipText->setAccessibleDescription(tip);
}

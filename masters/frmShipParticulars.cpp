#include "masters/frmShipParticulars.h"

#include "frame/controls/Headings.h"
#include "frame/controls/ScreenText.h"
#include "frame/mdlMain.h"
#include "ui_frmShipParticulars.h"

#include <QKeyEvent>

#include <algorithm>

frmShipParticulars::frmShipParticulars(QWidget *parent)
    : Form(parent)
    , ui(std::make_unique<Ui::frmShipParticulars>())
{
    ui->setupUi(this);
    ScaleFont(*ui->lblHeading, kHeadingSize);
    ScaleFont(*ui->lblPortNote, kLegendSize);
    ScaleFont(*ui->fmeLegend, kLegendSize);
    ui->cmbShipName->setEditable(true);
    for (const TextField &field : kTextFields)
        mTextBoxes.emplace_back(*((*ui).*field.box), field.column);
    ConnectEvents();
}

frmShipParticulars::~frmShipParticulars() = default;

void frmShipParticulars::ConnectEvents()
{
    // Meant: a name that is typed changes nothing by itself, only a name that is picked does.
    connect(ui->cmbShipName, &QComboBox::activated, this, &frmShipParticulars::cmbShipName_Click);
    connect(ui->dcbPortOfRegistry, &DataCombo::Changed, this, &frmShipParticulars::FieldChanged);
    for (const StoredBox &text : mTextBoxes)
        connect(&text.Box(), &QLineEdit::textChanged, this, &frmShipParticulars::FieldChanged);
    ConnectChecks();
}

void frmShipParticulars::Form_Load()
{
    static_cast<void>(CenterForm(*this));
    InitShipForm();
    mDirty = false;
    mLoading = false;
    ui->cmbShipName->setFocus();
}

void frmShipParticulars::InitShipForm()
{
    rsShip.Reopen("SELECT * FROM Ship ORDER BY ShipName", CursorType::Static, LockType::ReadOnly);
    FillShipCombo();
    const bool anyShip = rsShip.RecordCount() > 0;
    if (anyShip) {
        mRecordMode = 1;
        SendMask("111001111");
    } else {
        // Meant: not stored, so that the activation that follows turns all commands off.
        SendMaskOnce("011001011");
        mRecordMode = 0;
        ClearShip();
    }
    rsPort.Reopen("SELECT * FROM Port ORDER BY PortName", CursorType::Static, LockType::ReadOnly);
    ui->dcbPortOfRegistry->SetRows(rsPort, "PortName", "PortID");
    if (anyShip)
        ShowFirstShip();
}

void frmShipParticulars::Form_Activate()
{
    SendMask(ButtonMask());
    SetHint({});
}

bool frmShipParticulars::Form_KeyPress(QKeyEvent &event)
{
    if (event.key() != Qt::Key_Return && event.key() != Qt::Key_Enter)
        return false;
    SendTab();
    return true;
}

void frmShipParticulars::FillShipCombo()
{
    const QString name = ui->cmbShipName->Text();
    ui->cmbShipName->SetRows(rsShip, "ShipName");
    if (name.isEmpty())
        return;
    rsShip.FindFirst("ShipName = '" + name.toStdString() + "'");
    ui->cmbShipName->SetText(ScreenText(rsShip.Fields("ShipName")));
}

void frmShipParticulars::ShowFirstShip()
{
    rsShip.MoveFirst();
    ShowShip();
}

void frmShipParticulars::ShowShip()
{
    ui->cmbShipName->SetText(ScreenText(TextOrEmpty(rsShip.Fields("ShipName"))));
    ui->dcbPortOfRegistry->SetBoundValue(rsShip.Fields("PortOfRegistry"));
    for (const StoredBox &text : mTextBoxes)
        text.Show(rsShip.Fields(text.Column()));
}

void frmShipParticulars::ClearShip()
{
    ui->cmbShipName->SetText({});
    ui->dcbPortOfRegistry->SetText({});
    for (const StoredBox &text : mTextBoxes)
        text.Clear();
}

void frmShipParticulars::cmbShipName_Click()
{
    if (mRecordMode == 0) {
        mRecordMode = 1;
        SendMask("110000101");
    }
    rsShip.FindFirst("ShipName = '" + ui->cmbShipName->Text().toStdString() + "'");
    if (rsShip.AtEnd())
        return;
    mLoading = true;
    ShowShip();
    mLoading = false;
}

void frmShipParticulars::FieldChanged()
{
    if (!mLoading)
        mDirty = true;
}

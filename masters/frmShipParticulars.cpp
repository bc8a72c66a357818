#include "masters/frmShipParticulars.h"

#include "frame/controls/Headings.h"
#include "frame/controls/ScreenText.h"
#include "frame/mdlMain.h"
#include "ui_frmShipParticulars.h"

#include <QKeyEvent>

#include <algorithm>

namespace
{

QString StoredText(const Value &value)
{
    return value.IsNull() ? QString() : ScreenText(value);
}
} // namespace

frmShipParticulars::frmShipParticulars(QWidget *parent)
    : Form(parent)
    , ui(std::make_unique<Ui::frmShipParticulars>())
{
    ui->setupUi(this);
    ScaleFont(*ui->lblHeading, kHeadingSize);
    ScaleFont(*ui->lblPortNote, kLegendSize);
    ScaleFont(*ui->fmeLegend, kLegendSize);
    ui->cmbShipName->setEditable(true);
    CollectTextBoxes();
    ConnectEvents();
}

frmShipParticulars::~frmShipParticulars() = default;

void frmShipParticulars::CollectTextBoxes()
{
    const QLatin1String prefix("txt");
    for (QLineEdit *box : findChildren<QLineEdit *>()) {
        const QString name = box->objectName();
        if (name.startsWith(prefix))
            mTextBoxes.push_back({box, name.mid(prefix.size()).toStdString(), box->maxLength()});
    }
}

// A longer text from the store has raised the limit for itself alone.
void frmShipParticulars::LowerLimit(const TextBox &text)
{
    if (text.box->maxLength() == text.limit)
        return;
    const int cursor = text.box->cursorPosition();
    text.box->setMaxLength(std::max(text.limit, static_cast<int>(text.box->text().size())));
    text.box->setCursorPosition(cursor);
}

void frmShipParticulars::ConnectEvents()
{
    // Meant: a name that is typed changes nothing by itself, only a name that is picked does.
    connect(ui->cmbShipName, &QComboBox::activated, this, &frmShipParticulars::cmbShipName_Click);
    connect(ui->dcbPortOfRegistry, &DataCombo::Changed, this, &frmShipParticulars::FieldChanged);
    for (const TextBox &text : mTextBoxes) {
        connect(text.box, &QLineEdit::textChanged, this, &frmShipParticulars::FieldChanged);
        connect(text.box, &QLineEdit::textEdited, this, [text] { LowerLimit(text); });
    }
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
    rsShip.Find("ShipName = '" + name.toStdString() + "'", 0, Recordset::kSearchForward, Recordset::kBookmarkFirst);
    ui->cmbShipName->SetText(ScreenText(rsShip.Fields("ShipName")));
}

void frmShipParticulars::ShowFirstShip()
{
    rsShip.MoveFirst();
    ShowShip();
}

void frmShipParticulars::ShowShip()
{
    ui->cmbShipName->SetText(StoredText(rsShip.Fields("ShipName")));
    ui->dcbPortOfRegistry->SetBoundValue(rsShip.Fields("PortOfRegistry"));
    for (const TextBox &text : mTextBoxes) {
        const QString stored = StoredText(rsShip.Fields(text.column));
        // The limit is for typing: a number that came into the store otherwise must not lose its last digits.
        text.box->setMaxLength(std::max(text.limit, static_cast<int>(stored.size())));
        text.box->setText(stored);
        text.box->setCursorPosition(0);
    }
}

void frmShipParticulars::ClearShip()
{
    ui->cmbShipName->SetText({});
    ui->dcbPortOfRegistry->SetText({});
    for (const TextBox &text : mTextBoxes) {
        text.box->setMaxLength(text.limit);
        text.box->clear();
    }
}

void frmShipParticulars::cmbShipName_Click()
{
    if (mRecordMode == 0) {
        mRecordMode = 1;
        SendMask("110000101");
    }
    rsShip.MoveFirst();
    rsShip.Find("ShipName = '" + ui->cmbShipName->Text().toStdString() + "'");
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

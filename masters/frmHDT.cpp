#include "masters/frmHDT.h"

#include "core/MsgBox.h"
#include "frame/controls/Colours.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/Headings.h"
#include "frame/controls/ScreenText.h"
#include "frame/mdlMain.h"
#include "masters/HydrostaticColumn.h"
#include "ui_frmHDT.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace
{
constexpr int kEntryRow = 1;
constexpr int kTwipsPerPixel = 15;
constexpr int kDisplacementTwips = 1200;
constexpr int kCaptionMargins = 14;
constexpr int kPickRow = 1;
constexpr int kHintIndent = 6;

QStringList Captions()
{
    QStringList captions;
    for (const HydrostaticColumn &column : HydrostaticColumn::All())
        captions.append(QStringLiteral("%1 (%2)").arg(ScreenText(column.header), ScreenText(column.unit)));
    return captions;
}
} // namespace

frmHDT::frmHDT(QWidget *parent)
    : Form(parent)
    , ui(std::make_unique<Ui::frmHDT>())
{
    ui->setupUi(this);
    BuildWindow();
    ConnectEvents();
}

frmHDT::~frmHDT()
{
    // The grid goes after the table that it reads.
    ui->tdbHDT->setModel(nullptr);
}

void frmHDT::BuildWindow()
{
    txtGridTextbox = new FloatingEditor(ui->fgrdInsertHD->parentWidget());
    txtGridTextbox->setObjectName(QStringLiteral("txtGridTextbox"));
    txtGridTextbox->setAccessibleName(ScreenText(HydrostaticColumn::At(HydrostaticColumn::HydDraft).header));
    // Unlike other editors of its kind it is a tab stop: the way into the entry row by keyboard.
    txtGridTextbox->setFocusPolicy(Qt::StrongFocus);
    QWidget::setTabOrder(ui->dcbShipName, txtGridTextbox);
    QWidget::setTabOrder(txtGridTextbox, ui->tdbHDT);
    arrHDT.Redimension(-1, -1, 0, HydrostaticColumn::Last);
    ui->tdbHDT->SetArray(arrHDT, Captions());
    ui->fgrdInsertHD->SetSize(kEntryRow + 1, HydrostaticColumn::Count);
    FitColumns();
    lblHint = new QLabel(ScreenText("You can view Hydrostatic Data for a particular ship from here"));
    lblHint->setObjectName(QStringLiteral("sbHDT(1)"));
    lblHint->setAccessibleName(tr("Hint"));
    lblHint->setIndent(kHintIndent);
    ui->sbHDT->addWidget(lblHint, 1);
    for (QLabel *legend : {ui->lblNewShip, ui->lblLegend, ui->lblCtrlN, ui->lblCtrlS, ui->lblDel, ui->lblCtrlF4}) {
        ScaleFont(*legend, kLegendSize);
    }
    ShowLocked(*this);
}

void frmHDT::ConnectEvents()
{
    connect(ui->dcbShipName, &DataCombo::Changed, this, &frmHDT::dcbShipName_Change);
    connect(ui->fgrdInsertHD, &Grid::EnterCell, this, &frmHDT::fgrdInsertHD_EnterCell);
    connect(ui->fgrdInsertHD, &Grid::LeaveCell, this, &frmHDT::fgrdInsertHD_LeaveCell);
    connect(ui->tdbHDT, &RowGrid::MouseDown, this, [this] { ui->tdbHDT->PostMsg(kPickRow); });
    connect(ui->tdbHDT, &RowGrid::DeleteDown, this, &frmHDT::tdbHDT_DeleteDown);
    connect(ui->tdbHDT, &RowGrid::PostEvent, this, &frmHDT::tdbHDT_PostEvent);
    txtGridTextbox->OnKeyDown([this](const QKeyEvent &event) { return txtGridTextbox_KeyDown(event); });
    OnValidate(txtGridTextbox, [this](bool &cancel) { txtGridTextbox_Validate(cancel); });
}

void frmHDT::changeEvent(QEvent *event)
{
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowLocked(*this);
}

void frmHDT::Form_Load()
{
    static_cast<void>(CenterForm(*this));
    mLoading = true;
    mButtonMask = "110000001";
    InitEntryGrid();
    InitHDTRecordset();
    InitShipRecordset();
    mRowStarted = false;
    mCellChanged = false;
    mTableChanged = false;
    mLoading = false;
    // Not before the mask is stored: the focus makes the window the active one, which sends it.
    ui->dcbShipName->setFocus();
}

void frmHDT::Form_Activate()
{
    SendMask(ButtonMask());
    SetHint(QString());
}

void frmHDT::Form_Unload(bool & /*cancel*/)
{
    ChildUnloaded();
}

bool frmHDT::Form_KeyPress(QKeyEvent &event)
{
    if (event.key() != Qt::Key_F4 || event.modifiers() != Qt::ControlModifier || !ui->dcbShipName->hasFocus())
        return false;
    Unload();
    return true;
}

void frmHDT::InitEntryGrid()
{
    Grid &grid = *ui->fgrdInsertHD;
    grid.SetFixed(kEntryRow, 0);
    for (int column = 0; column < HydrostaticColumn::Count; ++column)
        grid.SetCell(0, column, ScreenText(HydrostaticColumn::At(column).header));
    txtGridTextbox->Place(grid, kEntryRow, 0);
}

// Both grids get the same columns, so that each entry stands above the column that it goes to.
void frmHDT::FitColumns()
{
    const QFontMetrics metrics = ui->tdbHDT->fontMetrics();
    int displacement = kDisplacementTwips / kTwipsPerPixel;
    int others = 0;
    const QStringList captions = Captions();
    for (int column = 0; column < HydrostaticColumn::Count; ++column) {
        int &width = column == HydrostaticColumn::Displacement ? displacement : others;
        width = std::max(width, metrics.horizontalAdvance(captions.at(column)) + kCaptionMargins);
    }
    for (QTableView *grid : std::initializer_list<QTableView *> {ui->fgrdInsertHD, ui->tdbHDT}) {
        grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
        grid->horizontalHeader()->setSectionResizeMode(HydrostaticColumn::Displacement, QHeaderView::Fixed);
        grid->setColumnWidth(HydrostaticColumn::Displacement, displacement);
    }
    Grid &entry = *ui->fgrdInsertHD;
    entry.setFixedHeight(entry.verticalHeader()->length() + 2 * entry.frameWidth());
    const int bar = ui->tdbHDT->verticalScrollBar()->sizeHint().width();
    ui->layEntry->setContentsMargins(0, 0, bar, 0);
    ui->tdbHDT->setMinimumWidth(displacement + HydrostaticColumn::Last * others + bar + 2 * ui->tdbHDT->frameWidth());
}

void frmHDT::InitHDTRecordset()
{
    rsHDT.Reopen("SELECT * FROM HydrostaticDataTable ORDER BY TMD", CursorType::Static, LockType::ReadOnly);
}

void frmHDT::InitShipRecordset()
{
    rsShip.Reopen("SELECT Ship.ShipID, Ship.ShipName, Ship.CallSign, Port.PortName,"
                  " Ship.Flag, Ship.OfficialNo, Ship.IMONo"
                  " FROM Ship LEFT JOIN Port ON Ship.PortOfRegistry = Port.PortID",
                  CursorType::Static, LockType::ReadOnly);
    ui->dcbShipName->SetRows(rsShip, "ShipName", "ShipID");
    if (rsShip.RecordCount() == 0)
        return;
    rsShip.MoveFirst();
    ui->dcbShipName->SetBoundValue(rsShip.Fields("ShipID"));
    dcbShipName_Change();
}

void frmHDT::dcbShipName_Change()
{
    if (!mLoading && mTableChanged && MaySaveChanges())
        RSave(false);
    const Value bound = ui->dcbShipName->BoundValue();
    mShipID = bound.ToLong();
    const std::string criterion = "ShipID = " + bound.SqlText();
    rsShip.FindFirst(criterion);
    if (rsShip.AtEnd())
        return;
    ShowShip();
    if (mEditRow == 1)
        ClearEntryRow();
    mEditRow = 0;
    rsHDT.Filter(criterion);
    mRowCount = rsHDT.RecordCount();
    // The mask stays as it was for a ship without rows; this is meant.
    if (mRowCount == 0)
        EmptyTable();
    else
        ShowTable();
    SendTab();
}

bool frmHDT::MaySaveChanges()
{
    return MsgBox(Message {.text = "Save changes to the Hydrostatic data ?",
                           .icon = MsgIcon::Question,
                           .buttons = MsgButtons::YesNo})
        == MsgAnswer::Yes;
}

void frmHDT::ShowShip()
{
    const auto show = [this](QLineEdit &field, const char *column) {
        field.setText(ScreenText(TextOrEmpty(rsShip.Fields(column))));
    };
    show(*ui->txtPortOfRegistry, "PortName");
    show(*ui->txtCallSign, "CallSign");
    show(*ui->txtOfficialNo, "OfficialNo");
    show(*ui->txtFlag, "Flag");
    show(*ui->txtIMONo, "IMONo");
}

void frmHDT::ShowTable()
{
    arrHDT.Redimension(0, mRowCount, 0, HydrostaticColumn::Last);
    arrHDT.Clear();
    for (std::int32_t row = 0; const Recordset::Row &stored : rsHDT.EachRow()) {
        for (int column = 0; column < HydrostaticColumn::Count; ++column)
            arrHDT.Cell(row, column, TextOrEmpty(stored.Fields(HydrostaticColumn::At(column).storeColumn)));
        ++row;
    }
    ui->tdbHDT->ReBind();
    SendMask("110000101");
}

void frmHDT::EmptyTable()
{
    arrHDT.Redimension(-1, -1, 0, HydrostaticColumn::Last);
    arrHDT.Clear();
    ui->tdbHDT->ReBind();
}

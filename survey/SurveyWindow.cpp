#include "survey/SurveyWindow.h"

#include "frame/controls/Colours.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/SelectOnFocus.h"
#include "frame/mdlMain.h"
#include "survey/SurveyLook.h"
#include "ui_SurveyWindow.h"

#include <QKeyEvent>
#include <utility>

namespace
{
const QStringList kWakeNewDaily {"txtDensity",     "txtFwdPort", "txtFwdStbd", "txtMidShipPort",
                                 "txtMidshipStbd", "txtAftPort", "txtAftStbd"};
} // namespace

SurveyWindow::SurveyWindow(const QString &caption, QWidget *parent)
    : Form(parent)
    , ui(std::make_unique<Ui::SurveyWindow>())
{
    ui->setupUi(this);
    setWindowTitle(caption);
    BuildWindow();
    ConnectEvents();
}

SurveyWindow::~SurveyWindow() = default;

void SurveyWindow::BuildWindow()
{
    for (const Stage &stage : Stage::All())
        ui->sstDraftSurvey->addTab(stage.Caption());
    ui->sstDraftSurvey->updateGeometry();
    ui->chkDailyListCorrection->hide();
    ui->chkFinalListCorrection->hide();
    ui->mbxDate->SetMask(QStringLiteral("99-99-9999"));
    ui->mbxTime->SetMask(QStringLiteral("99:99"));
    txtGridTextbox = new FloatingEditor(ui->fgrdDeduction->parentWidget());
    txtGridTextbox->setObjectName(QStringLiteral("txtGridTextbox"));
    txtGridTextbox->setAccessibleName(tr("Quantity of the deductible, tonnes"));
    txtGridTextbox->setMaxLength(10);
    SetTabOrder();
    LayOutGrids();
    ClearListCorrection();
    ui->fgrdDeduction->SetSize(0, 2);
    FitGrids(*ui);
    FitFields(*this);
    ShowLocked(*this);
}

QWidget &SurveyWindow::AddStageFrames()
{
    auto *frames = new QWidget;
    ui->layStageFrames->addWidget(frames);
    return *frames;
}

void SurveyWindow::FitStageFrames()
{
    FitFields(*ui->wgtStageFrames);
    ShowLocked(*ui->wgtStageFrames);
}

QSize SurveyWindow::sizeHint() const
{
    // What was set after the last layout counts too.
    ui->layDraftSurvey->activate();
    ui->laySurvey->activate();
    // The scroll area's own hint is capped far below what the window holds.
    return ui->wgtSurvey->sizeHint();
}

void SurveyWindow::changeEvent(QEvent *event)
{
    Form::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        ShowLocked(*this);
}

void SurveyWindow::SetTabOrder()
{
    const std::array<QWidget *, 15> order {ui->dcbShip,    ui->dcbVoyageID,    ui->dcbPort,        ui->txtCargo,
                                           ui->txtDensity, ui->mbxDate,        ui->mbxTime,        ui->txtFwdPort,
                                           ui->txtFwdStbd, ui->txtMidShipPort, ui->txtMidshipStbd, ui->txtAftPort,
                                           ui->txtAftStbd, txtGridTextbox,     ui->txtComments};
    for (std::size_t i = 1; i < order.size(); ++i)
        QWidget::setTabOrder(order[i - 1], order[i]);
}

void SurveyWindow::ConnectEvents()
{
    connect(ui->sstDraftSurvey, &QTabBar::currentChanged, this, [this](int tab) {
        const int previous = std::exchange(mTab, tab);
        sstDraftSurvey_Click(previous);
    });
    connect(ui->dcbShip, &DataCombo::Changed, this, &SurveyWindow::dcbShip_Change);
    connect(ui->dcbVoyageID, &DataCombo::Changed, this, &SurveyWindow::dcbVoyageID_Change);
    connect(ui->dcbPort, &DataCombo::Changed, this, &SurveyWindow::dcbPort_Change);
    connect(ui->dcbDate, &DataCombo::Changed, this, &SurveyWindow::dcbDate_Change);
    connect(ui->cmbTime, &QComboBox::activated, this, &SurveyWindow::cmbTime_Click);
    connect(ui->txtCargo, &QLineEdit::textChanged, this, [this] {
        if (!mNoEvents)
            mHeaderDirty = true;
    });
    connect(ui->cmdCalculate, &QPushButton::clicked, this, &SurveyWindow::Calculate);
    connect(ui->cmdNewDailyDraft, &QPushButton::clicked, this, &SurveyWindow::cmdNewDailyDraft_Click);
    connect(ui->cmdGetDrafts, &QPushButton::clicked, this, &SurveyWindow::cmdGetDrafts_Click);
    for (const Stage &stage : Stage::All())
        connect(&ListCorrectionOf(stage), &QCheckBox::toggled, this, [this, stage] { ListCorrection_Click(stage); });

    connect(ui->fgrdDeduction, &Grid::EnterCell, this, &SurveyWindow::fgrdDeduction_EnterCell);
    connect(ui->fgrdDeduction, &Grid::LeaveCell, this, &SurveyWindow::fgrdDeduction_LeaveCell);
    txtGridTextbox->OnKeyDown([this](const QKeyEvent &event) { return txtGridTextbox_KeyDown(event); });

    OnValidate(ui->dcbShip, [this](bool &cancel) { dcbShip_Validate(cancel); });
    OnValidate(ui->txtDensity, [this](bool &cancel) { txtDensity_Validate(cancel); });
    OnValidate(ui->mbxDate, [this](bool &cancel) { mbxDate_Validate(cancel); });
    OnValidate(ui->mbxTime, [this](bool &cancel) { mbxTime_Validate(cancel); });
    OnValidate(txtGridTextbox, [this](bool &cancel) { txtGridTextbox_Validate(cancel); });
    for (QLineEdit *mark :
         {ui->txtFwdPort, ui->txtFwdStbd, ui->txtMidShipPort, ui->txtMidshipStbd, ui->txtAftPort, ui->txtAftStbd}) {
        OnValidate(mark, [this, mark](bool &cancel) { NumberField_Validate(*mark, cancel); });
        mark->installEventFilter(this);
    }
    ui->txtDensity->installEventFilter(this);
    ui->txtCargo->installEventFilter(this);
}

bool SurveyWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        SelectOnFocus(static_cast<QLineEdit &>(*watched), static_cast<QFocusEvent *>(event)->reason());
    } else if (event->type() == QEvent::KeyPress && kWakeNewDaily.contains(watched->objectName())) {
        const auto &key = static_cast<QKeyEvent &>(*event);
        const bool leaves = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Tab
            || key.key() == Qt::Key_Backtab;
        if (!key.text().isEmpty() && !leaves)
            ui->cmdNewDailyDraft->setEnabled(true);
    }
    return Form::eventFilter(watched, event);
}

void SurveyWindow::Form_Load()
{
    static_cast<void>(CenterForm(*this));
    InitShipDataCombo();
    InitVoyageIDDataCombo();
    InitPortDataCombo();
    InitDateDataCombo();
    InitializeAllGrids(true);
    for (const Stage &stage : Stage::All())
        DraftOf(stage).DraftType(stage.DraftType());
    mMode = 0;
    NewDraft();
    ResetWorkspace(true);
    mHeaderDirty = false;
    ui->dcbShip->setFocus();
}

void SurveyWindow::Form_Activate()
{
    SendMask(ButtonMask());
}

void SurveyWindow::Form_Unload(bool &cancel)
{
    RClose(cancel);
    if (!cancel)
        ChildUnloaded();
}

void SurveyWindow::TellExclamation(std::string_view text)
{
    MsgBox(text, MsgIcon::Exclamation);
}

void SurveyWindow::TellInvalidInput(std::string_view text)
{
    TellExclamation(std::string(text).append(kTwoLineBreaks).append("Please check your input values."));
}

void SurveyWindow::TellSource(const RuntimeError &error, std::string_view source)
{
    // Both survey windows report under the loading window's name.
    MsgBox(error.Description().append(kTwoLineBreaks).append("Source :  frmDraftSurvey::").append(source),
           MsgIcon::Critical);
}

#include "survey/SurveyWindow.h"

#include "frame/controls/Colours.h"
#include "frame/controls/FloatingEditor.h"
#include "frame/controls/SelectOnFocus.h"
#include "frame/mdlMain.h"
#include "survey/SurveyControls.h"
#include "survey/SurveyLook.h"

#include <QKeyEvent>

#include <utility>

namespace
{
std::unique_ptr<Ui::SurveyWindow> MakeControls(QWidget &window)
{
    auto controls = std::make_unique<Ui::SurveyWindow>();
    controls->setupUi(&window);
    return controls;
}
} // namespace

SurveyWindow::SurveyWindow(const SurveyKind &kind, QWidget *parent)
    : Form(parent)
    , mKind(kind)
    , ui(MakeControls(*this))
    , mSurvey(kind.direction)
    , mLists(*ui, mSurvey)
    , mHeader(*ui, mSurvey, mLists)
    , mResults(*ui)
    , mEntries(*this, *ui, kind)
    , mDeductions(*ui->fgrdDeduction)
{
    setObjectName(QLatin1String(kind.name));
    setWindowTitle(QLatin1String(kind.title));
    BuildWindow();
    ConnectEvents();
}

SurveyWindow::~SurveyWindow() = default;

void SurveyWindow::BuildWindow()
{
    for (const Stage &stage : Stage::All())
        ui->sstDraftSurvey->addTab(QLatin1String(stage.Caption()));
    ui->sstDraftSurvey->updateGeometry();
    ui->chkDailyListCorrection->hide();
    ui->chkFinalListCorrection->hide();
    ui->mbxDate->SetMask(QStringLiteral("99-99-9999"));
    ui->mbxTime->SetMask(QStringLiteral("99:99"));
    mPanel = mKind.makePanel({*this, *ui, mSurvey, mLists, mResults});
    ui->layStageFrames->addWidget(mPanel);
    mLists.UseBaselines(mPanel->Baselines(), [this] { mPanel->BaselinePicked(); });
    SetEntryOrder(*ui, mDeductions.Editor());
    mResults.ShowFresh(Stage::Initial, mKind.freshCaptions[0]);
    mResults.ClearListCorrection();
    FitGrids(*ui);
    FitFields(*this);
    ShowLocked(*this);
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

void SurveyWindow::ConnectEvents()
{
    const auto headerChanged = [this] {
        if (!mNoEvents)
            mSurvey.HeaderDirty(true);
    };
    connect(ui->sstDraftSurvey, &QTabBar::currentChanged, this, [this](int tab) {
        const int previous = std::exchange(mTab, tab);
        sstDraftSurvey_Click(previous);
    });
    connect(ui->dcbShip, &DataCombo::Changed, this, [this] { mHeader.ShipPicked(); });
    connect(ui->dcbVoyageID, &DataCombo::Changed, this, headerChanged);
    connect(ui->dcbPort, &DataCombo::Changed, this, headerChanged);
    connect(ui->txtCargo, &QLineEdit::textChanged, this, headerChanged);
    connect(ui->dcbDate, &DataCombo::Changed, this, [this] {
        if (ui->dcbDate->Text().isEmpty())
            return;
        ui->mbxDate->SetText(ui->dcbDate->Text());
        mLists.ShowTimesOfPickedDate();
    });
    connect(ui->cmbTime, &QComboBox::activated, this, [this] {
        if (!ui->cmbTime->currentText().isEmpty())
            ui->mbxTime->SetText(ui->cmbTime->currentText());
    });
    connect(ui->cmdCalculate, &QPushButton::clicked, this, &SurveyWindow::Calculate);
    connect(ui->cmdNewDailyDraft, &QPushButton::clicked, this, &SurveyWindow::cmdNewDailyDraft_Click);
    connect(ui->cmdGetDrafts, &QPushButton::clicked, this, &SurveyWindow::cmdGetDrafts_Click);
    for (const Stage &stage : Stage::All())
        connect(&ListCorrectionOf(stage), &QCheckBox::toggled, this, [this, stage] { ListCorrection_Click(stage); });
    connect(&mDeductions, &DeductionGrid::Changed, this, [this] { mSurvey.Draft(ActiveStage()).ToSave(true); });
    for (QLineEdit *field : {ui->txtCargo, ui->txtDensity, ui->txtFwdPort, ui->txtFwdStbd, ui->txtMidShipPort,
                             ui->txtMidshipStbd, ui->txtAftPort, ui->txtAftStbd})
        field->installEventFilter(this);
    mDeductions.UseRule({.places = 4,
                         .lowAccepted = true,
                         .high = 100000,
                         .notANumber = "Invalid quantity.\n\nPlease enter numeric value only.",
                         .outOfRange = std::string("Invalid value.\n\n") + mKind.quantityRange});
    OnValidate(&mDeductions.Editor(), [this](bool &cancel) { mDeductions.Validate(cancel); });
    OnValidate(ui->dcbShip, [this](bool &cancel) { mHeader.CheckShip(cancel); });
    if (mKind.cargoLeftIsChange)
        OnValidate(ui->txtCargo, [this](bool &) { mSurvey.HeaderDirty(true); });
}

bool SurveyWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn) {
        SelectOnFocus(static_cast<QLineEdit &>(*watched), static_cast<QFocusEvent *>(event)->reason());
    } else if (event->type() == QEvent::KeyPress && watched != ui->txtCargo) {
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
    mLists.InitShipDataCombo();
    mLists.InitVoyageIDDataCombo();
    mLists.InitPortDataCombo();
    mLists.InitDateDataCombo();
    InitializeAllGrids(true);
    NewDraft();
    ResetWorkspace(true);
    mSurvey.HeaderDirty(false);
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

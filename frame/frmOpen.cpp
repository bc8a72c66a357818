#include "frame/frmOpen.h"

#include "frame/ImageList.h"
#include "frame/controls/Colours.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "ui_frmOpen.h"

#include <QPushButton>

namespace
{
constexpr const char *kShipData = "Ship Data";
constexpr const char *kDraftSurvey = "Draft Survey";

struct Item {
    const char *node;
    const char *text;
    int image;
    ChildWindow window;
};

// Deductions stay here though no list offers them.
constexpr Item kItems[] = {
    {kShipData, "Ship Particulars", 1, ChildWindow::ShipParticulars},
    {kShipData, "Hydrostatic Data", 2, ChildWindow::HydrostaticData},
    {kShipData, "Port", 4, ChildWindow::Port},
    {kDraftSurvey, "Loading Survey", 6, ChildWindow::Loading},
    {kDraftSurvey, "Discharging Survey", 7, ChildWindow::Discharging},
    {"", "Deductions", 0, ChildWindow::DeductionMaster},
};

const ImageList &ImageList1()
{
    static const ImageList images({"ShipParticulars", "HDT", "", "PortMaster", "", "Loading", "Discharging"});
    return images;
}

QTreeWidgetItem *AddNode(QTreeWidget &tree, QTreeWidgetItem *parent, const char *text)
{
    const QStringList texts {QString::fromLatin1(text)};
    return parent ? new QTreeWidgetItem(parent, texts) : new QTreeWidgetItem(&tree, texts);
}
} // namespace

frmOpen::frmOpen(QWidget *parent)
    : QDialog(parent)
    , mUi(std::make_unique<Ui::frmOpen>())
{
    mUi->setupUi(this);
    ShowLocked(*this);
    const QSize label(fontMetrics().horizontalAdvance(QStringLiteral("Discharging Survey")), fontMetrics().height());
    mUi->lvOpen->setGridSize(mUi->lvOpen->gridSize().expandedTo(label + QSize(16, 56)));
    mUi->tvOpen->setMinimumWidth(label.width() + 40);
    constexpr int kItemsOfALine = 3;
    mUi->lvOpen->setMinimumWidth(kItemsOfALine * mUi->lvOpen->gridSize().width() + 4 * mUi->lvOpen->frameWidth() + 16);
    connect(mUi->tvOpen, &QTreeWidget::itemSelectionChanged, this, &frmOpen::tvOpen_NodeClick);
    connect(mUi->tvOpen, &QTreeWidget::itemClicked, this, &frmOpen::tvOpen_NodeClick);
    connect(mUi->lvOpen, &QListWidget::itemSelectionChanged, this, &frmOpen::lvOpen_ItemClick);
    connect(mUi->lvOpen, &QListWidget::itemClicked, this, &frmOpen::lvOpen_ItemClick);
    mUi->lvOpen->viewport()->installEventFilter(this);
    connect(mUi->txtFormToOpen, &QLineEdit::textChanged, this,
            [this](const QString &text) { mUi->cmdOpen->setEnabled(!text.trimmed().isEmpty()); });
    connect(mUi->cmdOpen, &QPushButton::clicked, this, &frmOpen::cmdOpen_Click);
    connect(mUi->cmdCancel, &QPushButton::clicked, this, &QDialog::reject);
    Forms::Add(this);
    Form_Load();
}

frmOpen::~frmOpen()
{
    Forms::Remove(this);
}

void frmOpen::Form_Load()
{
    QTreeWidgetItem *root = AddNode(*mUi->tvOpen, nullptr, "Draft Survey");
    AddNode(*mUi->tvOpen, root, kShipData)->setExpanded(true);
    AddNode(*mUi->tvOpen, root, kDraftSurvey);
    root->setExpanded(true);
    ShowItems(kShipData);
}

void frmOpen::Form_Unload()
{
    // This dialog counts here, so the hint comes back only when the main window is the active one again.
    if (frmMDI *frame = frmMDI::Loaded())
        frame->SetHint(Forms::Count() == 1 ? frmMDI::OpenHint() : QString());
}

void frmOpen::done(int result)
{
    Form_Unload();
    Forms::Remove(this);
    QDialog::done(result);
}

bool frmOpen::eventFilter(QObject *watched, QEvent *event)
{
    // Beside the items too: what the box names is opened.
    if (watched != mUi->lvOpen->viewport() || event->type() != QEvent::MouseButtonDblClick)
        return QDialog::eventFilter(watched, event);
    cmdOpen_Click();
    return true;
}

void frmOpen::tvOpen_NodeClick()
{
    const QList<QTreeWidgetItem *> picked = mUi->tvOpen->selectedItems();
    mUi->lvOpen->clearSelection();
    mUi->txtFormToOpen->clear();
    if (!picked.isEmpty() && picked.constFirst()->parent())
        ShowItems(picked.constFirst()->text(0));
}

void frmOpen::ShowItems(const QString &node)
{
    mUi->lvOpen->clear();
    mUi->lvOpen->setViewMode(QListView::IconMode);
    for (const Item &item : kItems) {
        if (node == QLatin1String(item.node))
            new QListWidgetItem(Picture(ImageList1().Key(item.image)), QString::fromLatin1(item.text), mUi->lvOpen);
    }
}

void frmOpen::lvOpen_ItemClick()
{
    const QList<QListWidgetItem *> picked = mUi->lvOpen->selectedItems();
    if (!picked.isEmpty())
        mUi->txtFormToOpen->setText(picked.constFirst()->text());
}

void frmOpen::cmdOpen_Click()
{
    if (mUi->txtFormToOpen->text().isEmpty())
        return;
    mTargetName = mUi->txtFormToOpen->text();
    accept();
    for (const Item &item : kItems)
        if (mTargetName == QLatin1String(item.text))
            return OpenChild(item.window);
}

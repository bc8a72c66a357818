#include "frame/VendorAddresses.h"
#include "frame/frmMDI.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

namespace
{
constexpr const char *kSeparator = "-";

struct Item {
    int index;
    const char *caption;
    const char *shortcut = "";
    bool on = true;
};

constexpr Item kFile[] = {
    {0, "&New", "Ctrl+N", false},    {2, "&Open", "Ctrl+O"}, {4, "&Save", "Ctrl+S", false},
    {6, "&Close", "Ctrl+F4", false}, {10, kSeparator},       {12, "Print Pre&view", "", false},
    {14, "&Print", "Ctrl+P", false}, {16, kSeparator},       {18, "E&xit"},
};
constexpr Item kShipData[] = {{5, "&Ship Particulars"}, {10, "&Hydrostatic Data Table"}, {20, "&Port"}};
constexpr Item kDraftSurvey[] = {{5, "&Loading"}, {10, "Disch&arging"}};
constexpr Item kTools[] = {{5, "&Calculator"}, {10, "&Notepad"}};
constexpr Item kHelp[] = {
    {5, "&Daily Tips"}, {6, "&Contents", "F1"}, {7, kSeparator},  {10, "&Technical Support"},
    {13, ""},           {14, "S&ubmit bugs"},   {15, kSeparator}, {20, "&About Keelmark...."},
};

struct MenuImage {
    const char *MenuKey;
    const char *imageKey;
};

constexpr MenuImage kMenuImages[] = {
    {"mnuFile(0)", "New"},
    {"mnuFile(2)", "Open"},
    {"mnuFile(4)", "Save"},
    {"mnuFile(6)", "Close"},
    {"mnuFile(14)", "Print"},
    {"mnuFile(12)", "PrintPreview"},
    {"mnuFile(18)", "Close"},
    {"mnuShipData(20)", "PortMaster"},
    {"mnuShipData(5)", "ShipParticulars"},
    {"mnuShipData(10)", "HDT"},
    {"mnuDraftSurvey(5)", "Loading"},
    {"mnuDraftSurvey(10)", "Discharging"},
    {"mnuTools(5)", "Calculator"},
    {"mnuTools(10)", "Notepad"},
    {"mnuHelp(5)", "TipOfDay"},
    {"mnuHelp(6)", "Help"},
    {"mnuHelp(10)", "TechSupport"},
};

struct ToolButton {
    int position;
    const char *tag;
    const char *toolTip;
};

constexpr ToolButton kToolButtons[] = {
    {1, "New", "New"},
    {2, "Save", "Save"},
    {3, nullptr, nullptr},
    {4, "Print", "Print"},
    {5, "PrintPreview", "Print Preview"},
    {6, nullptr, nullptr},
    {7, "Delete", "Delete"},
    {8, nullptr, nullptr},
    {9, "Close", "Close"},
};

QString ArrayName(const char *name, int index)
{
    return QStringLiteral("%1(%2)").arg(name).arg(index);
}

QMenu *AddMenu(QMenuBar &bar, const char *name, const char *caption)
{
    QMenu *menu = bar.addMenu(caption);
    menu->setObjectName(name);
    return menu;
}

QAction *AddItem(QMenu &menu, const char *name, const Item &item)
{
    QAction *action = item.caption == kSeparator ? menu.addSeparator() : menu.addAction(item.caption);
    action->setObjectName(ArrayName(name, item.index));
    action->setShortcut(QKeySequence(item.shortcut));
    action->setEnabled(item.on);
    return action;
}

void KeepOffUnlessMade(QAction &action, ChildWindow window)
{
    action.setEnabled(HasChildFactory(window));
}
} // namespace

void frmMDI::MakeMenus()
{
    const auto addItems = [this](QMenu &menu, const char *name, const auto &items, void (frmMDI::*click)(int)) {
        for (const Item &item : items) {
            const QAction *action = AddItem(menu, name, item);
            connect(action, &QAction::triggered, this, [this, click, index = item.index] { (this->*click)(index); });
        }
    };
    addItems(*AddMenu(*menuBar(), "mnuMain0", "&File"), "mnuFile", kFile, &frmMDI::mnuFile_Click);
    addItems(*AddMenu(*menuBar(), "mnuMain1", "&Ship Data"), "mnuShipData", kShipData, &frmMDI::mnuShipData_Click);
    addItems(*AddMenu(*menuBar(), "mnuMain2", "&Draft Survey"), "mnuDraftSurvey", kDraftSurvey,
             &frmMDI::mnuDraftSurvey_Click);
    addItems(*AddMenu(*menuBar(), "mnuMain3", "&Tools"), "mnuTools", kTools, &frmMDI::mnuTools_Click);
    QMenu *windowMenu = AddMenu(*menuBar(), "mnuWindow", "&Window");
    connect(windowMenu, &QMenu::aboutToShow, this, [this, windowMenu] { ListWindows(*windowMenu); });
    addItems(*AddMenu(*menuBar(), "mnuMain5", "&Help"), "mnuHelp", kHelp, &frmMDI::mnuHelp_Click);

    auto *vendor = new QMenu(this);
    vendor->setObjectName("mnuTessel");
    for (const VendorAddresses::Page &page : VendorAddresses::Pages) {
        if (page.index != VendorAddresses::BugReport)
            addItems(*vendor, "mnuTessel", std::initializer_list<Item> {{page.index, page.caption}},
                     &frmMDI::mnuTessel_Click);
    }
    MenuItem("mnuHelp(13)").setText(tr("%1 on web").arg(VendorAddresses::Name));
    MenuItem("mnuHelp(13)").setMenu(vendor);

    KeepOffUnlessMade(MenuItem("mnuShipData(5)"), ChildWindow::ShipParticulars);
    KeepOffUnlessMade(MenuItem("mnuShipData(10)"), ChildWindow::HydrostaticData);
    KeepOffUnlessMade(MenuItem("mnuShipData(20)"), ChildWindow::Port);
    KeepOffUnlessMade(MenuItem("mnuDraftSurvey(5)"), ChildWindow::Loading);
    KeepOffUnlessMade(MenuItem("mnuDraftSurvey(10)"), ChildWindow::Discharging);
    for (const MenuImage &image : kMenuImages)
        SetMenuIcon(image.imageKey, image.MenuKey);
}

void frmMDI::MakeToolbar()
{
    cbMDI->setObjectName("cbMDI");
    cbMDI->setAccessibleName(tr("Commands"));
    cbMDI->hide();
    auto *band = new QHBoxLayout(cbMDI);
    band->setContentsMargins(4, 0, 4, 0);
    band->addWidget(tbrMDI);
    band->addStretch(1);

    tbrMDI->setObjectName("tbrMDI");
    tbrMDI->setAccessibleName(tr("Toolbar"));
    tbrMDI->setIconSize(QSize(20, 20));
    for (const ToolButton &button : kToolButtons) {
        QAction *action = button.tag ? tbrMDI->addAction(button.toolTip) : tbrMDI->addSeparator();
        action->setObjectName(ArrayName("tbrMDI", button.position));
        if (!button.tag)
            continue;
        action->setToolTip(button.toolTip);
        action->setData(button.tag);
        action->setIcon(Picture(imglstMDITbr.Key(imglstMDITbr.Index(button.tag))));
        tbrMDI->widgetForAction(action)->setObjectName(action->objectName());
        connect(action, &QAction::triggered, this, [this, action] { tbrMDI_ButtonClick(action->data().toString()); });
    }
}

void frmMDI::SetMenuIcon(const QString &imageKey, const QString &MenuKey)
{
    MenuItem(MenuKey).setIcon(MenuPicture(imglstMDI.Key(MenuImageIndex(imageKey) + 1)));
}

int frmMDI::MenuImageIndex(const QString &imageKey) const
{
    return imglstMDI.Index(imageKey) - 1;
}

QAction &frmMDI::MenuItem(const QString &MenuKey) const
{
    if (auto *item = menuBar()->findChild<QAction *>(MenuKey))
        return *item;
    throw RuntimeError(ErrorNumber::NoObject);
}

QAction &frmMDI::Button(int position) const
{
    return *tbrMDI->actions().at(position - 1);
}

#pragma once

#include "frame/ChildWindows.h"
#include "frame/ImageList.h"
#include "frame/platform/Form.h"

#include <QMainWindow>
#include <QPointer>

#include <cstdint>
#include <string_view>

class QFrame;
class QMdiArea;
class QMdiSubWindow;
class QToolBar;
class StatusPanels;

/// The main window: holds every child window, owns menus, toolbar and status bar, and sends the commands to the
/// active child. It has no data of its own.
class frmMDI : public QMainWindow, public FrameLink
{
    Q_OBJECT

public:
    ~frmMDI() override;

    /// The one main window, made on first use.
    [[nodiscard]] static frmMDI &Global();
    /// The same where it lives, null where it does not.
    [[nodiscard]] static frmMDI *Loaded();

    /// Digits from the left for New, Save, (separator), Print, Print Preview, (separator), Delete; the rightmost
    /// character for Close. "1" is on, anything else and a missing digit off.
    void SetMDIToolbar(std::string_view ButtonSettings) override;
    void SetHint(const QString &text) override;
    [[nodiscard]] static QString OpenHint();

    /// Kept apart from gOpenChildCount, on purpose.
    [[nodiscard]] std::int16_t ChildCount() const { return mChildCount; }
    void ChildCount(std::int16_t intNewChildCount) { mChildCount = intNewChildCount; }

    /// Shows the main window and makes it the active one.
    void BringUp();
    /// Loads a child where it is not loaded yet, and brings it to the front.
    void ShowChild(Form &form);
    void ShowCoolBar(bool shown);
    /// The commands as the child in front wants them, where it was in front before.
    void ResendMask();
    /// The space that children have, and the height of the toolbar, shown or not. Pixels.
    [[nodiscard]] QSize ChildRoom() const;
    [[nodiscard]] int ToolbarHeight() const;

protected:
    void closeEvent(QCloseEvent *event) override;
    bool event(QEvent *event) override;

private:
    frmMDI();

    void MakeMenus();
    void MakeToolbar();
    void SetMenuIcon(const QString &imageKey, const QString &MenuKey);
    [[nodiscard]] int MenuImageIndex(const QString &imageKey) const;
    /// A menu item by its control name and index.
    [[nodiscard]] QAction &MenuItem(const QString &MenuKey) const;
    [[nodiscard]] QAction &Button(int position) const;

    void mnuFile_Click(int index);
    void mnuShipData_Click(int index);
    void mnuDraftSurvey_Click(int index);
    void mnuTools_Click(int index);
    void mnuHelp_Click(int index);
    void mnuTessel_Click(int index);
    void tbrMDI_ButtonClick(const QString &tag);
    void ListWindows(QMenu &menu);

    [[nodiscard]] QMdiSubWindow *LoadChild(Form &form);
    void FollowActiveChild();
    [[nodiscard]] Form *FormInFront() const;
    /// NoObject (91) where no child is open.
    [[nodiscard]] Form &ActiveForm() const;
    void MDIForm_Activate();
    [[nodiscard]] static bool UnloadChildren();
    static void MDIForm_Unload();

    ImageList imglstMDI;
    ImageList imglstMDITbr;
    QMdiArea *mArea;
    QFrame *cbMDI;
    QToolBar *tbrMDI;
    StatusPanels *sb1;
    /// The child that was told last that it is the active one.
    QPointer<Form> mActiveForm;
    std::int16_t mChildCount = 0;
    ScopedPort<FrameLink *> mFramePort {FramePort(), this};
};

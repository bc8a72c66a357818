#pragma once

#include "core/numeric/Port.h"
#include "core/numeric/RuntimeError.h"

#include <QHash>
#include <QWidget>

#include <functional>
#include <string>
#include <string_view>

class QKeyEvent;

/// What a child window asks of the main window.
class FrameLink
{
public:
    virtual ~FrameLink() = default;
    /// Nine digits that turn the commands on and off.
    virtual void SetMDIToolbar(std::string_view ButtonSettings) = 0;
    /// Writes the message panel of the status bar.
    virtual void SetHint(const QString &text) = 0;
};

/// The main window, as far as a child knows it; null where there is none (SendMask and SetHint then do nothing).
[[nodiscard]] Port<FrameLink *> &FramePort();

/// The loaded windows of the program, in the order in which they were loaded, the main window among them.
class Forms
{
public:
    static void Add(QWidget *window);
    static void Remove(QWidget *window);
    [[nodiscard]] static int Count();
    [[nodiscard]] static const QList<QWidget *> &All();
};

/// The base of every child window: its life, its commands, its mask and the checks of its controls.
///
/// A form is loaded when the main window opens it and unloaded when it is closed; one that is unloaded is gone for
/// good. The commands of a form that has none of that name raise NoSuchOperation (438).
class Form : public QWidget
{
    Q_OBJECT

public:
    /// A control's check: sets cancel to hold the focus.
    using FocusCheck = std::function<void(bool &cancel)>;

    explicit Form(QWidget *parent = nullptr);
    ~Form() override;

    /// Called once, after the window's place in the main window is made and before it is shown.
    virtual void Form_Load() { }
    /// The window became the active one.
    virtual void Form_Activate() { }
    /// The window is about to close; cancel keeps it open.
    virtual void Form_Unload(bool & /*cancel*/) { }
    /// A key on its way to the active control. True swallows it.
    virtual bool Form_KeyPress(QKeyEvent & /*event*/) { return false; }

    virtual void RNew() { throw RuntimeError(ErrorNumber::NoSuchOperation); }
    virtual void RSave() { throw RuntimeError(ErrorNumber::NoSuchOperation); }
    virtual void RDelete() { throw RuntimeError(ErrorNumber::NoSuchOperation); }
    void RPrint() { RPrint(true); }
    virtual void RPrint(bool /*blnShowPreview*/) { throw RuntimeError(ErrorNumber::NoSuchOperation); }

    /// Closes the window with its checks and questions. True where it went.
    bool Unload();
    /// The same, but a run-time error on the way leaves the window open and is told to nobody.
    bool UnloadIgnoringErrors();

    /// The mask last sent by SendMask; empty before the first.
    [[nodiscard]] const std::string &ButtonMask() const { return mButtonMask; }

    /// The control's check, asked before the focus leaves it for another control of this form by key, click or
    /// mnemonic. A change to another window, a menu or a toolbar command asks nothing. The control lives as long as
    /// the form.
    void OnValidate(QWidget *control, FocusCheck check);
    /// Runs the control's check, if it has one. True where the focus may leave. While a check runs, no other is asked
    /// and the focus stays.
    [[nodiscard]] bool MayLeave(QWidget *control);
    /// Gives a control the focus after the check of the one that has it, as if the user had moved there.
    void MoveFocus(QWidget *control);
    /// The focus moves to the next control in the tab order once the present event is done, by way of the check.
    void SendTab();
    /// Moves the focus at once for every SendTab that is still to come, so that no input overtakes it.
    static void DeliverTabs();

    /// The form that a widget belongs to: its nearest Form ancestor, itself included; null where there is none.
    [[nodiscard]] static Form *Of(QObject *object);

protected:
    /// Stores the mask and sends it to the main window.
    void SendMask(std::string_view mask);
    /// Sends a mask without storing it.
    static void SendMaskOnce(std::string_view mask);
    static void SetHint(const QString &text);

    bool event(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

    std::string mButtonMask;

private:
    QHash<QWidget *, FocusCheck> mChecks;
    bool mChecking = false;
    bool mUnloaded = false;
    bool mIgnoresErrors = false;
};

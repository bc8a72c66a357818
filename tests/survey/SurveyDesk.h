#pragma once

#include "core/Clock.h"
#include "frame/controls/Grid.h"
#include "frame/frmMDI.h"
#include "frame/mdlMain.h"
#include "tests/support/FatalRecorder.h"
#include "tests/support/MessageScript.h"
#include "tests/support/TestSettings.h"
#include "tests/support/TestStore.h"
#include "tests/support/UserActs.h"

#include <QJsonObject>

#include <functional>
#include <string>
#include <vector>

/// Ships by name, and "cases": surveys step by step, as an independent model worked them out.
[[nodiscard]] const QJsonObject &Surveys();

/// Density and marks of MV Worked: her net displacement is 22912.18513 and 24311.30539 less the deductions.
inline constexpr const char *kWorkedMarks = "1.015 7.52 7.48 8.03 7.97 8.61 8.59";
inline constexpr const char *kDailyMarks = "1.015 8.1 8.1 8.35 8.33 8.6 8.6";

inline constexpr const char *kNoChanges = "No changes to save.";
inline constexpr const char *kClosePrompt = "Save changes to the draft/s";

/// The user before the main window with one survey window, on a store and settings of their own. It is 09:26 on
/// 14 March 2024.
class SurveyDesk : public TestStore
{
protected:
    explicit SurveyDesk(ChildWindow kind = ChildWindow::Loading, ChildFactory factory = {});
    ~SurveyDesk() override;

    /// A ship of the surveys, registered at the newest port; Richards Bay is made where there is none.
    static void AddShip(const char *name = "worked");
    /// Stores the survey V1 of MV Worked, on which the window opens: kWorkedMarks, 350 and 120.5 deducted, so that
    /// her constant is 341.68513.
    static void StoreSurvey();
    /// Adds a draft of kDailyMarks and 470.5 deducted to it, of that type and at that moment yyyyMMddHHmm.
    static void StoreDraft(int type, const char *moment, const char *netDisplacement = "23840.80539");

    void Open();
    void PressClose() { PressKey(Frame(), Qt::Key_F4, Qt::ControlModifier); }
    void PressSave() { PressKey(Frame(), Qt::Key_S, Qt::ControlModifier); }
    void PressNew() { PressKey(Frame(), Qt::Key_N, Qt::ControlModifier); }
    void PressDelete() { Click(*Frame().findChild<QWidget *>("tbrMDI(7)", Qt::FindChildrenRecursively)); }
    void PressPreview() { Click(*Frame().findChild<QWidget *>("tbrMDI(5)", Qt::FindChildrenRecursively)); }
    void Press(Qt::Key key) { PressKey(Frame(), key); }

    [[nodiscard]] static frmMDI &Frame() { return frmMDI::Global(); }
    [[nodiscard]] Form &Window() const { return *LoadedChild(mKind); }
    [[nodiscard]] bool IsOpen() const { return LoadedChild(mKind) != nullptr; }
    template<class Widget = QWidget> [[nodiscard]] Widget &The(const QString &name) const
    {
        return *Window().findChild<Widget *>(name);
    }
    [[nodiscard]] Grid &Deductions() const { return The<Grid>("fgrdDeduction"); }
    [[nodiscard]] static std::string Focus() { return Frame().focusWidget()->objectName().toStdString(); }
    /// What a control shows; "hidden" for a label that is.
    [[nodiscard]] std::string Text(const QString &name) const;
    [[nodiscard]] std::string Texts(const QStringList &names) const;
    [[nodiscard]] std::string Cell(const QString &grid, int row, int column) const;
    [[nodiscard]] std::vector<std::string> Items(const QString &list) const;
    [[nodiscard]] std::string Tab() const;
    [[nodiscard]] bool IsOn(const QString &name) const { return The(name).isEnabled(); }
    [[nodiscard]] bool LaterTabsAreOn() const;

    /// Clicks a field and types over what stands there.
    void Fill(const QString &name, const QString &text);
    void FillMarks(const QString &densityAndMarks);
    void FillCell(int row, const QString &text);
    /// Presses Tab until that control has the focus.
    void GoTo(const char *name);
    /// Goes to a list and takes a row with the arrow keys.
    void Pick(const char *list, int row);
    void FillHeader(const QString &voyage = "V1");
    void ClickTab(const QString &stage);
    void ClickBox(QWidget &box) { Click(box, QPoint(8, box.height() / 2)); }
    void Calculate() { Click(The("cmdCalculate")); }
    /// Types the worked survey into an empty window and calculates it.
    void EnterWorked(const QString &voyage = "V1");
    /// Saves, and is told that all went well.
    void SaveWell();

    void Tell(const std::string &text, MsgIcon icon = MsgIcon::Exclamation, const std::string &caption = "Keelmark");
    void Prompt(const char *text, MsgAnswer answer, MsgButtons buttons = MsgButtons::YesNoCancel);
    /// What the user is told, in the course of an act and not later.
    void ExpectTold(const std::string &text, const std::function<void()> &act, MsgIcon icon = MsgIcon::Exclamation,
                    const std::string &caption = "Keelmark");

    static std::string StoredSurveys();
    static std::string StoredDrafts();
    static std::string StoredDeductions();
    static std::string Stored() { return StoredSurveys() + StoredDrafts() + StoredDeductions(); }

    MessageScript mMessages;

private:
    ChildWindow mKind;
    ScopedPort<ChildFactory> mFactory;
    TestSettings mSettings {File().string() + ".ini"};
    ScopedPort<ClockSource> mClock {ClockPort(), [] { return ClockTime {2024, 3, 14, 9, 26, 53}; }};
};

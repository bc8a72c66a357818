#include "masters/MasterWindow.h"

#include "core/numeric/RuntimeError.h"
#include "frame/controls/DataList.h"
#include "frame/controls/Headings.h"
#include "frame/mdlMain.h"

#include <QEvent>
#include <QLabel>
#include <QLineEdit>

MasterWindow::MasterWindow(const Kind &kind, QWidget *parent)
    : Form(parent)
    , mKind(kind)
{
}

void MasterWindow::UseControls(QLabel &heading, QWidget &legend, DataList &list, std::vector<StoredBox> fields)
{
    ScaleFont(heading, kHeadingSize);
    ScaleFont(legend, kLegendSize);
    mList = &list;
    mFields = std::move(fields);
    connect(mList, &DataList::Click, this, &MasterWindow::ListPicked);
    connect(mList, &DataList::DelPressed, this, &MasterWindow::RDelete);
    mList->installEventFilter(this);
    for (const StoredBox &field : mFields)
        field.Box().installEventFilter(this);
    NameBox().setFocus();
}

void MasterWindow::Form_Load()
{
    try {
        static_cast<void>(CenterForm(*this));
        mRecords.Reopen(mKind.select, CursorType::Keyset, LockType::Optimistic);
        FillList();
        StartNewRecord();
    } catch (const RuntimeError &) {
        TellLoadFailure();
    }
}

void MasterWindow::Form_Activate()
{
    SendMask(ButtonMask());
    SetHint({});
    // The focus comes with the activation, and its hint after.
    if (const QWidget *focused = focusWidget(); focused && focused->hasFocus())
        TellHint(focused);
}

bool MasterWindow::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() == QEvent::FocusIn)
        TellHint(watched);
    return Form::eventFilter(watched, event);
}

void MasterWindow::TellHint(const QObject *control) const
{
    SetHint(control == mList ? tr("You can press the Delete key to delete this record") : BoxHint());
}

void MasterWindow::StartNewRecord()
{
    mEditMode = 0;
    SendMask(mKind.newMask);
}

void MasterWindow::ClearBoxes()
{
    for (const StoredBox &field : mFields)
        field.Clear();
}

void MasterWindow::FillList()
{
    mList->SetRows(mRecords, std::string(mKind.nameColumn), std::string(mKind.idColumn));
}

void MasterWindow::ListPicked()
{
    // A save that was refused is given up, and not tried again by the search.
    mRecords.CancelUpdate();
    const std::string picked = mList->BoundValue().Text();
    mRecords.FindFirst(std::string(mKind.idColumn) + " = " + picked);
    if (mRecords.AtEnd())
        return;
    mEditMode = 1;
    SendMask(mKind.pickedMask);
    for (const StoredBox &field : mFields)
        field.Show(mRecords.Fields(field.Column()));
}

void MasterWindow::RNew()
{
    StartNewRecord();
    ClearBoxes();
    NameBox().setFocus();
}

void MasterWindow::RSave()
{
    try {
        if (NameBox().text().trimmed().isEmpty()) {
            MsgBox(mKind.noName, MsgIcon::Exclamation);
        } else {
            const MsgAnswer answer = AskToSave();
            if (answer == MsgAnswer::No)
                return;
            if (answer == MsgAnswer::Cancel)
                mRecords.CancelUpdate();
            else
                SaveRecord();
        }
        mEditMode = 0;
        AfterSave();
    } catch (const RuntimeError &) {
        MsgBox("A serious error has occured while saving the current record.\n\n" + std::string(kContactUs),
               MsgIcon::Exclamation, "Keelmark-10016");
    }
}

MsgAnswer MasterWindow::AskToSave() const
{
    return MsgBox({.text = mEditMode == 1 ? "Are you sure to update the current record ?"
                                          : "Are you sure you want to add a new record ?",
                   .icon = MsgIcon::Question,
                   .buttons = MsgButtons::YesNoCancel,
                   .defaultAnswer = MsgAnswer::Yes});
}

void MasterWindow::SaveRecord()
{
    // A new record whose save was refused is still there to be written; a change of another one is given up.
    if (mEditMode == 0 && mRecords.EditMode() != RecordEdit::Add) {
        mRecords.CancelUpdate();
        mRecords.AddNew();
    }
    for (const StoredBox &field : mFields)
        mRecords.Fields(field.Column(), field.Box().text().trimmed().toStdString());
    mRecords.Update();
    RequeryIfPossible();
    FillList();
    ClearBoxes();
    MsgBox(mEditMode == 0 ? "One record has been added successfully." : "One record has been updated successfully.",
           MsgIcon::Exclamation);
}

void MasterWindow::RDelete()
{
    try {
        const MsgAnswer answer = MsgBox({.text = std::string(mKind.deleteQuestion),
                                         .icon = MsgIcon::Question,
                                         .buttons = MsgButtons::YesNo,
                                         .defaultAnswer = mKind.deleteDefault});
        if (answer == MsgAnswer::Yes)
            DeleteRecord();
    } catch (const RuntimeError &) {
        MsgBox("A serious error has occured while deleting the current record.\n\n" + std::string(kContactUs),
               MsgIcon::Exclamation, "Keelmark-10017");
    }
}

// Meant: the row that goes is the recordset's current one, whether the list shows it picked or not.
void MasterWindow::DeleteRecord()
{
    mRecords.Delete();
    RequeryIfPossible();
    mRecords.Sort(std::string(mKind.nameColumn) + " ASC");
    FillList();
    ClearBoxes();
    MsgBox("One record has been deleted successfully.", MsgIcon::Exclamation);
    StartNewRecord();
}

void MasterWindow::RequeryIfPossible()
{
    try {
        mRecords.Requery();
    } catch (const RuntimeError &) {
        // The rows in memory serve until the next time.
    }
}

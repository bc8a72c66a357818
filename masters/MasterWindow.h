#pragma once

#include "core/MsgBox.h"
#include "frame/platform/Form.h"
#include "frame/store/Recordset.h"
#include "masters/StoredBox.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

class DataList;
class QLabel;
class QLineEdit;

/// What the windows of ports and of deductible items have alike: a list of the records, and text boxes to change the
/// one picked there or to add a new one. All goes through one updatable recordset.
class MasterWindow : public Form
{
    Q_OBJECT

public:
    void Form_Load() override;
    void Form_Activate() override;

    void RNew() override;
    void RSave() override;
    void RDelete() override;

protected:
    /// One kind of record and what its window says of it.
    struct Kind {
        std::string_view select;
        std::string_view idColumn;
        std::string_view nameColumn; ///< shown in the list
        std::string_view newMask;
        std::string_view pickedMask;
        std::string_view noName;
        std::string_view deleteQuestion;
        MsgAnswer deleteDefault;
    };
    /// The first field is the record's name, which alone must not be empty.
    explicit MasterWindow(const Kind &kind, QWidget *parent);
    /// To be called once, when the window's controls are made.
    void UseControls(QLabel &heading, QWidget &legend, DataList &list, std::vector<StoredBox> fields);

    [[nodiscard]] QLineEdit &NameBox() const { return mFields.front().Box(); }
    /// What the message panel says while a text box has the focus.
    [[nodiscard]] virtual QString BoxHint() const = 0;
    virtual void TellLoadFailure() { }
    /// A save came to an end, done, cancelled or refused for want of a name.
    virtual void AfterSave() { }

    bool eventFilter(QObject *watched, QEvent *event) override;
    void TellHint(const QObject *control) const;

    static constexpr std::string_view kContactUs
        = "Please contact us with the error no. on the titlebar of this dialog box.";

private:
    void StartNewRecord();
    void ClearBoxes();
    void FillList();
    void ListPicked();
    [[nodiscard]] MsgAnswer AskToSave() const;
    void SaveRecord();
    void DeleteRecord();
    /// What was written is written, whether the rows can be fetched again or not.
    void RequeryIfPossible();

    const Kind mKind;
    DataList *mList = nullptr;
    std::vector<StoredBox> mFields;
    Recordset mRecords;
    /// 0 for a new record, 1 for the recordset's current one.
    std::int16_t mEditMode = 0;
};

#pragma once

#include "frame/platform/Form.h"
#include "frame/store/Recordset.h"
#include "masters/TextTable.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>

class FloatingEditor;
class QLabel;

namespace Ui
{
class frmHDT;
}

/// The hydrostatic table of one ship: rows are typed in the entry row, kept in memory, and written back whole.
class frmHDT : public Form
{
    Q_OBJECT

public:
    explicit frmHDT(QWidget *parent = nullptr);
    ~frmHDT() override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    bool Form_KeyPress(QKeyEvent &event) override;

    void RNew() override;
    void RSave() override { RSave(true); }
    /// Writes the table in one transaction. blnDispMsg tells when it went well.
    void RSave(bool blnDispMsg);
    void RDelete() override;
    /// Asks about unsaved rows. Closing the window does not come here: it drops them unasked, as users know it.
    void RClose();

protected:
    void changeEvent(QEvent *event) override;

private:
    void BuildWindow();
    void FitColumns();
    void ConnectEvents();
    void InitEntryGrid();
    void InitHDTRecordset();
    void InitShipRecordset();

    void dcbShipName_Change();
    void ShowShip();
    void ShowTable();
    void EmptyTable();
    [[nodiscard]] static bool MaySaveChanges();

    // The entry row
    void fgrdInsertHD_EnterCell();
    void fgrdInsertHD_LeaveCell();
    bool txtGridTextbox_KeyDown(const QKeyEvent &event);
    void txtGridTextbox_Validate(bool &cancel);
    bool MoveEntry(int step);
    void EndEntry();
    /// What stands in the box goes to the current cell, where it differs.
    void TakeBox();
    void CommitRow();
    [[nodiscard]] bool ValidRow();
    [[nodiscard]] bool IsNewTMD(const std::string &value) const;
    [[nodiscard]] bool ReplaceExisting();
    void AppendRow();
    void WriteEntry(std::int32_t row);
    void ClearEntryRow();
    [[nodiscard]] QString EntryCell(int column) const;
    void EntryCell(int column, const QString &text);

    // The rows
    void tdbHDT_PostEvent(int message);
    void tdbHDT_DeleteDown();

    void WriteTable();

    std::unique_ptr<Ui::frmHDT> ui;
    FloatingEditor *txtGridTextbox = nullptr;
    QLabel *lblHint = nullptr; ///< panel 1 of sbHDT
    Recordset rsShip;
    Recordset rsHDT; ///< the rows of the ship in the store
    TextTable arrHDT; ///< what tdbHDT shows and a save writes: the rows and one empty row after them
    std::int32_t mRowCount = 0;
    std::int32_t mShipID = 0;
    std::int32_t mEditRow = 0; ///< 1: the entry row holds a row picked from tdbHDT; 0: a new row
    std::int32_t mPickedRow = 0; ///< where mEditRow is 1: the row in arrHDT
    /// Meant: whichever row has the typed draft, a replace writes over the first one of the table.
    static constexpr std::int16_t mReplaceRow = 0;
    bool mCellChanged = false; ///< a value of the entry row reached its cell
    bool mTableChanged = false; ///< arrHDT differs from the store
    bool mRowStarted = false; ///< a cell passed its check since the last committed row
    bool mLoading = false;
};

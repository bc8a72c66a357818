#pragma once

#include "frame/platform/Form.h"
#include "frame/store/Recordset.h"
#include "masters/StoredBox.h"

#include <array>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

class QLineEdit;

namespace Ui
{
class frmShipParticulars;
}

/// The window in which ships are added, changed and deleted. Goes to the store with statements of its own.
class frmShipParticulars : public Form
{
    Q_OBJECT

public:
    explicit frmShipParticulars(QWidget *parent = nullptr);
    ~frmShipParticulars() override;

    void Form_Load() override;
    void Form_Activate() override;
    void Form_Unload(bool &cancel) override;
    bool Form_KeyPress(QKeyEvent &event) override;

    void RNew() override;
    void RSave() override;
    void RDelete() override;

    /// Writes the fields to the store: a new row, or the row that is current. Success or ShipNotWritten.
    [[nodiscard]] std::int32_t Save();

private:
    /// What one number field accepts, and what is said of all else.
    struct NumberRule {
        QLineEdit *Ui::frmShipParticulars::*field;
        std::int64_t above;
        std::int64_t below;
        std::int16_t places; ///< -1: the bounds are tested on the number as it was typed
        int shownPlaces;
        std::string_view message;
    };
    /// In the order in which a save checks the fields.
    static const std::array<NumberRule, 13> kNumberRules;
    /// One text box: its column in the store, whether that takes a number, and the demand for it.
    struct TextField {
        QLineEdit *Ui::frmShipParticulars::*box;
        std::string_view column;
        bool isNumber;
        const char *demand;
    };
    /// In the order in which they must be there.
    static const std::array<TextField, 15> kTextFields;
    /// A column and its value as a statement takes it.
    using ColumnValue = std::pair<std::string_view, std::string>;

    void ConnectEvents();

    void InitShipForm();
    void FillShipCombo();
    void ClearShip();
    void ShowShip();
    void ShowFirstShip();
    void cmbShipName_Click();
    void FieldChanged();

    void ConnectChecks();
    [[nodiscard]] QLineEdit &FieldOf(const NumberRule &rule) const;
    /// A number field's check; a field that fails is told of and emptied.
    [[nodiscard]] bool Accepts(const NumberRule &rule);
    [[nodiscard]] bool ValidValues();
    [[nodiscard]] bool ValidShip();

    [[nodiscard]] std::vector<ColumnValue> EnteredValues() const;
    [[nodiscard]] std::string InsertStatement() const;
    [[nodiscard]] std::string UpdateStatement() const;
    void KeepChanges();
    void DropChanges();
    /// Saves on the way to a new record. False where that failed, which has been told.
    [[nodiscard]] bool SaveBeforeNew();
    void DeleteShip();

    std::unique_ptr<Ui::frmShipParticulars> ui;
    std::vector<StoredBox> mTextBoxes;
    Recordset rsShip; ///< all ships; the current row is the one on show
    Recordset rsPort; ///< all ports, for the list
    std::int16_t mRecordMode = 0; ///< 0: the fields describe a new ship, 1: the current row of rsShip
    bool mDirty = false; ///< a field but the name changed since the last load or save
    bool mLoading = false; ///< the program itself fills the fields: changes do not count
    std::string mFormMessage; ///< left by ValidShip
};

#pragma once

#include "frame/store/Recordset.h"
#include "survey/NumberRule.h"

#include <QObject>

class FloatingEditor;
class Grid;
class QKeyEvent;
class clsDraft;

/// The deductible items with the quantities of the draft on show, and the editor that lies over the current one.
class DeductionGrid : public QObject
{
    Q_OBJECT

public:
    explicit DeductionGrid(Grid &grid);

    [[nodiscard]] FloatingEditor &Editor() const { return *txtGridTextbox; }
    void UseRule(NumberRule rule) { mRule = std::move(rule); }

    /// The items as they stand in the store now, without quantities. Store failures go up.
    void Rebuild();
    /// The quantities of a draft are about to be shown: until they are, blank cells are no zeros.
    void Withhold() { mWithheld = true; }
    /// A draft's quantities. zeroFilled: an item without one reads "0" beside others that have one.
    void Show(const clsDraft &draft, bool zeroFilled);
    /// Takes the quantities into a draft; none where the editor's is refused, as a message tells.
    void Collect(clsDraft &draft);

    /// The editor's check. A failure is told.
    void Validate(bool &cancel);
    /// Enter in the editor. True where the focus is to leave the grid.
    [[nodiscard]] bool EnterPressed();
    /// There are items to enter.
    [[nodiscard]] bool HasRows() const;
    /// The focus into the first row.
    void Enter();

signals:
    /// An accepted quantity was typed.
    void Changed();

private:
    void EnterCell();
    void LeaveCell();
    [[nodiscard]] bool KeyDown(const QKeyEvent &event);
    void MoveRow(int step);
    void Blank();

    Grid &fgrdDeduction;
    FloatingEditor *txtGridTextbox;
    Recordset mRsItems; ///< row r of the grid is row r here
    NumberRule mRule;
    bool mRefusalBlanked = false; ///< the editor is blank from a refusal and not by the user
    bool mWithheld = false; ///< blank cells are not shown quantities, and no zeros
};

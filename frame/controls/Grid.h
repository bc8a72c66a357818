#pragma once

#include <QHash>
#include <QString>
#include <QTableWidget>

/// A grid of texts by row and column, both counted from 0, for showing figures. Cells are never edited in place; an
/// editor is laid over the current cell where one is wanted.
///
/// The current cell moves by SetCurrent or by the user's click, which emit LeaveCell for the old cell and then
/// EnterCell for the new one; nothing is emitted where the cell stays the same, but for a click, which emits EnterCell.
/// A click on a heading goes to the first cell behind it.
///
/// Figures stand at the right; the fixed columns, which name the rows, at the left. The colours follow the palette.
class Grid : public QTableWidget
{
    Q_OBJECT

public:
    explicit Grid(QWidget *parent = nullptr);

    /// Rows and columns; the cells are emptied and their looks reset.
    void SetSize(int rows, int columns);
    /// The first columns and rows that are headings: they look so, and never become current.
    void SetFixed(int rows, int columns);
    /// Empties all cells, the headings among them, and resets their looks.
    void ClearCells();

    [[nodiscard]] QString Cell(int row, int column) const;
    void SetCell(int row, int column, const QString &text);
    void SetBold(int row, int column, bool bold);
    /// Red for a figure that cannot be right, the palette's text colour otherwise.
    void SetRed(int row, int column, bool red);
    [[nodiscard]] bool IsRed(int row, int column) const;
    void AlignColumn(int column, Qt::Alignment alignment);
    [[nodiscard]] Qt::Alignment AlignmentOf(int column) const;
    [[nodiscard]] bool IsFixed(int row, int column) const { return row < mFixedRows || column < mFixedColumns; }

    [[nodiscard]] int CurrentRow() const { return mRow; }
    [[nodiscard]] int CurrentColumn() const { return mColumn; }
    /// Moves the current cell: LeaveCell, then EnterCell, where it is another. A heading or a place outside the grid
    /// changes nothing; for PlaceCurrent likewise.
    void SetCurrent(int row, int column);
    /// Moves the current cell with no event.
    void PlaceCurrent(int row, int column);
    /// The cell's place in the coordinates of the grid's parent.
    [[nodiscard]] QRect CellRect(int row, int column) const;

signals:
    void LeaveCell();
    void EnterCell();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override { mousePressEvent(event); }
    void changeEvent(QEvent *event) override;

private:
    [[nodiscard]] QTableWidgetItem &ItemAt(int row, int column);
    [[nodiscard]] bool MayBeCurrent(int row, int column) const;
    void KeepCurrentInside();

    QHash<int, Qt::Alignment> mAlignments;
    int mRow = 0;
    int mColumn = 0;
    int mFixedRows = 0;
    int mFixedColumns = 0;
};

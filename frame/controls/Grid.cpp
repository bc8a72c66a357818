#include "frame/controls/Grid.h"

#include "frame/controls/Colours.h"
#include "frame/controls/Headings.h"

#include <QEvent>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPalette>
#include <QStyledItemDelegate>

namespace
{
constexpr int kRedRole = Qt::UserRole;

// Finds a cell's colours when it is drawn, so that they are always those of the present palette.
class CellLooks : public QStyledItemDelegate
{
public:
    explicit CellLooks(Grid *grid)
        : QStyledItemDelegate(grid)
        , mGrid(*grid)
    {
    }

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        const QPalette palette = mGrid.palette();
        option->displayAlignment = mGrid.AlignmentOf(index.column()) | Qt::AlignVCenter;
        if (mGrid.IsFixed(index.row(), index.column())) {
            option->backgroundBrush = palette.brush(QPalette::Button);
            option->palette.setBrush(QPalette::Text, palette.buttonText());
        }
        if (index.data(kRedRole).toBool())
            option->palette.setColor(QPalette::Text, FigureRed(palette));
    }

private:
    const Grid &mGrid;
};
} // namespace

Grid::Grid(QWidget *parent)
    : QTableWidget(parent)
{
    setItemDelegate(new CellLooks(this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setFocusPolicy(Qt::NoFocus);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideNone);
    setHorizontalScrollMode(ScrollPerPixel);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    FitRowHeight(*this);
}

void Grid::changeEvent(QEvent *event)
{
    QTableWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitRowHeight(*this);
}

void Grid::SetSize(int rows, int columns)
{
    ClearCells();
    setRowCount(rows);
    setColumnCount(columns);
    KeepCurrentInside();
}

void Grid::SetFixed(int rows, int columns)
{
    mFixedRows = rows;
    mFixedColumns = columns;
    KeepCurrentInside();
    viewport()->update();
}

void Grid::KeepCurrentInside()
{
    mRow = std::max(std::min(mRow, rowCount() - 1), mFixedRows);
    mColumn = std::max(std::min(mColumn, columnCount() - 1), mFixedColumns);
}

void Grid::ClearCells()
{
    clearContents();
}

QTableWidgetItem &Grid::ItemAt(int row, int column)
{
    // What is put outside the grid goes nowhere.
    static QTableWidgetItem nowhere;
    if (row < 0 || row >= rowCount() || column < 0 || column >= columnCount())
        return nowhere;
    if (!item(row, column))
        setItem(row, column, new QTableWidgetItem);
    return *item(row, column);
}

QString Grid::Cell(int row, int column) const
{
    const QTableWidgetItem *cell = item(row, column);
    return cell ? cell->text() : QString();
}

void Grid::SetCell(int row, int column, const QString &text)
{
    ItemAt(row, column).setText(text);
}

void Grid::SetBold(int row, int column, bool bold)
{
    QFont font;
    font.setBold(bold);
    ItemAt(row, column).setFont(font);
}

void Grid::SetRed(int row, int column, bool red)
{
    ItemAt(row, column).setData(kRedRole, red);
}

bool Grid::IsRed(int row, int column) const
{
    const QTableWidgetItem *cell = item(row, column);
    return cell && cell->data(kRedRole).toBool();
}

void Grid::AlignColumn(int column, Qt::Alignment alignment)
{
    mAlignments.insert(column, alignment);
    viewport()->update();
}

Qt::Alignment Grid::AlignmentOf(int column) const
{
    return mAlignments.value(column, column < mFixedColumns ? Qt::AlignLeft : Qt::AlignRight);
}

bool Grid::MayBeCurrent(int row, int column) const
{
    return row < rowCount() && column < columnCount() && !IsFixed(row, column);
}

void Grid::SetCurrent(int row, int column)
{
    if (!MayBeCurrent(row, column) || (row == mRow && column == mColumn))
        return;
    emit LeaveCell();
    PlaceCurrent(row, column);
    emit EnterCell();
}

void Grid::PlaceCurrent(int row, int column)
{
    if (!MayBeCurrent(row, column))
        return;
    mRow = row;
    mColumn = column;
    scrollTo(model()->index(row, column));
}

QRect Grid::CellRect(int row, int column) const
{
    const QRect cell = visualRect(model()->index(row, column));
    return {viewport()->mapTo(parentWidget(), cell.topLeft()), cell.size()};
}

void Grid::mousePressEvent(QMouseEvent *event)
{
    const QModelIndex pressed = indexAt(event->position().toPoint());
    if (event->button() != Qt::LeftButton || !pressed.isValid()) {
        event->ignore();
        return;
    }
    const int row = std::max(pressed.row(), mFixedRows);
    const int column = std::max(pressed.column(), mFixedColumns);
    if (row == mRow && column == mColumn)
        emit EnterCell();
    else
        SetCurrent(row, column);
}

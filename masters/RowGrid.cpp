#include "masters/RowGrid.h"

#include "frame/controls/Headings.h"
#include "masters/TextTable.h"

#include <QAbstractTableModel>
#include <QEvent>
#include <QHeaderView>
#include <QKeyEvent>

namespace
{
constexpr int kRowsInSight = 15;
} // namespace

class TextTableModel : public QAbstractTableModel
{
public:
    TextTableModel(TextTable &table, const QStringList &captions)
        : mTable(table)
        , mCaptions(captions)
    {
    }

    [[nodiscard]] int rowCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : mTable.RowCount();
    }
    [[nodiscard]] int columnCount(const QModelIndex &parent = {}) const override
    {
        return parent.isValid() ? 0 : mTable.ColumnCount();
    }
    [[nodiscard]] QVariant data(const QModelIndex &index, int role) const override
    {
        if (role == Qt::DisplayRole)
            return QString::fromStdString(
                mTable.Cell(mTable.LowerRow() + index.row(), mTable.LowerColumn() + index.column()));
        if (role == Qt::TextAlignmentRole)
            return int {Qt::AlignRight | Qt::AlignVCenter};
        return {};
    }
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override
    {
        if (orientation == Qt::Vertical)
            return {};
        if (role == Qt::DisplayRole)
            return mCaptions.value(section);
        if (role == Qt::TextAlignmentRole)
            return int {Qt::AlignRight | Qt::AlignVCenter};
        return {};
    }

    void ReadAgain()
    {
        beginResetModel();
        endResetModel();
    }
    void Delete(int row)
    {
        beginRemoveRows({}, row, row);
        mTable.DeleteRow(mTable.LowerRow() + row);
        endRemoveRows();
    }

private:
    TextTable &mTable;
    QStringList mCaptions;
};

RowGrid::RowGrid(QWidget *parent)
    : QTableView(parent)
{
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setTextElideMode(Qt::ElideNone);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    horizontalHeader()->setSectionsClickable(false);
    horizontalHeader()->setHighlightSections(false);
    verticalHeader()->hide();
    FitRowHeight(*this);
}

RowGrid::~RowGrid() = default;

void RowGrid::SetArray(TextTable &table, const QStringList &captions)
{
    mTable = &table;
    auto model = std::make_unique<TextTableModel>(table, captions);
    setModel(model.get());
    mModel = std::move(model);
}

void RowGrid::ReBind()
{
    mModel->ReadAgain();
    Bookmark(mTable->LowerRow());
}

void RowGrid::Delete()
{
    mModel->Delete(currentIndex().row());
}

std::optional<std::int32_t> RowGrid::Bookmark() const
{
    return currentIndex().isValid() ? std::optional(mTable->LowerRow() + currentIndex().row()) : std::nullopt;
}

void RowGrid::Bookmark(std::int32_t row)
{
    setCurrentIndex(mModel->index(row - mTable->LowerRow(), 0));
}

void RowGrid::PostMsg(int message)
{
    QMetaObject::invokeMethod(
        this, [this, message] { emit PostEvent(message); }, Qt::QueuedConnection);
}

QSize RowGrid::sizeHint() const
{
    const int rows = kRowsInSight * verticalHeader()->defaultSectionSize();
    return {minimumWidth(), horizontalHeader()->sizeHint().height() + rows + 2 * frameWidth()};
}

void RowGrid::mousePressEvent(QMouseEvent *event)
{
    QTableView::mousePressEvent(event);
    emit MouseDown();
}

void RowGrid::keyPressEvent(QKeyEvent *event)
{
    if (event->key() == Qt::Key_Delete && !(event->modifiers() & ~Qt::KeypadModifier))
        emit DeleteDown();
    else
        QTableView::keyPressEvent(event);
}

void RowGrid::changeEvent(QEvent *event)
{
    QTableView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        FitRowHeight(*this);
}

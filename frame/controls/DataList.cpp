#include "frame/controls/DataList.h"

#include "frame/controls/ScreenText.h"
#include "frame/store/Recordset.h"

#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStringListModel>

DataList::DataList(QWidget *parent)
    : QListView(parent)
    , mTexts(new QStringListModel(this))
{
    setModel(mTexts);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setUniformItemSizes(true);
    setTabKeyNavigation(false);
}

void DataList::SetRows(const Recordset &rows, const std::string &listField, const std::string &boundColumn)
{
    QStringList texts;
    std::vector<Value> bound;
    for (const Recordset::Row &row : rows.EachRow()) {
        texts.append(ScreenText(TextOrEmpty(row.Fields(listField))));
        bound.push_back(row.Fields(boundColumn));
    }
    const QSignalBlocker quiet(this);
    mTexts->setStringList(texts);
    mBound = std::move(bound);
}

Value DataList::BoundValue() const
{
    const QModelIndexList picked = selectionModel()->selectedRows();
    return picked.isEmpty() ? Value() : mBound.at(static_cast<std::size_t>(picked.constFirst().row()));
}

void DataList::keyPressEvent(QKeyEvent *event)
{
    QListView::keyPressEvent(event);
    if (event->key() != Qt::Key_Delete)
        return;
    event->accept();
    emit DelPressed();
}

void DataList::mousePressEvent(QMouseEvent *event)
{
    mTold = false;
    QListView::mousePressEvent(event);
    if (!mTold && indexAt(event->pos()).isValid())
        emit Click();
}

void DataList::focusInEvent(QFocusEvent *event)
{
    QListView::focusInEvent(event);
    // Qt made the first row current without picking it, and the first Down key would pass it by.
    if (!selectionModel()->hasSelection())
        selectionModel()->clearCurrentIndex();
}

void DataList::selectionChanged(const QItemSelection &selected, const QItemSelection &deselected)
{
    QListView::selectionChanged(selected, deselected);
    if (selected.isEmpty())
        return;
    mTold = true;
    emit Click();
}

// A row once picked stays so, whatever is pressed beside the rows or with the control key.
QItemSelectionModel::SelectionFlags DataList::selectionCommand(const QModelIndex &index, const QEvent *event) const
{
    const QItemSelectionModel::SelectionFlags command = QListView::selectionCommand(index, event);
    return !index.isValid() || (command & QItemSelectionModel::Deselect) ? QItemSelectionModel::NoUpdate : command;
}

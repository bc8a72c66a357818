#pragma once

#include "core/numeric/Value.h"

#include <QListView>

#include <string>
#include <vector>

class QStringListModel;
class Recordset;

/// A list over the rows of a recordset: shows one column, bound to another.
///
/// The user's pick emits Click, one of the row that is picked already too; what the program does emits nothing. The
/// focus alone picks no row.
class DataList : public QListView
{
    Q_OBJECT

public:
    explicit DataList(QWidget *parent = nullptr);

    /// Fills the list from a recordset's rows in their order; no row is picked afterwards.
    void SetRows(const Recordset &rows, const std::string &listField, const std::string &boundColumn);

    /// The bound value of the picked row, no value where none is picked.
    [[nodiscard]] Value BoundValue() const;

signals:
    void Click();
    /// The Del key was pressed, whether a row is picked or not.
    void DelPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void selectionChanged(const QItemSelection &selected, const QItemSelection &deselected) override;
    [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                                       const QEvent *event) const override;

private:
    QStringListModel *mTexts;
    std::vector<Value> mBound;
    bool mTold = false;
};

#pragma once

#include <QLineEdit>
#include <QPointer>

#include <functional>

class Grid;
class QKeyEvent;

/// One line of text laid over a cell of a Grid, so that the cell seems to be edited in place. It follows the cell when
/// the grid scrolls, is moved or is resized, selects its whole text when it gets the focus, and is no tab stop.
///
/// What the keys mean is the form's own business: it moves the grid's current cell and places the editor there.
class FloatingEditor : public QLineEdit
{
    Q_OBJECT

public:
    /// A key before the editor sees it. True swallows it.
    using KeyHook = std::function<bool(QKeyEvent &)>;

    explicit FloatingEditor(QWidget *parent = nullptr);

    /// Lays the editor over a cell of its one grid; a sibling of the grid, on top of it. From the first time on, a
    /// click on the grid passes the check of the control that has the focus, as a click on any other control does.
    void Place(Grid &grid, int row, int column);
    void OnKeyDown(KeyHook hook);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;

private:
    void Watch(Grid &grid);
    void Follow();

    QPointer<Grid> mGrid;
    int mRow = 0;
    int mColumn = 0;
    KeyHook mKeyHook;
};

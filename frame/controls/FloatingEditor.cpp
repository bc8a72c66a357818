#include "frame/controls/FloatingEditor.h"

#include "frame/controls/Grid.h"
#include "frame/controls/SelectOnFocus.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>

FloatingEditor::FloatingEditor(QWidget *parent)
    : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    setFocusPolicy(Qt::ClickFocus);
    setFrame(false);
}

void FloatingEditor::Place(Grid &grid, int row, int column)
{
    if (!mGrid)
        Watch(grid);
    mRow = row;
    mColumn = column;
    Follow();
}

void FloatingEditor::Watch(Grid &grid)
{
    mGrid = &grid;
    grid.setFocusPolicy(Qt::ClickFocus);
    grid.installEventFilter(this);
    for (const QScrollBar *bar : {grid.horizontalScrollBar(), grid.verticalScrollBar()})
        connect(bar, &QScrollBar::valueChanged, this, &FloatingEditor::Follow);
    for (const QHeaderView *header : {grid.horizontalHeader(), grid.verticalHeader()})
        connect(header, &QHeaderView::sectionResized, this, &FloatingEditor::Follow);
    setParent(grid.parentWidget());
    setVisible(!grid.isHidden());
}

void FloatingEditor::Follow()
{
    if (!mGrid)
        return;
    const QWidget *viewport = mGrid->viewport();
    const QRect inSight(viewport->mapTo(mGrid->parentWidget(), QPoint()), viewport->size());
    setGeometry(mGrid->CellRect(mRow, mColumn).intersected(inSight));
    raise();
}

bool FloatingEditor::eventFilter(QObject * /*watched*/, QEvent *event)
{
    switch (event->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::LayoutRequest:
        Follow();
        // The grid itself sees the event after this filter, and lays its columns out anew.
        QMetaObject::invokeMethod(this, &FloatingEditor::Follow, Qt::QueuedConnection);
        break;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        setVisible(!mGrid->isHidden());
        Follow();
        break;
    default:
        break;
    }
    return false;
}

void FloatingEditor::OnKeyDown(KeyHook hook)
{
    mKeyHook = std::move(hook);
}

void FloatingEditor::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
    SelectOnFocus(*this, event->reason());
}

void FloatingEditor::keyPressEvent(QKeyEvent *event)
{
    if (mKeyHook && mKeyHook(*event))
        event->accept();
    else
        QLineEdit::keyPressEvent(event);
}

void FloatingEditor::paintEvent(QPaintEvent *event)
{
    QLineEdit::paintEvent(event);
    if (!hasFocus())
        return;
    QPainter painter(this);
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void FloatingEditor::wheelEvent(QWheelEvent *event)
{
    // The grid below scrolls as if the editor were its cell.
    if (mGrid)
        QCoreApplication::sendEvent(mGrid->viewport(), event);
}

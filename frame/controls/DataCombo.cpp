#include "frame/controls/DataCombo.h"

#include "frame/controls/ScreenText.h"
#include "frame/store/Recordset.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QStyleOptionComboBox>

#include <algorithm>

namespace
{
constexpr int kLeastCharacters = 10;
constexpr int kVisibleRows = 16;
} // namespace

DataCombo::DataCombo(QWidget *parent)
    : QComboBox(parent)
{
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kLeastCharacters);
    setMaxVisibleItems(kVisibleRows);
    connect(this, &QComboBox::activated, this, [this](int row) { TakeUserText(itemText(row), row); });
    connect(this, &QComboBox::editTextChanged, this, [this](const QString &text) {
        TakeUserText(text, findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
    });
}

void DataCombo::setEditable(bool editable)
{
    QComboBox::setEditable(editable);
    if (!editable)
        return;
    setCompleter(nullptr);
    // On leaving, the box would take the row whose text differs in case only.
    disconnect(lineEdit(), &QLineEdit::editingFinished, this, nullptr);
    const QSignalBlocker quiet(this);
    setEditText(mText);
}

void DataCombo::SetRows(const Recordset &rows, const std::string &listField, const std::string &boundColumn)
{
    const QSignalBlocker quiet(this);
    const Value bound = BoundValue();
    clear();
    mBound.clear();
    QStringList texts;
    for (const Recordset::Row &row : rows.EachRow()) {
        texts.append(ScreenText(TextOrEmpty(row.Fields(listField))));
        mBound.push_back(boundColumn.empty() ? Value() : row.Fields(boundColumn));
    }
    addItems(texts);
    // The same row, though it may have been renamed; else the row that now has this text.
    const bool stillThere = !bound.IsAbsent() && std::find(mBound.begin(), mBound.end(), bound) != mBound.end();
    if (stillThere)
        SetBoundValue(bound);
    else
        SetText(QString(mText));
}

QString DataCombo::Text() const
{
    return mText;
}

void DataCombo::SetText(const QString &text)
{
    PutRow(findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive), text);
}

Value DataCombo::BoundValue() const
{
    return mRow < 0 ? Value() : mBound.at(static_cast<std::size_t>(mRow));
}

void DataCombo::SetBoundValue(const Value &bound)
{
    const auto found = bound.IsAbsent() ? mBound.end() : std::find(mBound.begin(), mBound.end(), bound);
    const int row = found == mBound.end() ? -1 : static_cast<int>(found - mBound.begin());
    PutRow(row, row < 0 ? QString() : itemText(row));
}

void DataCombo::PutRow(int row, const QString &text)
{
    const QSignalBlocker quiet(this);
    mRow = row;
    mText = text;
    setCurrentIndex(row);
    if (isEditable())
        setEditText(text);
    update();
}

void DataCombo::TakeUserText(const QString &text, int row)
{
    if (text == mText && row == mRow)
        return;
    mText = text;
    mRow = row;
    emit Changed();
}

void DataCombo::initStyleOption(QStyleOptionComboBox *option) const
{
    QComboBox::initStyleOption(option);
    if (!isEditable() && currentIndex() < 0)
        option->currentText = mText;
}

void DataCombo::showEvent(QShowEvent *event)
{
    // A screen reader stops at the box within the box.
    if (isEditable())
        lineEdit()->setAccessibleName(accessibleName());
    QComboBox::showEvent(event);
}

void DataCombo::keyPressEvent(QKeyEvent *event)
{
    // Some desktops open a list on Enter, which belongs to the form.
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEditable())
        QComboBox::keyPressEvent(event);
    else if (enter)
        event->ignore();
    else if (ContinuesSearch(*event))
        SearchBlank();
    else
        QComboBox::keyPressEvent(event);
}

// A blank opens the list, unless it stands within a name that is being typed.
bool DataCombo::ContinuesSearch(const QKeyEvent &event)
{
    const bool typing = mSinceLetter.isValid() && !mSinceLetter.hasExpired(QApplication::keyboardInputInterval());
    if (!event.text().isEmpty() && event.text().at(0).isPrint())
        mSinceLetter.start();
    return typing && event.key() == Qt::Key_Space;
}

void DataCombo::SearchBlank()
{
    view()->setCurrentIndex(model()->index(currentIndex(), modelColumn()));
    view()->keyboardSearch(QStringLiteral(" "));
    const int row = view()->currentIndex().row();
    if (row == currentIndex())
        return;
    setCurrentIndex(row);
    emit activated(row);
}

#pragma once

#include "core/numeric/Value.h"

#include <QComboBox>
#include <QElapsedTimer>

#include <string>
#include <vector>

class Recordset;

/// A drop-down list over the rows of a recordset: shows one column, bound to another.
///
/// Its text is what stands in the box, chosen or typed; the bound value is that of the row with this text, no value
/// where there is none. Where several rows have the same text, it is the row that was picked. The user's own choice or
/// typing emits Changed; changes by the program emit nothing, the caller runs its handler itself.
class DataCombo : public QComboBox
{
    Q_OBJECT

public:
    explicit DataCombo(QWidget *parent = nullptr);

    /// Editable boxes keep what is typed as it is typed: nothing is completed, put into the list or put right.
    void setEditable(bool editable);

    /// Fills the list from a recordset's rows in their order. The text in the box stays as it is; the bound
    /// column may be empty where nothing is bound.
    void SetRows(const Recordset &rows, const std::string &listField, const std::string &boundColumn = {});

    [[nodiscard]] QString Text() const;
    /// Puts a text into the box; picks the row of that text where there is one, none otherwise. A list-only box keeps
    /// and shows the text even where no row has it.
    void SetText(const QString &text);
    /// The bound value of the row on show, no value where no row is picked.
    [[nodiscard]] Value BoundValue() const;
    /// Picks the row with this bound value and shows its text; empties the box where none has it.
    void SetBoundValue(const Value &bound);

signals:
    void Changed();

protected:
    void initStyleOption(QStyleOptionComboBox *option) const override;
    void keyPressEvent(QKeyEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    [[nodiscard]] bool ContinuesSearch(const QKeyEvent &event);
    void SearchBlank();
    void PutRow(int row, const QString &text);
    void TakeUserText(const QString &text, int row);

    std::vector<Value> mBound;
    QString mText;
    int mRow = -1;
    QElapsedTimer mSinceLetter;
};

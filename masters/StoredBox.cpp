#include "masters/StoredBox.h"

#include "frame/controls/ScreenText.h"

#include <algorithm>

namespace
{
void LowerLimit(QLineEdit &box, int limit)
{
    if (box.maxLength() == limit)
        return;
    const int cursor = box.cursorPosition();
    box.setMaxLength(std::max(limit, static_cast<int>(box.text().size())));
    box.setCursorPosition(cursor);
}
} // namespace

StoredBox::StoredBox(QLineEdit &box, std::string_view column)
    : mBox(&box)
    , mColumn(column)
    , mLimit(box.maxLength())
{
    QObject::connect(&box, &QLineEdit::textEdited, &box, [&box, limit = mLimit] { LowerLimit(box, limit); });
}

void StoredBox::Show(const Value &stored) const
{
    const QString text = QString::fromStdString(TextOrEmpty(stored));
    mBox->setMaxLength(std::max(mLimit, static_cast<int>(text.size())));
    mBox->setText(text);
    mBox->setCursorPosition(0);
}

void StoredBox::Clear() const
{
    mBox->setMaxLength(mLimit);
    mBox->clear();
}

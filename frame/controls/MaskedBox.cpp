#include "frame/controls/MaskedBox.h"

#include <algorithm>

namespace
{
constexpr QChar kPlace = u'9';
constexpr QChar kPrompt = u'_';

bool IsDigit(QChar character)
{
    return character >= u'0' && character <= u'9';
}

// The mask in Qt's own words, where many more characters than 9 have a meaning.
QString InputMask(const QString &mask)
{
    QString input;
    for (const QChar character : mask) {
        if (character != kPlace)
            input += u'\\';
        input += character;
    }
    return input + u';' + kPrompt;
}

bool HasShape(const QString &text, const QString &mask)
{
    return std::equal(text.begin(), text.end(), mask.begin(), mask.end(), [](QChar character, QChar place) {
        return place == kPlace ? IsDigit(character) || character == kPrompt : character == place;
    });
}

bool IsAllDigits(const QString &text, const QString &mask)
{
    return text.size() == mask.count(kPlace) && std::all_of(text.begin(), text.end(), IsDigit);
}
} // namespace

MaskedBox::MaskedBox(QWidget *parent)
    : QLineEdit(parent)
{
}

void MaskedBox::SetMask(const QString &mask)
{
    mMask = mask;
    setInputMask(InputMask(mask));
}

QString MaskedBox::Text() const
{
    return displayText();
}

void MaskedBox::SetText(const QString &text)
{
    setText(HasShape(text, mMask) || IsAllDigits(text, mMask) ? text : QString());
}

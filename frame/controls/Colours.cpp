#include "frame/controls/Colours.h"

#include <QEvent>
#include <QLineEdit>
#include <QPalette>

namespace
{
constexpr QColor kRedOnLight(0xC0, 0x00, 0x00);
constexpr QColor kRedOnDark(0xFF, 0x8A, 0x80);

// Keeps a field's text red on whatever palette the field gets, and gives it back its own colours.
class RedText : public QObject
{
public:
    explicit RedText(QLineEdit &field)
        : QObject(&field)
        , mField(field)
    {
        field.installEventFilter(this);
    }

    static RedText *Of(const QLineEdit &field)
    {
        for (QObject *child : field.children()) {
            if (auto *text = dynamic_cast<RedText *>(child))
                return text;
        }
        return nullptr;
    }

    void Put(bool red)
    {
        if (mRed == red)
            return;
        if (red)
            mOwn = mField.palette();
        mRed = red;
        if (red)
            Paint();
        else
            GiveBack();
    }

    [[nodiscard]] bool IsRed() const { return mRed; }

    bool eventFilter(QObject * /*watched*/, QEvent *event) override
    {
        if (mRed && event->type() == QEvent::PaletteChange)
            Paint();
        return false;
    }

private:
    void Paint()
    {
        QPalette palette = mField.palette();
        const QColor red = FigureRed(palette);
        if (palette.color(QPalette::Active, QPalette::Text) == red)
            return;
        palette.setColor(QPalette::Text, red);
        mField.setPalette(palette);
    }

    /// Over the present background: the theme may not be the one under which the text turned red.
    void GiveBack()
    {
        if (mField.isReadOnly())
            mOwn.setBrush(QPalette::Base, mField.palette().base());
        mField.setPalette(mOwn);
    }

    QLineEdit &mField;
    QPalette mOwn;
    bool mRed = false;
};
} // namespace

QColor FigureRed(const QPalette &palette)
{
    return palette.color(QPalette::Active, QPalette::Base).lightness() < 128 ? kRedOnDark : kRedOnLight;
}

void SetRed(QLineEdit &field, bool red)
{
    RedText *text = RedText::Of(field);
    if (!text && red)
        text = new RedText(field);
    if (text)
        text->Put(red);
}

bool IsRed(const QLineEdit &field)
{
    const RedText *text = RedText::Of(field);
    return text && text->IsRed();
}

void ShowLocked(QWidget &window)
{
    for (QLineEdit *field : window.findChildren<QLineEdit *>()) {
        if (!field->isReadOnly())
            continue;
        QPalette palette = field->palette();
        palette.setBrush(QPalette::Base, window.palette().window());
        field->setPalette(palette);
    }
}

#include "frame/ImageList.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QStyle>

// The resources lie in a static library, whose initializers the linker drops unless they are asked for.
static void InitPictures()
{
    Q_INIT_RESOURCE(icons);
}

namespace
{
/// Paints the picture in the colour of the text beside it where a menu highlights its item.
class MenuPictureEngine : public QIconEngine
{
public:
    explicit MenuPictureEngine(QIcon picture)
        : mPicture(std::move(picture))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size() * painter->device()->devicePixelRatio(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        // Other styles highlight in a shade that the picture's own colours stand out from.
        if (mode != QIcon::Active || QApplication::style()->name() != QLatin1String("fusion"))
            return mPicture.pixmap(size, 1.0, mode, state);
        QPixmap picture = mPicture.pixmap(size, 1.0, QIcon::Normal, state);
        QPainter painter(&picture);
        painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
        painter.fillRect(picture.rect(), QApplication::palette().color(QPalette::HighlightedText));
        return picture;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new MenuPictureEngine(mPicture); }

private:
    QIcon mPicture;
};
} // namespace

QIcon Picture(const QString &key)
{
    static const bool ready = (InitPictures(), true);
    return ready ? QIcon(QStringLiteral(":/icons/%1.svg").arg(key)) : QIcon();
}

QIcon MenuPicture(const QString &key)
{
    return QIcon(new MenuPictureEngine(Picture(key)));
}

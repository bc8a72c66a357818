#pragma once

#include <QIcon>
#include <QStringList>

/// Pictures under keys, counted from 1.
class ImageList
{
public:
    explicit ImageList(QStringList keys)
        : mKeys(std::move(keys))
    {
    }

    /// The position of a key, 0 where there is none of that name.
    [[nodiscard]] int Index(const QString &key) const { return static_cast<int>(mKeys.indexOf(key)) + 1; }
    [[nodiscard]] QString Key(int index) const { return mKeys.value(index - 1); }

private:
    QStringList mKeys;
};

/// One of the program's own pictures: sharp at every size, readable on light and dark.
[[nodiscard]] QIcon Picture(const QString &key);
/// The same for a menu: readable on the highlight of the item under the pointer too.
[[nodiscard]] QIcon MenuPicture(const QString &key);

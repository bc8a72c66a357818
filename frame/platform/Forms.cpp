#include "frame/platform/Form.h"

namespace
{
QList<QWidget *> &Loaded()
{
    static QList<QWidget *> windows;
    return windows;
}
} // namespace

void Forms::Add(QWidget *window)
{
    if (!Loaded().contains(window))
        Loaded().append(window);
}

void Forms::Remove(QWidget *window)
{
    Loaded().removeAll(window);
}

int Forms::Count()
{
    return static_cast<int>(Loaded().size());
}

const QList<QWidget *> &Forms::All()
{
    return Loaded();
}

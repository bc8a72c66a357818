#include "frame/StatusPanels.h"

#include "core/Clock.h"
#include "frame/platform/Machine.h"

#include <QCoreApplication>
#include <QDate>
#include <QKeyEvent>
#include <QLocale>
#include <QWindow>

namespace
{
QString TimeText(const QTime &time)
{
    return QLocale::system().toString(time, QLocale::ShortFormat);
}

QString DateText(const QDate &date)
{
    return QLocale::system().toString(date, QLocale::ShortFormat);
}
} // namespace

StatusPanels::StatusPanels(QWidget *parent)
    : QStatusBar(parent)
{
    setObjectName("sb1");
    setAccessibleName(tr("Status bar"));
    AddPanel(1, tr("Message"), {});
    AddPanel(2, tr("Caps Lock"), "CAPS");
    AddPanel(3, tr("Num Lock"), "NUM");
    AddPanel(4, tr("Insert"), "INS");
    AddPanel(5, tr("Time"), TimeText({22, 58, 58}));
    AddPanel(6, tr("Date"), DateText({2028, 12, 28}));
    ShowLockKeys();
    ShowTime();
    connect(&mTimer, &QTimer::timeout, this, [this] {
        ShowLockKeys();
        ShowTime();
    });
    mTimer.start(1000);
    QCoreApplication::instance()->installEventFilter(this);
}

void StatusPanels::AddPanel(int number, const QString &accessibleName, const QString &widest)
{
    auto *panel = new QLabel(this);
    panel->setObjectName(QStringLiteral("sb1(%1)").arg(number));
    panel->setAccessibleName(accessibleName);
    panel->setTextFormat(Qt::PlainText);
    mPanels.at(static_cast<std::size_t>(number - 1)) = panel;
    if (number == 1) {
        // A long hint must not widen the main window.
        panel->setMinimumWidth(1);
        panel->setIndent(4);
        addWidget(panel, 1);
        return;
    }
    panel->setAlignment(Qt::AlignCenter);
    panel->setMinimumWidth(panel->fontMetrics().horizontalAdvance(widest) + 12);
    addPermanentWidget(panel);
}

void StatusPanels::SetPanel(int number, const QString &text)
{
    PanelAt(number).setText(text);
    PanelAt(number).setAccessibleDescription(text);
}

bool StatusPanels::eventFilter(QObject *watched, QEvent *event)
{
    const QEvent::Type type = event->type();
    // Every key passes the window first and only once.
    if ((type == QEvent::KeyPress || type == QEvent::KeyRelease) && qobject_cast<QWindow *>(watched)) {
        const auto &key = static_cast<const QKeyEvent &>(*event);
        if (type == QEvent::KeyPress && key.key() == Qt::Key_Insert && !key.isAutoRepeat())
            mInsert = !mInsert;
        if (key.key() == Qt::Key_CapsLock || key.key() == Qt::Key_NumLock || key.key() == Qt::Key_Insert)
            ShowLockKeys();
    }
    return QStatusBar::eventFilter(watched, event);
}

void StatusPanels::ShowKey(int number, const QString &name, std::optional<bool> on)
{
    PanelAt(number).setText(on ? name : QString());
    PanelAt(number).setEnabled(on.value_or(false));
    PanelAt(number).setAccessibleDescription(!on ? QString() : *on ? tr("on") : tr("off"));
}

void StatusPanels::ShowLockKeys()
{
    const LockKeys keys = ReadLockKeys();
    ShowKey(2, "CAPS", keys.capsLock);
    ShowKey(3, "NUM", keys.numLock);
    ShowKey(4, "INS", mInsert);
}

void StatusPanels::ShowTime()
{
    const ClockTime now = Now();
    SetPanel(5, TimeText({now.hour, now.minute, now.second}));
    SetPanel(6, DateText({now.year, now.month, now.day}));
}

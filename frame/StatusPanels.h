#pragma once

#include <QLabel>
#include <QStatusBar>
#include <QTimer>

#include <array>
#include <optional>

/// The main window's status bar: 1 the message, 2 to 4 Caps Lock, Num Lock and Insert, 5 the time, 6 the date.
/// Panels 2 to 6 keep themselves up to date.
class StatusPanels : public QStatusBar
{
    Q_OBJECT

public:
    explicit StatusPanels(QWidget *parent = nullptr);

    /// Panels are counted from 1.
    [[nodiscard]] QString Panel(int number) const { return PanelAt(number).text(); }
    void SetMessage(const QString &text) { SetPanel(1, text); }

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    [[nodiscard]] QLabel &PanelAt(int number) const { return *mPanels.at(static_cast<std::size_t>(number - 1)); }
    void AddPanel(int number, const QString &accessibleName, const QString &widest);
    void SetPanel(int number, const QString &text);
    void ShowKey(int number, const QString &name, std::optional<bool> on);
    void ShowLockKeys();
    void ShowTime();

    std::array<QLabel *, 6> mPanels {};
    QTimer mTimer;
    /// No platform tells the state of this key, so its presses are counted.
    bool mInsert = false;
};

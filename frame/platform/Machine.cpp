#include "frame/platform/Machine.h"

#include "core/numeric/Regional.h"

#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QLocale>

#include <chrono>
#include <random>

#ifdef Q_OS_WIN
#include <windows.h>
#endif

namespace
{
std::mt19937 &Generator()
{
    static std::mt19937 generator;
    return generator;
}

#ifdef Q_OS_LINUX
// Whether the light of any keyboard is on. The lights stand for the keys only where a user sits at this machine.
std::optional<bool> Light(const QString &name)
{
    const QString platform = QGuiApplication::platformName();
    if (platform != QLatin1String("xcb") && platform != QLatin1String("wayland"))
        return std::nullopt;
    const QDir lights(QStringLiteral("/sys/class/leds"));
    std::optional<bool> on;
    for (const QString &light : lights.entryList({QStringLiteral("*::") + name}, QDir::Dirs)) {
        QFile file(lights.filePath(light + QStringLiteral("/brightness")));
        if (file.open(QIODevice::ReadOnly))
            on = on.value_or(false) || file.readAll().trimmed().toInt() != 0;
    }
    return on;
}
#endif
} // namespace

LockKeys ReadLockKeys()
{
#if defined(Q_OS_WIN)
    return {(GetKeyState(VK_CAPITAL) & 1) != 0, (GetKeyState(VK_NUMLOCK) & 1) != 0};
#elif defined(Q_OS_LINUX)
    return {Light(QStringLiteral("capslock")), Light(QStringLiteral("numlock"))};
#else
    return {};
#endif
}

double RandomNumber()
{
    return (*RandomPort())();
}

void SeedRandom()
{
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    Generator().seed(static_cast<std::mt19937::result_type>(ticks));
}

Port<RandomSource> &RandomPort()
{
    static Port<RandomSource> port([] {
        constexpr double range = 4294967296.0; // of the generator's 32 bits
        return static_cast<double>(Generator()()) / range;
    });
    return port;
}

void TakeRegionalSettings()
{
    const QLocale machine = QLocale::system();
    RegionalPort().Set({.decimalSeparator = machine.decimalPoint().toStdString(),
                        .groupSeparator = machine.groupSeparator().toStdString(),
                        .currencySymbol = machine.currencySymbol().toStdString()});
}

#include "frame/platform/Settings.h"

#include "core/MsgBox.h"

#include <QSettings>

namespace
{
QString Wide(std::string_view text)
{
    return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

QSettings &Settings()
{
    return **SettingsPort();
}

QString Path(std::string_view section, std::string_view key)
{
    return Wide(section) + QLatin1Char('/') + Wide(key);
}
} // namespace

std::string GetSetting(std::string_view section, std::string_view key, std::string_view defaultValue)
{
    // Another program may have written since.
    Settings().sync();
    return Settings().value(Path(section, key), Wide(defaultValue)).toString().toStdString();
}

void SaveSetting(std::string_view section, std::string_view key, std::string_view value)
{
    const QString path = Path(section, key);
    Settings().sync();
    // Writing a file again for nothing is what a save would take most of its time for.
    if (Settings().contains(path) && Settings().value(path).toString() == Wide(value))
        return;
    Settings().setValue(path, Wide(value));
    Settings().sync();
}

Port<SettingsSource> &SettingsPort()
{
    static Port<SettingsSource> port(std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                                                 Wide(kProgramTitle), Wide(kProgramTitle)));
    return port;
}

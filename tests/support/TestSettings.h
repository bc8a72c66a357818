#pragma once

#include "frame/platform/Settings.h"

#include <QSettings>

#include <filesystem>

/// While they live, the settings of the program lie in this file.
class TestSettings : public ScopedPort<SettingsSource>
{
public:
    explicit TestSettings(const std::filesystem::path &file)
        : ScopedPort(SettingsPort(),
                     std::make_unique<QSettings>(QString::fromStdString(file.string()), QSettings::IniFormat))
    {
    }
};

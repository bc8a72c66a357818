#pragma once

#include "core/numeric/Port.h"

#include <memory>
#include <string>
#include <string_view>

class QSettings;

/// The program's per-user settings by section and key, under the program's name.
[[nodiscard]] std::string GetSetting(std::string_view section, std::string_view key, std::string_view defaultValue);
/// Written at once. A write that fails is told to nobody.
void SaveSetting(std::string_view section, std::string_view key, std::string_view value);

/// Where the settings lie: the user's own place unless another is set.
using SettingsSource = std::unique_ptr<QSettings>;
[[nodiscard]] Port<SettingsSource> &SettingsPort();

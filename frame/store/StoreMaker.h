#pragma once

#include <cstdint>
#include <filesystem>

/// What a new store holds besides its tables.
enum class StoreContent : std::uint8_t {
    Initial, ///< deduction items and tips
    Sample, ///< three ports and two ships with their hydrostatic tables as well
};

/// Makes a store. False, and nothing touched, where there is a file of that name already. The file appears whole or not
/// at all. StatementFailed where it cannot be written.
[[nodiscard]] bool MakeStore(const std::filesystem::path &file, StoreContent content);

#pragma once

#include <array>
#include <cstdint>
#include <string_view>

/// One column of a ship's hydrostatic table: how it is called and what is accepted in it.
struct HydrostaticColumn {
    std::string_view header;
    std::string_view storeColumn;
    std::string_view unit;
    std::string_view hint;
    /// Accepted numbers lie strictly between these two.
    std::int32_t above;
    std::int32_t below;
    int places;
    std::string_view outOfRange;

    static constexpr int Count = 8;
    static constexpr int HydDraft = 0;
    static constexpr int Displacement = 1;
    static constexpr int Last = Count - 1;

    /// In the order of the grids.
    [[nodiscard]] static const std::array<HydrostaticColumn, Count> &All();
    [[nodiscard]] static const HydrostaticColumn &At(int column) { return All().at(static_cast<std::size_t>(column)); }
};

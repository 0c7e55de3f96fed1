#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace kestrune::settings {

// The numeric SmartCycles in the order of the settings record, under the names of its fields.
enum class NumericCycle : std::size_t {
    IndentToggle,
    RightIndentToggle,
    RowHeightToggle,
    ColWidthToggle,
    MyColorToggle1,
    MyColorToggle2,
    MyColorToggle3,
    MyColorToggle4,
    MyColorToggle5,
};

inline constexpr auto numeric_cycle_names = std::to_array<std::string_view>(
    {"IndentToggle", "RightIndentToggle", "RowHeightToggle", "ColWidthToggle", "MyColorToggle1", "MyColorToggle2",
     "MyColorToggle3", "MyColorToggle4", "MyColorToggle5"});
inline constexpr std::size_t numeric_cycle_count = numeric_cycle_names.size();
inline constexpr std::size_t my_color_cycle_count = 5;

// MyColorToggle1 to MyColorToggle5 by number.
constexpr NumericCycle my_color_cycle(std::size_t number) {
    return static_cast<NumericCycle>(static_cast<std::size_t>(NumericCycle::MyColorToggle1) + number - 1);
}

}  // namespace kestrune::settings

#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrune::settings {

// The style SmartCycles in the order of the settings record, under the names of its fields.
enum class StyleCycle : std::size_t {
    GeneralStyleToggle,
    CurrencyStyleToggle,
    PercentStyleToggle,
    MultipleSTyleToggle,  // spelt as preferences files know it
    DateStyleToggle,
    BinaryStyleToggle,
    UnderlineStyleToggle,
    CenterStyleToggle,
    HAlignStyleToggle,
    VAlignStyleToggle,
    BorderStyleToggle,
    CellColorStyleToggle,
    MyStyleToggle1,
    MyStyleToggle2,
    MyStyleToggle3,
    MyStyleToggle4,
    MyStyleToggle5,
    MyStyleToggle6,
    MyStyleToggle7,
    MyStyleToggle8,
    MyStyleToggle9,
    MyStyleToggle10,
    MyStyleToggle11,
    MyStyleToggle12,
    MyStyleToggle13,
    MyStyleToggle14,
    MyStyleToggle15,
};

inline constexpr auto style_cycle_names = std::to_array<std::string_view>(
    {"GeneralStyleToggle", "CurrencyStyleToggle",  "PercentStyleToggle", "MultipleSTyleToggle", "DateStyleToggle",
     "BinaryStyleToggle",  "UnderlineStyleToggle", "CenterStyleToggle",  "HAlignStyleToggle",   "VAlignStyleToggle",
     "BorderStyleToggle",  "CellColorStyleToggle", "MyStyleToggle1",     "MyStyleToggle2",      "MyStyleToggle3",
     "MyStyleToggle4",     "MyStyleToggle5",       "MyStyleToggle6",     "MyStyleToggle7",      "MyStyleToggle8",
     "MyStyleToggle9",     "MyStyleToggle10",      "MyStyleToggle11",    "MyStyleToggle12",     "MyStyleToggle13",
     "MyStyleToggle14",    "MyStyleToggle15"});
inline constexpr std::size_t style_cycle_count = style_cycle_names.size();
inline constexpr std::size_t my_style_cycle_count = 15;

constexpr bool is_my_style_cycle(std::int32_t number) {
    return number >= 1 && number <= static_cast<std::int32_t>(my_style_cycle_count);
}

// MyStyleToggle1 to MyStyleToggle15 by number.
constexpr StyleCycle my_style_cycle(std::size_t number) {
    return static_cast<StyleCycle>(static_cast<std::size_t>(StyleCycle::MyStyleToggle1) + number - 1);
}

}  // namespace kestrune::settings

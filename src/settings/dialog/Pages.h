#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::settings::page {

// The pages of the settings dialog, in their order.
inline constexpr std::int32_t general = 0;
inline constexpr std::int32_t auto_color = 1;
inline constexpr std::int32_t smart_tools = 2;
inline constexpr std::int32_t style_cycles = 3;
inline constexpr std::int32_t other_cycles = 4;
inline constexpr std::int32_t styles = 5;

inline constexpr std::string_view heads[]{"General", "AutoColor", "Smart Tools", "Style Cycles", "Color & Other Cycles",
                                          "Styles"};
// The control that holds them.
inline constexpr std::string_view tabs = "tabSettings";

}  // namespace kestrune::settings::page

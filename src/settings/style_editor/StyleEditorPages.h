#pragma once

#include <cstdint>
#include <string_view>

namespace kestrune::settings::editor_page {

// The pages of the style editor, in their order.
inline constexpr std::int32_t style = 0;
inline constexpr std::int32_t number = 1;
inline constexpr std::int32_t alignment = 2;
inline constexpr std::int32_t font = 3;
inline constexpr std::int32_t border = 4;
inline constexpr std::int32_t fill = 5;

inline constexpr std::string_view heads[]{"Style", "Number", "Alignment", "Font", "Border", "Fill"};
// The control that holds them.
inline constexpr std::string_view tabs = "tabStyle";

}  // namespace kestrune::settings::editor_page

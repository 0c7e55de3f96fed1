#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace kestrune::host {

// The words of styles.xml for the model's enumerations, each at its enumerator's position.

inline constexpr auto underline_names =
    std::to_array<std::string_view>({"none", "single", "double", "singleAccounting", "doubleAccounting"});

inline constexpr auto vertical_run_names = std::to_array<std::string_view>({"baseline", "superscript", "subscript"});

inline constexpr auto pattern_names = std::to_array<std::string_view>({
    "none",     "solid",     "mediumGray",   "darkGray",    "lightGray",       "darkHorizontal", "darkVertical",
    "darkDown", "darkUp",    "darkGrid",     "darkTrellis", "lightHorizontal", "lightVertical",  "lightDown",
    "lightUp",  "lightGrid", "lightTrellis", "gray125",     "gray0625",
});

inline constexpr auto line_names = std::to_array<std::string_view>({
    "none",
    "thin",
    "medium",
    "dashed",
    "dotted",
    "thick",
    "double",
    "hair",
    "mediumDashed",
    "dashDot",
    "mediumDashDot",
    "dashDotDot",
    "mediumDashDotDot",
    "slantDashDot",
});

inline constexpr auto horizontal_names = std::to_array<std::string_view>(
    {"general", "left", "center", "right", "fill", "justify", "centerContinuous", "distributed"});

inline constexpr auto vertical_names =
    std::to_array<std::string_view>({"top", "center", "bottom", "justify", "distributed"});

template <class Enumeration, std::size_t count>
Enumeration enumerator(const std::array<std::string_view, count>& names, std::string_view name, Enumeration fallback) {
    const auto found = std::find(names.begin(), names.end(), name);
    return found == names.end() ? fallback : static_cast<Enumeration>(found - names.begin());
}

template <class Enumeration, std::size_t count>
std::string_view name_of(const std::array<std::string_view, count>& names, Enumeration value) {
    return names[static_cast<std::size_t>(value)];
}

}  // namespace kestrune::host

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// Areas as files spell them: "A1", "B2:C5", "A:C", "3:7", with or without $; lists are divided by white space.
[[nodiscard]] std::optional<formula::Area> parse_area(std::string_view text);
[[nodiscard]] std::optional<std::vector<formula::Area>> parse_areas(std::string_view text);
// By their corners, whole rows and columns too, as Excel writes them: "A1:XFD1048576".
[[nodiscard]] std::string areas_text(const std::vector<formula::Area>& areas);

}  // namespace kestrune::host

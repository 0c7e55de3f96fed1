#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::formula {

// What is left of an area without another: up to four rectangles, whole rows of it above and below the hole.
[[nodiscard]] std::vector<Area> area_without(const Area& area, const Area& hole);
// The same of several areas without others.
[[nodiscard]] std::vector<Area> areas_without(std::vector<Area> areas, const std::vector<Area>& holes);
// Whether areas are the same cells, however they are cut.
[[nodiscard]] bool same_cells(const std::vector<Area>& one, const std::vector<Area>& other);

}  // namespace kestrune::formula

#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::formula {

// What is left of an area without another: up to four rectangles, whole rows of it above and below the hole.
[[nodiscard]] std::vector<Area> area_without(const Area& area, const Area& hole);

}  // namespace kestrune::formula

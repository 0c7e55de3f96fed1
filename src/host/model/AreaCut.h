#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// What is left of an area without another: up to four rectangles, whole rows of it above and below the hole.
[[nodiscard]] std::vector<formula::Area> area_without(const formula::Area& area, const formula::Area& hole);

}  // namespace kestrune::host

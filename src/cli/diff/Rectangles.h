#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::cli {

// The fewest rectangles that a simple sweep finds for a set of distinct cells: runs within a column,
// joined with equal runs of the columns beside. Sorted by row, then column.
std::vector<formula::Area> rectangles(std::vector<formula::Position> cells);

// The cells of areas, which may overlap, as rectangles that are the same for the same cells, whatever areas name them.
std::vector<formula::Area> rectangles(const std::vector<formula::Area>& areas);

}  // namespace kestrune::cli

#pragma once

#include <vector>

#include "formula/Area.h"

namespace kestrune::cli {

// The fewest rectangles that a simple sweep finds for a set of distinct cells: runs within a column,
// joined with equal runs of the columns beside. Sorted by row, then column.
std::vector<formula::Area> rectangles(std::vector<formula::Position> cells);

}  // namespace kestrune::cli

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "brxllib/undo/Change.h"
#include "excel/Range.h"
#include "formula/Area.h"

namespace kestrune::brxllib::undo {

// The areas of a range of whole rows or columns, from top to bottom, or left to right.
[[nodiscard]] std::vector<formula::Area> lines_of(const excel::Range& lines);
// A range of these whole rows or columns, which nobody else holds: it moves with its cells.
[[nodiscard]] excel::Range held_lines(const excel::Worksheet& sheet, const std::vector<formula::Area>& lines,
                                      bool rows);

// What stands in the way of a change of whole rows or columns that a range tells the place of: its sheet or its cells
// are gone, or the sheet is protected.
[[nodiscard]] std::optional<Obstacle> obstacle_of_sheet(const excel::Range& place);
// "rows or columns have been inserted or deleted on Model"
[[nodiscard]] std::string lines_moved(const excel::Range& place);

}  // namespace kestrune::brxllib::undo

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "brxllib/undo/Change.h"
#include "excel/Worksheet.h"
#include "formula/Area.h"
#include "formula/Edit.h"

namespace kestrune::brxllib::undo {

// The whole rows (columns) that the areas of a range run through, from top to bottom, or left to right.
[[nodiscard]] std::vector<formula::Area> lines_of(const excel::Range& range, bool rows);
// The same with those that touch or overlap joined.
[[nodiscard]] std::vector<formula::Area> joined(const std::vector<formula::Area>& lines, bool rows);
// So many rows (columns) further down (right).
[[nodiscard]] formula::Area moved(formula::Area line, std::int32_t by, bool rows);
// How many rows (columns) an area has, and which are its first and last.
[[nodiscard]] std::int32_t count_of(const formula::Area& line, bool rows);
[[nodiscard]] std::int32_t first_of(const formula::Area& line, bool rows);
[[nodiscard]] std::int32_t last_of(const formula::Area& line, bool rows);

// The deletion of lines on a sheet, from the last to the first, or their insertion, from the first to the last.
[[nodiscard]] std::vector<formula::Edit> edits_of(const std::vector<formula::Area>& lines, bool rows, bool deletes,
                                                  const std::string& sheet);

// What stands in the way of a change of whole rows or columns: their sheet is gone, or protected.
[[nodiscard]] std::optional<Obstacle> obstacle_of_sheet(const excel::Worksheet& sheet);
// "rows or columns have been inserted or deleted on Model"
[[nodiscard]] Obstacle lines_moved(const excel::Worksheet& sheet);

}  // namespace kestrune::brxllib::undo

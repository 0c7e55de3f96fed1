#pragma once

#include <cstdint>
#include <functional>
#include <string_view>
#include <vector>

#include "host/objects/CellRange.h"

namespace kestrune::host {

// The lines of a range by XlBordersIndex: 5 and 6 the diagonals of every cell, 7 to 10 the outer rim of
// each area, 11 and 12 the lines inside. all_lines stands for every side of every cell.
//
// The line between two cells is one: either shows it. A write keeps both sides in step, inside the range
// and with the neighbours around it.
inline constexpr std::int32_t all_lines = 0;

// The distinct lines there; empty where the range has none, such as inside one cell.
std::vector<Line> lines_of(const CellRange& cells, std::int32_t index);

// Changes them. A line that a range cannot have is error 1004, unless the change only takes lines away.
void change_lines(const CellRange& cells, std::int32_t index, std::string_view member,
                  const std::function<void(Line&)>& change);

}  // namespace kestrune::host

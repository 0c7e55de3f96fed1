#pragma once

#include <cstdint>

#include "excel/Range.h"

namespace kestrune::brxllib {

// Where labels stand: at the left of a row, above a column.
enum class Side : std::uint8_t { Left, Above };

// The label that governs a cell, as a person reads the sheet: the nearest cell on that side, in the cell's own row or
// column, that shows text. A date is a label, too, where it heads something: "31-Dec-26" above a column of numbers,
// but no date of a run of dates that ends in the cell. So is a year that the years before or after it stand beside:
// 2027 between 2026 and 2028. Nothing when there is none.
[[nodiscard]] excel::Range nearest_label(const excel::Range& cell, Side side);

// What heads the cell's line when no text does: the line's first cell on that side that holds anything but an error,
// such as a year in the first column. Nothing when all are empty.
[[nodiscard]] excel::Range line_heading(const excel::Range& cell, Side side);

}  // namespace kestrune::brxllib

#pragma once

#include <cstdint>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Points that rows or columns first..last take up on the screen; hidden ones take none.
double rows_height(Sheet& sheet, std::int32_t first, std::int32_t last);
double columns_width(Sheet& sheet, std::int32_t first, std::int32_t last);

// Shows or hides rows and columns. One that was hidden by a size of 0 shows with the standard size.
void show_rows(Sheet& sheet, std::int32_t first, std::int32_t last, bool shown);
void show_columns(Sheet& sheet, std::int32_t first, std::int32_t last, bool shown);

// The width of columns without one of their own, in characters of the Normal font as a user sees them.
double standard_width(Sheet& sheet);
void set_standard_width(Sheet& sheet, double characters);

// Before a merge: moves the first filled cell of the area, row by row, to its top-left cell when that is blank.
void keep_first_content(Sheet& sheet, const Area& area);

}  // namespace kestrune::host

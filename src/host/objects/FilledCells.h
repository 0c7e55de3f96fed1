#pragma once

#include <cstdint>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Whether a cell holds a value or a formula.
bool filled(Sheet& sheet, Position at);
bool any_filled(Sheet& sheet, const Area& area);

// Where Ctrl and an arrow (xlUp, xlDown, xlToLeft, xlToRight) lead from a cell: the last filled cell of
// its run, else the next filled one, else the sheet's edge. Another direction is error 1004.
Position end_of_run(Sheet& sheet, Position from, std::int32_t direction);

// The area grown until an empty row or column, or the sheet's edge, lies on every side.
Area filled_region(Sheet& sheet, Area start);

}  // namespace kestrune::host

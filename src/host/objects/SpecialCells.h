#pragma once

#include <cstdint>
#include <vector>

#include "host/model/Sheet.h"

namespace kestrune::host {

// Which cells Range.SpecialCells looks for.
struct SpecialCells {
    std::int32_t type = 0;   // xlCellTypeConstants, xlCellTypeFormulas or xlCellTypeBlanks
    std::int32_t kinds = 0;  // xlNumbers, xlTextValues, xlLogical and xlErrors added up, of constants and formulas
};

// Rectangles, none over another, of the cells wanted inside an area. A formula counts by its cached value.
std::vector<Area> find_special_cells(Sheet& sheet, const Area& area, const SpecialCells& wanted);

}  // namespace kestrune::host

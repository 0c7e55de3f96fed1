#pragma once

#include <cstdint>
#include <vector>

#include "formula/Area.h"

namespace kestrune::host {

// How a sheet is looked at in the workbook's window (ECMA-376 18.3.1.87), of its first view.
struct SheetView {
    bool show_gridlines = true;
    bool show_headings = true;
    bool show_zeros = true;
    bool right_to_left = false;
    std::int32_t zoom = 100;  // per cent
    formula::Position active_cell;
    std::vector<formula::Area> selection{formula::Area{}};
    std::int32_t frozen_rows = 0;
    std::int32_t frozen_columns = 0;
    bool changed = false;            // gridlines, headings, zeros or zoom differ from the file
    bool selection_changed = false;  // looked at elsewhere; alone, this is no reason to write the part anew
};

}  // namespace kestrune::host

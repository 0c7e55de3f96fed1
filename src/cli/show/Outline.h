#pragma once

#include <cstdint>
#include <vector>

#include "host/model/Sheet.h"

namespace kestrune::cli {

enum class OutlineMark : std::uint8_t { None, Line, Open, Closed };

// What stands beside each visible row, or above each visible column, for each outline level: a line
// along a group, a button where its summary is.
struct OutlineGutter {
    int levels = 0;                               // columns of the gutter; 0 without groups
    std::vector<std::vector<OutlineMark>> marks;  // [visible row or column][level from 0]
};

OutlineGutter row_gutter(host::Sheet& sheet, const std::vector<std::int32_t>& visible_rows);
OutlineGutter column_gutter(host::Sheet& sheet, const std::vector<std::int32_t>& visible_columns);

}  // namespace kestrune::cli

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "excel/Application.h"

namespace kestrune::brxllib {

// How the formulas of a block are read and written.
enum class FormulaBlockKind : std::int32_t {
    Plain = 0,    // a formula of its own in every cell: Formula
    Array = 1,    // one formula for all the cells: FormulaArray
    Dynamic = 2,  // one cell whose formula may spill: Formula2
};

struct FormulaBlock {
    std::string address;  // one rectangle
    FormulaBlockKind kind = FormulaBlockKind::Plain;
};

// The rectangles of a range whose cells hold formulas, area after area. Left out are array formulas that lie only
// partly in the range, which Excel does not let anybody change by halves, cells into which a formula elsewhere spills,
// and formulas in cells formatted as text, which would be texts once they are entered again.
[[nodiscard]] std::vector<FormulaBlock> formula_blocks(const excel::Application& application,
                                                       const excel::Range& range);

}  // namespace kestrune::brxllib

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formula/Area.h"

namespace kestrune::brxllib {

// The R1C1 formula with its relative references pointing `rows` further down and `columns` further right, as the cell
// `target` is to hold it: references that then lie off the sheet are #REF!, as a fill has them.
[[nodiscard]] std::string shift_for_cell(std::string_view formula, std::int32_t rows, std::int32_t columns,
                                         formula::Position target);

}  // namespace kestrune::brxllib

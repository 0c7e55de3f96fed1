#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// The A1 formula as a fill or a copy carries it `rows` down and `columns` to the right (negative: up, left): relative
// references move, on whatever sheet they are; absolute ones and everything else stay to the byte. With OffSheet::lose
// a reference pushed off the sheet becomes #REF!, as a fill has it; with OffSheet::wrap it goes round to the other end,
// as shared formulas in files have it.
[[nodiscard]] std::string shift_formula(std::string_view formula, std::int32_t rows, std::int32_t columns,
                                        OffSheet off_sheet = OffSheet::lose);

// The R1C1 formula with its relative references pointing `rows` further down and `columns` further right: R[-1]C
// becomes R[1]C for 2 rows. A distance beyond the sheet's size goes round.
[[nodiscard]] std::string shift_r1c1_formula(std::string_view formula, std::int32_t rows, std::int32_t columns);

}  // namespace kestrune::formula

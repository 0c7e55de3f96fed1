#pragma once

#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// The same formula in the other notation, seen from the cell `base` that holds it. Everything but the references stays
// to the byte. A distance in R1C1 text that leaves the sheet goes round to its other end, as in Excel.
[[nodiscard]] std::string to_r1c1(std::string_view a1_formula, Position base);
[[nodiscard]] std::string to_a1(std::string_view r1c1_formula, Position base);

}  // namespace kestrune::formula

#pragma once

#include <string>
#include <string_view>

#include "formula/Reference.h"

namespace kestrune::formula {

// Adds a reference whose relative coordinates are distances: R1C1, R[-1]C, R2:R5, C[3]. In full, one whole row or
// column is C[3]:C[3].
void append_r1c1(std::string& out, const Reference& reference, bool in_full = false);

// Reads the longest R1C1 reference that `text` starts with, in either case. Gives its length in bytes, or 0 for none.
// Relative coordinates become distances.
[[nodiscard]] std::size_t match_r1c1(std::string_view text, Reference& reference);

}  // namespace kestrune::formula

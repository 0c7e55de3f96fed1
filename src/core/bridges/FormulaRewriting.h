#pragma once

#include <functional>
#include <optional>
#include <string>

#include "core/bridges/SharedState.h"
#include "excel/Range.h"

namespace kestrune::core {

// What becomes of a formula ("=A1*2"); nothing when it stays.
using FormulaChange = std::function<std::optional<std::string>(const std::string& formula)>;

// Changes the formulas of a range block by block; array formulas as a whole, and only those that lie in it wholly. A
// formula that Excel refuses stays as it was, and the others change all the same.
void rewrite_formulas(const SharedState& shared, const excel::Range& range, const FormulaChange& change);

// The first formula of a range, area after area and row by row, for which the question answers yes.
[[nodiscard]] std::optional<std::string> find_formula(const SharedState& shared, const excel::Range& range,
                                                      const std::function<bool(const std::string& formula)>& asked);

}  // namespace kestrune::core

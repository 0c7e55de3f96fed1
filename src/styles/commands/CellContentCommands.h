#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::styles {

// Command bodies. Nothing happens when the selection is no range.

// Wraps the selected formulas in a test for errors, =IF(ISERROR(X), E, X) with E the error text of the user settings,
// and right-aligns the selection. When the first cell is wrapped already, unwraps instead. Nothing happens when the
// first cell holds no formula.
void error_trap(core::SharedState& shared, std::int32_t);

// Makes every cell a thin separator of dashes; one that is a separator already becomes empty and its row 12.75 points
// high. Of whole rows and columns the used cells count.
void separator_line(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::styles

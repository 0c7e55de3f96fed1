#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// Command body. Anchors every reference of the selected formulas alike: A1 becomes $A$1, that A$1, that $A1, and that
// A1 again. The first reference of the first formula that has one decides. Nothing happens when the selection is no
// range.
void anchor_references(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart

#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// Command bodies: the selected row copied onto the labelled rows below it, the selected column onto the labelled
// columns at its right, by the options of Smart Copy Down and Smart Copy Right.
void SmartCopyDown(core::SharedState& shared, std::int32_t);
void SmartCopyToRight(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart

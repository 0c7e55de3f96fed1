#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// Command bodies: the cells that the active cell's formula refers to, and those whose formulas refer to the active
// cell, each in a dialog that leads to them. Nothing happens where no cells are selected.
void SmartPrecedents(core::SharedState& shared, std::int32_t);
void SmartDependents(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart

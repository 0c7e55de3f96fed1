#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// How far the references of a block's formula have to be moved so that it advances by `adjustment` lines for every
// `group_size` lines of the block: the shift of the formula in R1C1 for the block's line `line`, from 1 on. Halves
// round to the even neighbour.
[[nodiscard]] std::int32_t spacing_shift(std::int32_t line, std::int32_t group_size, std::int32_t adjustment);

// Command bodies: the formula in the first cell of each selected column, or row, down or along the selection, whose
// relative references advance at another pace than the block. The first group of cells stays as it is.
void SmartFormulaRowSpacing(core::SharedState& shared, std::int32_t);
void SmartFormulaColumnSpacing(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart

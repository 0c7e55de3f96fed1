#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::smart {

// Command bodies: a series of dates, or of numbers, from the first selected cell across or down, by the options of the
// dialog. Cells that the spacing leaves between two steps stay as they are.
void SmartFillDates(core::SharedState& shared, std::int32_t);
void SmartFillNumbers(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::smart

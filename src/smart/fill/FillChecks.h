#pragma once

#include "core/bridges/SharedState.h"
#include "settings/SmartOptions.h"

namespace kestrune::smart {

// What is wrong with options of Smart Fill.
enum class FillProblem : std::uint8_t { None, Start, End, Interval, Spacing, Declined };

// Whether a series can be filled: a message tells what is wrong, and a large one is asked about first.
[[nodiscard]] FillProblem check_fill(const core::SharedState& shared, const settings::SmartFillDatesOptions& options);
[[nodiscard]] FillProblem check_fill(const core::SharedState& shared, const settings::SmartFillNumbersOptions& options);

}  // namespace kestrune::smart

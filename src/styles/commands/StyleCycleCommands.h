#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"
#include "settings/StyleCycle.h"

namespace kestrune::styles {

// Steps the selection through a style SmartCycle, or applies the cycle's entry at a position greater
// than 0. Afterwards the selection has no conditional formats but those of the binary cycle. Nothing
// happens when the selection is no range.
void apply_style_cycle(core::SharedState& shared, settings::StyleCycle cycle, std::int32_t position);

// The same as the body of a numbered command.
template <settings::StyleCycle cycle>
void style_cycle_command(core::SharedState& shared, std::int32_t position) {
    apply_style_cycle(shared, cycle, position);
}

// Applies the entry at a position of one of the user's cycles (1 to 15) to a range; position 0 steps
// the cycle. Any other cycle number, and anything that is no range, does nothing.
void ApplySmartCycleStyle(core::SharedState& shared, std::int32_t cycle_number, std::int32_t position,
                          const automation::ObjectRef& range);

}  // namespace kestrune::styles

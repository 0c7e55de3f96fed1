#pragma once

#include <cstdint>
#include <string>

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

// A cycle's name as the user settings have it; empty when they lack it.
std::string name_of_cycle(const core::SharedState& shared, settings::StyleCycle cycle);

template <settings::StyleCycle cycle>
std::string style_cycle_name(const core::SharedState& shared) {
    return name_of_cycle(shared, cycle);
}

// Applies the entry at a position of one of the user's cycles (1 to 15) to a range; position 0 steps
// the cycle. Any other cycle number, and anything that is no range, does nothing.
void ApplySmartCycleStyle(core::SharedState& shared, std::int32_t cycle_number, std::int32_t position,
                          const automation::ObjectRef& range);

}  // namespace kestrune::styles

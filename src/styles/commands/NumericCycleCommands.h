#pragma once

#include <cstdint>
#include <string>

#include "core/bridges/SharedState.h"
#include "settings/NumericCycle.h"

namespace kestrune::styles {

// Steps the selection through a numeric SmartCycle, or gives it the cycle's value at a position greater than 0.
// Nothing happens when the selection is no range.
void apply_numeric_cycle(core::SharedState& shared, settings::NumericCycle cycle, std::int32_t position);

// The same as the body of a numbered command.
template <settings::NumericCycle cycle>
void numeric_cycle_command(core::SharedState& shared, std::int32_t position) {
    apply_numeric_cycle(shared, cycle, position);
}

// A cycle's name as the user settings have it; empty when they lack it.
std::string name_of_cycle(const core::SharedState& shared, settings::NumericCycle cycle);

template <settings::NumericCycle cycle>
std::string numeric_cycle_name(const core::SharedState& shared) {
    return name_of_cycle(shared, cycle);
}

}  // namespace kestrune::styles

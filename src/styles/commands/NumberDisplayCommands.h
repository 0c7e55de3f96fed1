#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::styles {

// Command bodies: how numbers show, never what they are. Each number format of the selection is adjusted for itself;
// texts, dates and fractions stay. A message tells when nothing in the selection could be adjusted. Nothing happens
// when the selection is no range.

void add_decimal_place(core::SharedState& shared, std::int32_t);
void remove_decimal_place(core::SharedState& shared, std::int32_t);

// A thousand times smaller ("#,##0,"), or larger again.
void scale_down(core::SharedState& shared, std::int32_t);
void scale_up(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::styles

#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::styles {

// Command bodies.

// After a question, gives every cell of the active worksheet the sheet style of the user settings and takes its
// conditional formats away. Nothing happens when a chart is active.
void apply_sheet_style(core::SharedState& shared, std::int32_t);

// Makes the active cell's look a new style of the library, under the first free name "Paintbrush 1", 2, 3 ..., and the
// style that the Paintbrush paints. The user's preferences keep it.
void capture_paintbrush(core::SharedState& shared, std::int32_t);

// Paints it onto the selection; nothing happens when that is no range.
void apply_paintbrush(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::styles

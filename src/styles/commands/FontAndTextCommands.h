#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::styles {

// Command bodies. Nothing happens when the selection is no range.

// One step along Excel's list of font sizes, each cell from its own size. A cell whose characters differ in size stays.
void increase_font_size(core::SharedState& shared, std::int32_t);
void decrease_font_size(core::SharedState& shared, std::int32_t);

// Wraps the selection's text; unwraps it when all of it is wrapped.
void toggle_wrap_text(core::SharedState& shared, std::int32_t);

// Takes every format away, conditional ones and merges among them, and leaves what the user's style "BR General" says.
void clear_formats(core::SharedState& shared, std::int32_t);

}  // namespace kestrune::styles

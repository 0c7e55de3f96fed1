#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::core {

// The commands that act on Excel's windows. Those without use for a parameter take none.

// The active window's zoom, changed by the zoom interval of the settings (per cent). A step that would leave
// 10 to 400 per cent does nothing.
void zoom_in(SharedState& shared, std::int32_t);
void zoom_out(SharedState& shared, std::int32_t);

// Maximises a normal application window; makes any other a small one with a maximised workbook in it.
void toggle_window_size(SharedState& shared, std::int32_t);
void maximise_window(SharedState& shared, std::int32_t);

// Shows or hides the active window's gridlines.
void toggle_gridlines(SharedState& shared, std::int32_t);

// Places the application window: 1 maximised, 2 top half, 3 bottom half, 4 left half, 5 right half, 6 centred.
void place_window(SharedState& shared, std::int32_t placement);

}  // namespace kestrune::core

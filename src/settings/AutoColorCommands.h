#pragma once

#include <cstdint>

#include "core/bridges/SharedState.h"

namespace kestrune::settings {

// Hands the AutoColor settings of the user over to the library that does the colouring.
void hand_over_auto_color(core::SharedState& shared);

// Whether AutoColor leaves cells alone whose font has this colour (BGR): one of those of the first font-colour
// SmartCycle that bears the name which the AutoColor service designates. False when none does, and for what is no
// colour.
[[nodiscard]] bool is_respected_color(const core::SharedState& shared, const automation::Value& color);

// Switches colouring of cells as they change on or off; the library keeps which.
void toggle_auto_color(core::SharedState& shared);

// Shows the active workbook in black fonts, or in its colours again.
void toggle_black_fonts(core::SharedState& shared);

// Command bodies: colour cells by what they hold. What fails leaves the workbook as it was and shows nothing.
void auto_color_selection(core::SharedState& shared, std::int32_t);
void auto_color_worksheet(core::SharedState& shared, std::int32_t);  // the active one
void auto_color_workbook(core::SharedState& shared, std::int32_t);   // every worksheet of the active one

}  // namespace kestrune::settings

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

#include "core/bridges/SharedState.h"
#include "settings/NumericCycle.h"
#include "settings/StyleCycle.h"

namespace kestrune::menus {

// The popup of a SmartCycle: the member of iGlobal that fills it when it opens, and the command whose steps it lists.
struct CyclePopup {
    std::string_view member;
    std::string_view command;  // its number
    std::variant<settings::StyleCycle, settings::NumericCycle> cycle;
    std::string_view label = {};  // of numeric steps: "Color" for "Color 3"
};

std::span<const CyclePopup> cycle_popups();

// The popup of a command's cycle. Bad index for a command that is none.
const CyclePopup& cycle_popup(std::string_view command);

// What the popup is called: the name that the user gave the cycle, without "SmartCycle" at its end.
std::string name_of(const core::SharedState& shared, const CyclePopup& popup);
// Whether the cycle has a step.
bool has_steps(const core::SharedState& shared, const CyclePopup& popup);

// Fills the popup of a cycle on the menu and on the toolbar with the steps that the user settings have now: names of
// styles, or a label and a number, colors with a swatch. A popup without steps is greyed. A popup that is nowhere is
// left out.
void fill_cycle_popup(const core::SharedState& shared, std::string_view command);

}  // namespace kestrune::menus

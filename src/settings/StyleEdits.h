#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "settings/cUserSettings.h"

namespace kestrune::settings {

// Changes of a record's style library that everything else in the record follows: cycles, the Paintbrush, the sheet
// style and the styles that Smart Fill knows by name.

// Gives a style of the library another name, which no other style has.
void rename_style(cUserSettings& settings, styles::cStyle& style, const std::string& name);

// What uses a style and cannot be without one, as people call it: "the sheet style". Empty for nothing.
std::string use_of(const cUserSettings& settings, const styles::cStyle& style);
// The names of the cycles that contain it.
std::vector<std::string> cycles_with(const cUserSettings& settings, const styles::cStyle& style);
// Takes it out of the library and out of every cycle.
void remove_style(cUserSettings& settings, styles::cStyle& style);

// A name that no style has: this one, or one with a number behind it.
std::string unused_style_name(const cUserSettings& settings, std::string_view name);

}  // namespace kestrune::settings

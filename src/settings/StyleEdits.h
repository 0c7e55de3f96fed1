#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/bridges/Messages.h"
#include "settings/cUserSettings.h"

namespace kestrune::settings {

// Changes of a record's style library that everything else in the record follows: cycles, the Paintbrush, the sheet
// style and the styles that Smart Fill knows by name.

// Why a style of the library other than this one (null for none) cannot have a name: a message that the name follows.
std::optional<core::Text> style_name_problem(const cUserSettings& settings, std::string_view name,
                                             const styles::cStyle* style);

// Gives a style of the library other fields, its name among them, which has to be fit. Its access level stays.
void change_style(cUserSettings& settings, styles::cStyle& style, const styles::StyleFields& fields);

// Fields with everything that a style captures from the active cell in place; nothing without an active cell.
std::optional<styles::StyleFields> captured_fields(const core::SharedState& shared, styles::StyleFields fields);

// What cells of the active workbook will show for the colors that fields have and had not before, or were never told
// of, so that the style is recognised there before it is applied. Nothing happens without a workbook.
void recognise_colors(const core::SharedState& shared, const styles::StyleFields& before, styles::StyleFields& fields);

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

#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/bridges/SharedState.h"
#include "forms/Form.h"

namespace kestrune::smart {

inline constexpr auto fill_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblSpacing", .caption = "Cells for each step:", .accelerator = 'C'},
    {.name = "txtSpacing", .kind = forms::Kind::Text, .place = forms::Place::Column, .width = 48},
    {.name = "spnSpacing", .kind = forms::Kind::Spin, .place = forms::Place::Attached, .min = 1, .max = 1'048'575},
    {.name = "lblStyle", .caption = "Style:", .accelerator = 't'},
    {.name = "cmbStyle", .kind = forms::Kind::Combo, .place = forms::Place::Column, .width = 200},
    {.name = "fraDirection", .kind = forms::Kind::Frame, .caption = "Fill:"},
    {.name = "optAcross", .kind = forms::Kind::Option, .caption = "Across", .accelerator = 'A', .in = "fraDirection"},
    {.name = "optDown",
     .kind = forms::Kind::Option,
     .caption = "Down",
     .accelerator = 'D',
     .in = "fraDirection",
     .place = forms::Place::Beside},
});

// What the two dialogs of Smart Fill have in common: txtSpacing with spnSpacing, optAcross and optDown, cmbStyle.
void connect_fill_controls(const core::SharedState& shared, forms::Form& form);
void show_fill_options(const core::SharedState& shared, forms::Form& form, std::int32_t spacing, bool across,
                       const std::string& style);
// The spacing in its box, nothing (and a message) when it is no number; numbers out of range are the caller's.
[[nodiscard]] std::optional<std::int32_t> spacing_in(const core::SharedState& shared, forms::Form& form);

}  // namespace kestrune::smart

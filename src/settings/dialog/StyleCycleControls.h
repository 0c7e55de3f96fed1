#pragma once

#include <array>

#include "forms/Design.h"
#include "settings/dialog/Pages.h"

namespace kestrune::settings {

// What styles are listed by; the first is all of them, the others stand in the order of the categories.
inline constexpr std::array<std::string_view, 7> style_kinds{
    "All styles", "General", "Long numbers", "Medium numbers", "Short numbers", "Dates", "Texts"};

inline constexpr auto style_cycle_controls = std::to_array<forms::ControlDesign>({
    {.name = "fraStyleToggles",
     .kind = forms::Kind::Frame,
     .caption = "SmartCycles",
     .in = page::tabs,
     .page = page::style_cycles},
    {.name = "lstStyleToggles", .kind = forms::Kind::List, .in = "fraStyleToggles", .width = 150, .height = 210},
    {.name = "lblStyleToggleName", .caption = "Name:", .accelerator = 'N', .in = "fraStyleToggles"},
    {.name = "txtStyleToggleName",
     .kind = forms::Kind::Text,
     .in = "fraStyleToggles",
     .place = forms::Place::Beside,
     .stretch = forms::Stretch::Across,
     .width = 100},
    {.name = "btnRenameStyleToggle",
     .kind = forms::Kind::Push,
     .caption = "Rename",
     .accelerator = 'e',
     .in = "fraStyleToggles"},
    {.name = "fraToggleStyles",
     .kind = forms::Kind::Frame,
     .caption = "Styles of the SmartCycle, in its order",
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::style_cycles},
    {.name = "lstToggleStyles", .kind = forms::Kind::List, .in = "fraToggleStyles", .width = 170, .height = 240},
    {.name = "btnStyleUp", .kind = forms::Kind::Push, .caption = "Up", .accelerator = 'U', .in = "fraToggleStyles"},
    {.name = "btnStyleDown",
     .kind = forms::Kind::Push,
     .caption = "Down",
     .accelerator = 'D',
     .in = "fraToggleStyles",
     .place = forms::Place::Beside},
    {.name = "btnStyleRemove",
     .kind = forms::Kind::Push,
     .caption = "Remove",
     .accelerator = 'R',
     .in = "fraToggleStyles",
     .place = forms::Place::Beside},
    {.name = "fraAllStyles",
     .kind = forms::Kind::Frame,
     .caption = "Styles to choose from",
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::style_cycles},
    {.name = "cmbCycleStyleKind",
     .kind = forms::Kind::Combo,
     .in = "fraAllStyles",
     .stretch = forms::Stretch::Across,
     .tip = "Which styles are listed",
     .width = 110,
     .items = style_kinds},
    {.name = "lstAllStyles", .kind = forms::Kind::List, .in = "fraAllStyles", .width = 170, .height = 217},
    {.name = "btnAddStyle",
     .kind = forms::Kind::Push,
     .caption = "Add",
     .accelerator = 'A',
     .in = "fraAllStyles",
     .tip = "Puts the style behind the one chosen in the SmartCycle"},
});

}  // namespace kestrune::settings

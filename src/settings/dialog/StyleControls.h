#pragma once

#include <array>

#include "forms/Design.h"
#include "settings/dialog/Pages.h"
#include "settings/dialog/StyleCycleControls.h"

namespace kestrune::settings {

inline constexpr std::array<forms::ListColumn, 3> style_columns{{{"Style", 190}, {"Number format", 170}, {"Kind", 90}}};

inline constexpr auto style_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblStyleKind", .caption = "Show:", .accelerator = 'w', .in = page::tabs, .page = page::styles},
    {.name = "cmbStyleKind",
     .kind = forms::Kind::Combo,
     .in = page::tabs,
     .place = forms::Place::Beside,
     .width = 130,
     .page = page::styles,
     .items = style_kinds},
    {.name = "lstStyles",
     .kind = forms::Kind::List,
     .in = page::tabs,
     .stretch = forms::Stretch::Across,
     .height = 200,
     .page = page::styles,
     .columns = style_columns},
    {.name = "lblStyleName", .caption = "Name:", .accelerator = 'a', .in = page::tabs, .page = page::styles},
    {.name = "txtStyleName",
     .kind = forms::Kind::Text,
     .in = page::tabs,
     .place = forms::Place::Beside,
     .stretch = forms::Stretch::Across,
     .width = 160,
     .page = page::styles},
    {.name = "btnRenameStyle",
     .kind = forms::Kind::Push,
     .caption = "Rename",
     .accelerator = 'e',
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::styles},
    {.name = "btnDuplicateStyle",
     .kind = forms::Kind::Push,
     .caption = "Duplicate",
     .accelerator = 'D',
     .in = page::tabs,
     .page = page::styles},
    {.name = "btnRemoveStyle",
     .kind = forms::Kind::Push,
     .caption = "Remove",
     .accelerator = 'R',
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::styles},
    {.name = "btnStyleListUp",
     .kind = forms::Kind::Push,
     .caption = "Up",
     .accelerator = 'U',
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::styles},
    {.name = "btnStyleListDown",
     .kind = forms::Kind::Push,
     .caption = "Down",
     .accelerator = 'o',
     .in = page::tabs,
     .place = forms::Place::Beside,
     .page = page::styles},
});

}  // namespace kestrune::settings

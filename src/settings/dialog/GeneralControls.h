#pragma once

#include <array>

#include "forms/Design.h"
#include "settings/dialog/Pages.h"

namespace kestrune::settings {

inline constexpr std::int32_t longest_zoom_interval = 390;  // per cent: from the smallest zoom to the largest

// Error texts of financial models.
inline constexpr std::array<std::string_view, 4> error_texts{"\"NA\"", "\"N/A\"", "\"NM\"", "\"Error\""};

inline constexpr auto general_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblZoomInterval", .caption = "Zoom interval (%):", .accelerator = 'Z', .in = page::tabs},
    {.name = "txtZoomInterval",
     .kind = forms::Kind::Text,
     .in = page::tabs,
     .place = forms::Place::Column,
     .tip = "How far one press of the zoom commands goes",
     .width = 48},
    {.name = "spnZoomInterval",
     .kind = forms::Kind::Spin,
     .in = page::tabs,
     .place = forms::Place::Attached,
     .min = 1,
     .max = longest_zoom_interval},
    {.name = "lblErrorMsg", .caption = "Error text:", .accelerator = 'E', .in = page::tabs},
    {.name = "cmbErrorMsg",
     .kind = forms::Kind::Combo,
     .in = page::tabs,
     .place = forms::Place::Column,
     .tip = "What commands write where a formula results in an error",
     .width = 96,
     .items = error_texts,
     .editable = true},
    {.name = "lblPaintbrushStyle", .caption = "Paintbrush style:", .accelerator = 'P', .in = page::tabs},
    {.name = "cmbPaintbrushStyle",
     .kind = forms::Kind::Combo,
     .in = page::tabs,
     .place = forms::Place::Column,
     .width = 210},
    {.name = "lblSheetStyle", .caption = "Sheet style:", .accelerator = 'h', .in = page::tabs},
    {.name = "cmbSheetStyle",
     .kind = forms::Kind::Combo,
     .in = page::tabs,
     .place = forms::Place::Column,
     .width = 210},
    {.name = "ckbTrainingModule",
     .kind = forms::Kind::Check,
     .caption = "Show the tutorial menu",
     .accelerator = 'T',
     .in = page::tabs},
    {.name = "fraPreferences", .kind = forms::Kind::Frame, .caption = "All settings", .in = page::tabs},
    {.name = "btnImport",
     .kind = forms::Kind::Push,
     .caption = "Import...",
     .accelerator = 'I',
     .in = "fraPreferences",
     .tip = "Replaces all settings in this dialog by those of a file"},
    {.name = "btnExport",
     .kind = forms::Kind::Push,
     .caption = "Export...",
     .accelerator = 'x',
     .in = "fraPreferences",
     .place = forms::Place::Beside,
     .tip = "Saves the settings in this dialog to a file of their own"},
    {.name = "btnRestore",
     .kind = forms::Kind::Push,
     .caption = "Restore Defaults...",
     .accelerator = 'D',
     .in = "fraPreferences",
     .place = forms::Place::Beside,
     .tip = "Replaces all settings in this dialog by those of a fresh installation"},
});

}  // namespace kestrune::settings

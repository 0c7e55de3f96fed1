#pragma once

#include <array>

#include "forms/Design.h"
#include "settings/style_editor/StyleChoices.h"
#include "settings/style_editor/StyleEditorPages.h"

namespace kestrune::settings {

namespace editor_row {

using forms::ControlDesign;
using forms::Kind;
using forms::Place;

constexpr double box_width = 150;

// The check box of a property, and what stands behind it: one of several, any text, a picture, a switch.
constexpr ControlDesign property(std::string_view name, std::string_view caption, char key, std::int32_t page) {
    return {.name = name,
            .kind = Kind::Check,
            .caption = caption,
            .accelerator = key,
            .in = editor_page::tabs,
            .tip = "Ticked, the style sets this; else it leaves it to the cell",
            .page = page};
}
constexpr ControlDesign one_of(std::string_view name, std::span<const std::string_view> items, std::int32_t page,
                               bool editable = false) {
    return {.name = name,
            .kind = Kind::Combo,
            .in = editor_page::tabs,
            .place = Place::Column,
            .width = box_width,
            .page = page,
            .items = items,
            .editable = editable};
}
constexpr ControlDesign color(std::string_view name, std::string_view in, std::int32_t page) {
    return {.name = name,
            .kind = Kind::Combo,
            .in = in,
            .place = Place::Column,
            .width = box_width,
            .page = page,
            .editable = true,
            .pictured = true};
}
constexpr ControlDesign patch(std::string_view name, std::string_view in, std::int32_t page) {
    return {
        .name = name, .kind = Kind::Image, .in = in, .place = Place::Beside, .width = 12, .height = 12, .page = page};
}
constexpr ControlDesign on_or_off(std::string_view name, std::string_view caption, char key, std::int32_t page) {
    return {.name = name,
            .kind = Kind::Check,
            .caption = caption,
            .accelerator = key,
            .in = editor_page::tabs,
            .place = Place::Column,
            .page = page};
}
constexpr ControlDesign note(std::string_view name, std::string_view caption, std::int32_t page) {
    return {.name = name, .caption = caption, .in = editor_page::tabs, .page = page};
}
constexpr ControlDesign kind(std::string_view name, std::string_view caption, char key, Place place) {
    return {
        .name = name, .kind = Kind::Option, .caption = caption, .accelerator = key, .in = "fraKind", .place = place};
}
constexpr ControlDesign side(std::string_view name, std::string_view caption, char key, Place place) {
    return {
        .name = name, .kind = Kind::Check, .caption = caption, .accelerator = key, .in = "fraSides", .place = place};
}
constexpr ControlDesign label(std::string_view name, std::string_view caption, char key, std::string_view in,
                              std::int32_t page) {
    return {.name = name, .caption = caption, .accelerator = key, .in = in, .page = page};
}

}  // namespace editor_row

inline constexpr std::array<forms::ListColumn, 2> number_format_columns{{{"Format", 215}, {"Shows", 95}}};

inline constexpr auto style_page_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblName", .caption = "Name:", .accelerator = 'N', .in = editor_page::tabs, .page = editor_page::style},
    {.name = "txtName",
     .kind = forms::Kind::Text,
     .in = editor_page::tabs,
     .place = forms::Place::Column,
     .stretch = forms::Stretch::Across,
     .width = 180,
     .page = editor_page::style},
    {.name = "fraKind",
     .kind = forms::Kind::Frame,
     .caption = "Kind of data that the style is for",
     .in = editor_page::tabs,
     .page = editor_page::style},
    editor_row::kind("optDataNone", "General", 'G', forms::Place::Below),
    editor_row::kind("optDataLong", "Long numbers", 'o', forms::Place::Beside),
    editor_row::kind("optDataMedium", "Medium numbers", 'M', forms::Place::Beside),
    editor_row::kind("optDataShort", "Short numbers", 'h', forms::Place::Below),
    editor_row::kind("optDate", "Dates", 'D', forms::Place::Beside),
    editor_row::kind("optText", "Texts", 'T', forms::Place::Beside),
    {.name = "lblComments",
     .caption = "Comments:",
     .accelerator = 'C',
     .in = editor_page::tabs,
     .page = editor_page::style},
    {.name = "txtComments",
     .kind = forms::Kind::Text,
     .in = editor_page::tabs,
     .place = forms::Place::Column,
     .stretch = forms::Stretch::Across,
     .width = 180,
     .page = editor_page::style,
     .multi_line = true},
    {.name = "lblProperties",
     .caption = "The style sets the properties that are ticked on the other pages, and leaves the others to the cell.",
     .in = editor_page::tabs,
     .width = 320,
     .page = editor_page::style},
    {.name = "btnSetAll",
     .kind = forms::Kind::Push,
     .caption = "Tick All",
     .accelerator = 'A',
     .in = editor_page::tabs,
     .page = editor_page::style},
    {.name = "btnSetNone",
     .kind = forms::Kind::Push,
     .caption = "Untick All",
     .accelerator = 'U',
     .in = editor_page::tabs,
     .place = forms::Place::Beside,
     .page = editor_page::style},
});

inline constexpr auto number_page_controls = std::to_array<forms::ControlDesign>({
    editor_row::property("ckbNumberFormat", "Number format", 'N', editor_page::number),
    {.name = "lstNumberFormats",
     .kind = forms::Kind::List,
     .caption = "Formats",
     .in = editor_page::tabs,
     .height = 120,
     .page = editor_page::number,
     .columns = number_format_columns},
    editor_row::label("lblNumberFormat", "Format code:", 'F', editor_page::tabs, editor_page::number),
    {.name = "txtNumberFormat",
     .kind = forms::Kind::Text,
     .in = editor_page::tabs,
     .place = forms::Place::Beside,
     .stretch = forms::Stretch::Across,
     .width = 180,
     .page = editor_page::number},
});

inline constexpr auto alignment_page_controls = std::to_array<forms::ControlDesign>({
    editor_row::property("ckbHorizontalAlignment", "Horizontal", 'H', editor_page::alignment),
    editor_row::one_of("cmbHorizontalAlignment", horizontal_alignment_names, editor_page::alignment),
    editor_row::property("ckbVerticalAlignment", "Vertical", 'V', editor_page::alignment),
    editor_row::one_of("cmbVerticalAlignment", vertical_alignment_names, editor_page::alignment),
    editor_row::property("ckbIndents", "Indent", 'I', editor_page::alignment),
    {.name = "txtIndents",
     .kind = forms::Kind::Text,
     .in = editor_page::tabs,
     .place = forms::Place::Column,
     .width = 36,
     .page = editor_page::alignment},
    {.name = "spnIndents",
     .kind = forms::Kind::Spin,
     .in = editor_page::tabs,
     .place = forms::Place::Attached,
     .page = editor_page::alignment,
     .max = 15},
    editor_row::property("ckbOrientation", "Orientation", 'O', editor_page::alignment),
    editor_row::one_of("cmbOrientation", orientation_names, editor_page::alignment, true),
    {.name = "lblDegrees",
     .caption = "or degrees, -90 to 90",
     .in = editor_page::tabs,
     .place = forms::Place::Beside,
     .page = editor_page::alignment},
    editor_row::property("ckbWrapText", "Wrap text", 'W', editor_page::alignment),
    editor_row::on_or_off("ckbWrapTextOn", "Wrapped", 'r', editor_page::alignment),
    editor_row::property("ckbShrinkToFit", "Shrink to fit", 'S', editor_page::alignment),
    editor_row::on_or_off("ckbShrinkToFitOn", "Shrunk", 'k', editor_page::alignment),
});

inline constexpr auto font_page_controls = std::to_array<forms::ControlDesign>({
    editor_row::property("ckbFontName", "Font", 'F', editor_page::font),
    editor_row::one_of("cmbFontName", {}, editor_page::font, true),
    editor_row::property("ckbFontStyle", "Font style", 'y', editor_page::font),
    editor_row::one_of("cmbFontStyle", font_style_names, editor_page::font),
    editor_row::property("ckbFontSize", "Size", 'S', editor_page::font),
    editor_row::one_of("cmbFontSize", font_sizes, editor_page::font, true),
    editor_row::property("ckbUnderline", "Underline", 'U', editor_page::font),
    editor_row::one_of("cmbUnderline", underline_names, editor_page::font),
    editor_row::property("ckbStrikeThrough", "Strikethrough", 'k', editor_page::font),
    editor_row::on_or_off("ckbStrikeThroughOn", "Struck through", 't', editor_page::font),
    editor_row::property("ckbFontColor", "Color", 'C', editor_page::font),
    editor_row::color("cmbFontColor", editor_page::tabs, editor_page::font),
    editor_row::patch("imgFontColor", editor_page::tabs, editor_page::font),
    editor_row::note("lblFontColor", "A color by its name, or as #RRGGBB.", editor_page::font),
});

inline constexpr auto border_page_controls = std::to_array<forms::ControlDesign>({
    editor_row::property("ckbBorders", "Borders", 'B', editor_page::border),
    {.name = "fraSides",
     .kind = forms::Kind::Frame,
     .caption = "Sides",
     .in = editor_page::tabs,
     .page = editor_page::border},
    editor_row::side("ckbBorderLeft", "Left", 'f', forms::Place::Below),
    editor_row::side("ckbBorderTop", "Top", 'T', forms::Place::Beside),
    editor_row::side("ckbBorderBottom", "Bottom", 'o', forms::Place::Beside),
    editor_row::side("ckbBorderRight", "Right", 'R', forms::Place::Beside),
    {.name = "btnAllSides",
     .kind = forms::Kind::Push,
     .caption = "All",
     .accelerator = 'A',
     .in = "fraSides",
     .place = forms::Place::Beside},
    {.name = "btnNoSide",
     .kind = forms::Kind::Push,
     .caption = "None",
     .accelerator = 'N',
     .in = "fraSides",
     .place = forms::Place::Beside},
    editor_row::label("lblBorderStyle", "Line:", 'i', editor_page::tabs, editor_page::border),
    editor_row::one_of("cmbBorderStyle", line_style_names, editor_page::border),
    editor_row::label("lblBorderWeight", "Weight:", 'W', editor_page::tabs, editor_page::border),
    editor_row::one_of("cmbBorderWeight", line_weight_names, editor_page::border),
    editor_row::label("lblBorderColor", "Color:", 'C', editor_page::tabs, editor_page::border),
    editor_row::color("cmbBorderColor", editor_page::tabs, editor_page::border),
    editor_row::patch("imgBorderColor", editor_page::tabs, editor_page::border),
    {.name = "ckbBordersInternal",
     .kind = forms::Kind::Check,
     .caption = "Around every cell, not only around the whole selection",
     .accelerator = 'v',
     .in = editor_page::tabs,
     .page = editor_page::border},
});

inline constexpr auto fill_page_controls = std::to_array<forms::ControlDesign>({
    editor_row::property("ckbCellColor", "Fill color", 'F', editor_page::fill),
    editor_row::color("cmbCellColor", editor_page::tabs, editor_page::fill),
    editor_row::patch("imgCellColor", editor_page::tabs, editor_page::fill),
    editor_row::note("lblCellColor", "A color by its name, or as #RRGGBB. White is no fill.", editor_page::fill),
});

// Below the pages, whichever is seen.
inline constexpr std::array<std::string_view, 5> sample_values{"1234.567", "-1234.567", "0", "2026-03-31",
                                                               "Sample text"};
inline constexpr auto sample_controls = std::to_array<forms::ControlDesign>({
    {.name = "lblSampleValue", .caption = "Sample:", .accelerator = 'l'},
    {.name = "cmbSampleValue",
     .kind = forms::Kind::Combo,
     .place = forms::Place::Beside,
     .tip = "The value that the style is tried on: a number, a date such as 2026-03-31 or a text",
     .width = 120,
     .items = sample_values,
     .editable = true},
    {.name = "btnCapture",
     .kind = forms::Kind::Push,
     .caption = "Capture from Active Cell",
     .accelerator = 'p',
     .place = forms::Place::Beside,
     .tip = "Takes everything but the ticks from the active cell"},
    {.name = "smpStyle",
     .kind = forms::Kind::Sample,
     .caption = "Preview",
     .stretch = forms::Stretch::Across,
     .height = 60},
});

}  // namespace kestrune::settings

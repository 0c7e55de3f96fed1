#include "settings/style_editor/EditedFields.h"

#include <array>
#include <charconv>
#include <optional>

#include "automation/Text.h"
#include "number_format/NumberFormat.h"
#include "settings/style_editor/StyleChoices.h"
#include "styles/ColorText.h"

namespace kestrune::settings {
namespace {

using core::Text;
using styles::StyleFields;
using S = StyleFields;

constexpr std::int32_t largest_indent = 15;
constexpr std::int32_t largest_font = 409;  // points
constexpr std::size_t longest_font_name = 31;
constexpr std::int32_t quarter_turn = 90;  // degrees

std::optional<std::int32_t> whole_number(std::string_view text) {
    text = automation::trimmed(text);
    std::int32_t number = 0;
    const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (failure != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return number;
}

template <std::size_t count>
std::optional<std::int32_t> value_of(const std::array<Choice, count>& choices, std::string_view name) {
    for (const Choice& choice : choices) {
        if (automation::same_text(choice.name, automation::trimmed(name))) return choice.value;
    }
    return std::nullopt;
}

template <std::size_t count>
std::string name_of(const std::array<Choice, count>& choices, std::int32_t value) {
    for (const Choice& choice : choices) {
        if (choice.value == value) return std::string(choice.name);
    }
    return {};
}

using Row = EditedField;

// One of several; a value that nobody knows shows as none of them, and stays.
template <auto member, const auto& choices>
constexpr Row one_of(std::string_view control, bool S::*transparent) {
    return {control, transparent, [](const S& style) { return name_of(choices, style.*member); },
            [](S& style, const std::string& text) {
                style.*member = value_of(choices, text).value_or(style.*member);
                return true;
            }};
}

template <auto member>
constexpr Row on_or_off(std::string_view control, bool S::*transparent) {
    return {control, transparent, [](const S& style) { return std::string(style.*member ? "True" : "False"); },
            [](S& style, const std::string& text) {
                style.*member = text == "True";
                return true;
            }};
}

template <auto member, std::int32_t least, std::int32_t most>
constexpr Row number(std::string_view control, bool S::*transparent, Text problem) {
    return {control, transparent, [](const S& style) { return std::to_string(style.*member); },
            [](S& style, const std::string& text) {
                const auto typed = whole_number(text);
                if (!typed || *typed < least || *typed > most) return false;
                style.*member = *typed;
                return true;
            },
            problem};
}

template <auto member>
constexpr Row color(std::string_view control, bool S::*transparent) {
    return {control, transparent, [](const S& style) { return styles::color_text(style.*member); },
            [](S& style, const std::string& text) {
                const auto meant = styles::color_meant(text);
                style.*member = meant.value_or(style.*member);
                return meant.has_value();
            },
            Text::NoColor};
}

// Horizontal, Upward ... or degrees, as Excel reports them: upright is Upward, whoever turned it.
bool take_orientation(S& style, const std::string& text) {
    std::optional<std::int32_t> meant = value_of(orientations, text);
    if (!meant) {
        meant = whole_number(text);
        if (!meant || *meant < -quarter_turn || *meant > quarter_turn) return false;
        if (*meant == 0) meant = excel::xlHorizontal;
        if (*meant == quarter_turn) meant = excel::xlUpward;
        if (*meant == -quarter_turn) meant = excel::xlDownward;
    }
    style.Orientation = *meant;
    return true;
}

bool take_fill(S& style, const std::string& text) {
    if (automation::same_text(automation::trimmed(text), "No fill")) {
        style.CellColor = styles::no_fill;
        return true;
    }
    const auto meant = styles::color_meant(text);
    style.CellColor = meant.value_or(style.CellColor);
    return meant.has_value();
}

constexpr auto properties = std::to_array<EditedProperty>({
    {"ckbNumberFormat", &S::bTransNumberFormat},
    {"ckbHorizontalAlignment", &S::bTransHorizontalAlignment},
    {"ckbVerticalAlignment", &S::bTransVerticalAlignment},
    {"ckbIndents", &S::bTransIndents},
    {"ckbOrientation", &S::bTransOrientation},
    {"ckbWrapText", &S::bTransWrapTest},
    {"ckbShrinkToFit", &S::bTransShrinkToFit},
    {"ckbFontName", &S::bTransFontSetting},
    {"ckbFontStyle", &S::bTransFontStyle},
    {"ckbFontSize", &S::bTransFontSize},
    {"ckbUnderline", &S::bTransUnderline},
    {"ckbStrikeThrough", &S::bTransStrikeThrough},
    {"ckbFontColor", &S::bTransFontColor},
    {"ckbBorders", &S::bTransBorders},
    {"ckbCellColor", &S::bTransCellColor},
});

constexpr auto fields = std::to_array<EditedField>({
    {"txtNumberFormat", &S::bTransNumberFormat, [](const S& style) { return style.NumberFormat; },
     [](S& style, const std::string& text) {
         if (text.empty() || !number_format::is_valid_format(text)) return false;
         style.NumberFormat = text;
         return true;
     },
     Text::NoNumberFormat},
    one_of<&S::HorizontalAlignment, horizontal_alignments>("cmbHorizontalAlignment", &S::bTransHorizontalAlignment),
    one_of<&S::VerticalAlignment, vertical_alignments>("cmbVerticalAlignment", &S::bTransVerticalAlignment),
    number<&S::Indents, 0, largest_indent>("txtIndents", &S::bTransIndents, Text::NoIndent),
    {"cmbOrientation", &S::bTransOrientation,
     [](const S& style) {
         const std::string name = name_of(orientations, style.Orientation);
         return name.empty() ? std::to_string(style.Orientation) : name;
     },
     &take_orientation, Text::NoOrientation},
    on_or_off<&S::WrapText>("ckbWrapTextOn", &S::bTransWrapTest),
    on_or_off<&S::ShrinkToFit>("ckbShrinkToFitOn", &S::bTransShrinkToFit),
    {"cmbFontName", &S::bTransFontSetting, [](const S& style) { return style.FontName; },
     [](S& style, const std::string& text) {
         const std::string name(automation::trimmed(text));
         if (name.empty() || name.size() > longest_font_name) return false;
         style.FontName = name;
         return true;
     },
     Text::NoFontName},
    {"cmbFontStyle", &S::bTransFontStyle,
     [](const S& style) { return name_of(font_styles, (style.Bold ? 1 : 0) + (style.Italics ? 2 : 0)); },
     [](S& style, const std::string& text) {
         const std::int32_t bits = value_of(font_styles, text).value_or(0);
         style.Bold = (bits & 1) != 0;
         style.Italics = (bits & 2) != 0;
         return true;
     }},
    number<&S::Size, 1, largest_font>("cmbFontSize", &S::bTransFontSize, Text::NoFontSize),
    one_of<&S::Underline, underlines>("cmbUnderline", &S::bTransUnderline),
    on_or_off<&S::FontStrikeThrough>("ckbStrikeThroughOn", &S::bTransStrikeThrough),
    color<&S::FontColor>("cmbFontColor", &S::bTransFontColor),
    on_or_off<&S::BorderLeft>("ckbBorderLeft", &S::bTransBorders),
    on_or_off<&S::BorderTop>("ckbBorderTop", &S::bTransBorders),
    on_or_off<&S::BorderBottom>("ckbBorderBottom", &S::bTransBorders),
    on_or_off<&S::BorderRight>("ckbBorderRight", &S::bTransBorders),
    one_of<&S::BorderStyle, line_styles>("cmbBorderStyle", &S::bTransBorders),
    one_of<&S::BorderWeight, line_weights>("cmbBorderWeight", &S::bTransBorders),
    color<&S::BorderColor>("cmbBorderColor", &S::bTransBorders),
    on_or_off<&S::BordersInternal>("ckbBordersInternal", &S::bTransBorders),
    {"cmbCellColor", &S::bTransCellColor,
     [](const S& style) {
         return style.CellColor == styles::no_fill ? std::string("No fill") : styles::color_text(style.CellColor);
     },
     &take_fill, Text::NoColor},
    {"txtComments", nullptr, [](const S& style) { return style.Comments; },
     [](S& style, const std::string& text) {
         style.Comments = text;
         return true;
     }},
});

}  // namespace

std::span<const EditedProperty> edited_properties() { return properties; }
std::span<const EditedField> edited_fields() { return fields; }

}  // namespace kestrune::settings

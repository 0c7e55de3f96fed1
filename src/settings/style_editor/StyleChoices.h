#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "excel/Constants.h"
#include "styles/StyleFields.h"

namespace kestrune::settings {

// A value of Excel's under the name that people know.
struct Choice {
    std::string_view name;
    std::int32_t value;
};

inline constexpr auto horizontal_alignments = std::to_array<Choice>({
    {"General", excel::xlGeneral},
    {"Left", excel::xlLeft},
    {"Center", excel::xlCenter},
    {"Right", excel::xlRight},
    {"Fill", excel::xlFill},
    {"Justify", excel::xlJustify},
    {"Center across selection", excel::xlCenterAcrossSelection},
    {"Distributed", excel::xlDistributed},
});

inline constexpr auto vertical_alignments = std::to_array<Choice>({
    {"Top", excel::xlTop},
    {"Center", excel::xlCenter},
    {"Bottom", excel::xlBottom},
    {"Justify", excel::xlJustify},
    {"Distributed", excel::xlDistributed},
});

// Others are degrees.
inline constexpr auto orientations = std::to_array<Choice>({
    {"Horizontal", excel::xlHorizontal},
    {"Upward", excel::xlUpward},
    {"Downward", excel::xlDownward},
    {"Stacked", excel::xlVertical},
});

inline constexpr auto underlines = std::to_array<Choice>({
    {"None", excel::xlUnderlineStyleNone},
    {"Single", excel::xlUnderlineStyleSingle},
    {"Double", excel::xlUnderlineStyleDouble},
    {"Single accounting", excel::xlUnderlineStyleSingleAccounting},
    {"Double accounting", excel::xlUnderlineStyleDoubleAccounting},
});

inline constexpr auto line_styles = std::to_array<Choice>({
    {"None", excel::xlNone},
    {"Continuous", excel::xlContinuous},
    {"Dashed", excel::xlDash},
    {"Dotted", excel::xlDot},
    {"Dash dot", excel::xlDashDot},
    {"Dash dot dot", excel::xlDashDotDot},
    {"Slanted dash dot", excel::xlSlantDashDot},
    {"Double", excel::xlDouble},
});

inline constexpr auto line_weights = std::to_array<Choice>({
    {"Hairline", excel::xlHairline},
    {"Thin", excel::xlThin},
    {"Medium", excel::xlMedium},
    {"Thick", excel::xlThick},
});

// Bit 0 is bold, bit 1 italic.
inline constexpr auto font_styles =
    std::to_array<Choice>({{"Regular", 0}, {"Bold", 1}, {"Italic", 2}, {"Bold italic", 3}});

template <std::size_t count>
constexpr auto names_of(const std::array<Choice, count>& choices) {
    std::array<std::string_view, count> names{};
    std::ranges::transform(choices, names.begin(), &Choice::name);
    return names;
}

inline constexpr auto horizontal_alignment_names = names_of(horizontal_alignments);
inline constexpr auto vertical_alignment_names = names_of(vertical_alignments);
inline constexpr auto orientation_names = names_of(orientations);
inline constexpr auto underline_names = names_of(underlines);
inline constexpr auto line_style_names = names_of(line_styles);
inline constexpr auto line_weight_names = names_of(line_weights);
inline constexpr auto font_style_names = names_of(font_styles);

inline constexpr auto font_sizes = std::to_array<std::string_view>(
    {"8", "9", "10", "11", "12", "14", "16", "18", "20", "22", "24", "26", "28", "36", "48", "72"});

// Offered beside those that the library of styles uses.
inline constexpr auto usual_fonts = std::to_array<std::string_view>(
    {"Arial", "Arial Narrow", "Calibri", "Calibri Light", "Cambria", "Century Gothic", "Consolas", "Courier New",
     "Garamond", "Georgia", "Segoe UI", "Symbol", "Tahoma", "Times New Roman", "Trebuchet MS", "Verdana", "Wingdings"});

inline constexpr auto usual_number_formats = std::to_array<std::string_view>({
    "General",
    "0",
    "0.00",
    "#,##0",
    "#,##0.00",
    "#,##0_);(#,##0)",
    "#,##0_);[Red](#,##0)",
    "#,##0.0_);(#,##0.0)",
    "#,##0.00_);(#,##0.00)",
    "#,##0,_);(#,##0,)",
    "$#,##0_);($#,##0)",
    "$#,##0.00_);($#,##0.00)",
    "_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)",
    "0%",
    "0.0%",
    "0.00%",
    "0.0x",
    "0.00E+00",
    "# ?/?",
    "m/d/yyyy",
    "yyyy-mm-dd",
    "d-mmm-yy",
    "mmm-yy",
    "mmmm yyyy",
    "yyyy",
    "h:mm AM/PM",
    "h:mm:ss",
    "@",
});

}  // namespace kestrune::settings

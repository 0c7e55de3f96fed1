#pragma once

#include <array>
#include <string>
#include <string_view>
#include <unordered_map>

#include "host/model/Workbook.h"

namespace kestrune::cli {

// The properties of a cell format, in the object model's names.
inline constexpr auto format_properties = std::to_array<std::string_view>({"NumberFormat",
                                                                           "Font.Name",
                                                                           "Font.Size",
                                                                           "Font.Bold",
                                                                           "Font.Italic",
                                                                           "Font.Underline",
                                                                           "Font.Strikethrough",
                                                                           "Font.Superscript",
                                                                           "Font.Subscript",
                                                                           "Font.Color",
                                                                           "Interior.Pattern",
                                                                           "Interior.Color",
                                                                           "Interior.PatternColor",
                                                                           "HorizontalAlignment",
                                                                           "VerticalAlignment",
                                                                           "Orientation",
                                                                           "IndentLevel",
                                                                           "WrapText",
                                                                           "ShrinkToFit",
                                                                           "Borders(xlEdgeLeft)",
                                                                           "Borders(xlEdgeTop)",
                                                                           "Borders(xlEdgeBottom)",
                                                                           "Borders(xlEdgeRight)",
                                                                           "Borders(xlDiagonalUp)",
                                                                           "Borders(xlDiagonalDown)",
                                                                           "Locked",
                                                                           "FormulaHidden",
                                                                           "Style"});

using FormatFacts = std::array<std::string, format_properties.size()>;

// Pieces of formats as texts: constants under their names, colours as #RRGGBB.
[[nodiscard]] std::string underline_name(host::Underline underline);
[[nodiscard]] std::string pattern_name(host::Pattern pattern);
[[nodiscard]] std::string color_text(const host::Workbook& workbook, const host::Color& color, std::string_view absent);
[[nodiscard]] std::string line_text(const host::Workbook& workbook, const host::Line& line);

// What each format of a workbook says, worked out once a format. Constants stand under their names,
// colours as #RRGGBB.
class FormatFactsOf {
  public:
    explicit FormatFactsOf(const host::Workbook& workbook) : workbook_(workbook) {}
    const FormatFacts& operator[](host::StyleId style);

  private:
    [[nodiscard]] FormatFacts work_out(host::StyleId style) const;

    const host::Workbook& workbook_;
    std::unordered_map<host::StyleId, FormatFacts> known_;
};

}  // namespace kestrune::cli

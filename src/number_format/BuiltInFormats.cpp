#include "number_format/BuiltInFormats.h"

#include <array>
#include <utility>

namespace kestrune::number_format {
namespace {

constexpr std::array<std::pair<int, std::string_view>, 36> built_in{{
    {0, "General"},
    {1, "0"},
    {2, "0.00"},
    {3, "#,##0"},
    {4, "#,##0.00"},
    {5, "$#,##0_);($#,##0)"},
    {6, "$#,##0_);[Red]($#,##0)"},
    {7, "$#,##0.00_);($#,##0.00)"},
    {8, "$#,##0.00_);[Red]($#,##0.00)"},
    {9, "0%"},
    {10, "0.00%"},
    {11, "0.00E+00"},
    {12, "# ?/?"},
    {13, "# ?\?/??"},
    {14, "m/d/yyyy"},
    {15, "d-mmm-yy"},
    {16, "d-mmm"},
    {17, "mmm-yy"},
    {18, "h:mm AM/PM"},
    {19, "h:mm:ss AM/PM"},
    {20, "h:mm"},
    {21, "h:mm:ss"},
    {22, "m/d/yyyy h:mm"},
    {37, "#,##0_);(#,##0)"},
    {38, "#,##0_);[Red](#,##0)"},
    {39, "#,##0.00_);(#,##0.00)"},
    {40, "#,##0.00_);[Red](#,##0.00)"},
    {41, "_(* #,##0_);_(* (#,##0);_(* \"-\"_);_(@_)"},
    {42, "_($* #,##0_);_($* (#,##0);_($* \"-\"_);_(@_)"},
    {43, "_(* #,##0.00_);_(* (#,##0.00);_(* \"-\"??_);_(@_)"},
    {44, "_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"??_);_(@_)"},
    {45, "mm:ss"},
    {46, "[h]:mm:ss"},
    {47, "mm:ss.0"},
    {48, "##0.0E+0"},
    {49, "@"},
}};

}  // namespace

std::string_view built_in_format(int id) {
    for (const auto& [known, code] : built_in)
        if (known == id) return code;
    const bool east_asian = (id >= 27 && id <= 36) || (id >= 50 && id <= 58);
    if (!east_asian) return {};
    return built_in_format(id >= 32 && id <= 35 ? 21 : 14);
}

std::optional<int> built_in_format_id(std::string_view code) {
    for (const auto& [id, known] : built_in)
        if (known == code) return id;
    return std::nullopt;
}

}  // namespace kestrune::number_format

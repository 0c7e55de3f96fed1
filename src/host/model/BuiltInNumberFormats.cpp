#include "host/model/BuiltInNumberFormats.h"

#include <algorithm>
#include <array>

namespace kestrune::host {
namespace {

struct BuiltIn {
    std::uint32_t number;
    std::string code;
};

const auto& built_ins() {
    static const std::array<BuiltIn, 36> table{{
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
        {13, "# ?\?/?\?"},
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
        {43, "_(* #,##0.00_);_(* (#,##0.00);_(* \"-\"?\?_);_(@_)"},
        {44, "_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"?\?_);_(@_)"},
        {45, "mm:ss"},
        {46, "[h]:mm:ss"},
        {47, "mm:ss.0"},
        {48, "##0.0E+0"},
        {49, "@"},
    }};
    return table;
}

bool same_letters(std::string_view a, std::string_view b) {
    return std::ranges::equal(a, b, [](char x, char y) { return (x | 0x20) == (y | 0x20); });
}

}  // namespace

const std::string* built_in_number_format(std::uint32_t number) {
    const auto found = std::ranges::find(built_ins(), number, &BuiltIn::number);
    return found == built_ins().end() ? nullptr : &found->code;
}

std::optional<std::uint32_t> built_in_number_format_of(std::string_view code) {
    if (same_letters(code, "General")) return 0;
    const auto found = std::ranges::find(built_ins(), code, &BuiltIn::code);
    if (found == built_ins().end()) return std::nullopt;
    return found->number;
}

}  // namespace kestrune::host

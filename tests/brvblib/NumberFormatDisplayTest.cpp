#include <gmock/gmock.h>

#include "brvblib/NumberFormatDisplay.h"

namespace kestrune::brvblib {
namespace {

constexpr const char* same = "(same)";

std::string told(const AdjustedFormat& adjusted, std::string_view before) {
    if (adjusted.change == FormatChange::Changed) return adjusted.format;
    EXPECT_EQ(adjusted.format, before);
    constexpr const char* names[] = {"", same, "(none)", "(long)"};
    return names[static_cast<std::size_t>(adjusted.change)];
}

TEST(NumberFormatDisplay, AddsAndTakesDecimalsInEverySection) {
    const struct {
        const char* format;
        const char* more;
        const char* fewer;
        const char* shows = "";  // what General shows
    } rows[] = {
        {"0", "0.0", same},
        {"0.00", "0.000", "0.0"},
        {"#,##0.0", "#,##0.00", "#,##0"},
        {"#,##0_);(#,##0)", "#,##0.0_);(#,##0.0)", same},
        {"0.0%_);(0.0%)", "0.00%_);(0.00%)", "0%_);(0%)"},
        {"[$$-409]#,##0.00_);[Red]([$$-409]#,##0.00)", "[$$-409]#,##0.000_);[Red]([$$-409]#,##0.000)",
         "[$$-409]#,##0.0_);[Red]([$$-409]#,##0.0)"},
        {R"(_(* #,##0.00_);_(* \(#,##0.00\);_(* "-"??_);_(@_))",
         R"(_(* #,##0.000_);_(* \(#,##0.000\);_(* "-"??_);_(@_))",
         R"(_(* #,##0.0_);_(* \(#,##0.0\);_(* "-"??_);_(@_))"},
        {"0.00E+00", "0.000E+00", "0.0E+00"},
        {"##0E+0", "##0.0E+0", same},
        {"#,##0.0,", "#,##0.00,", "#,##0,"},
        {"#,##0,,", "#,##0.0,,", same},
        {"0,.0", "0,.00", "0,"},
        {".00", ".000", ".0"},
        {".0", ".00", "0"},
        {"0.", "0.0", same},
        {"0.0?", "0.0??", "0.0"},
        {"#,##0.0\"x 0.0\"", "#,##0.00\"x 0.0\"", "#,##0\"x 0.0\""},
        {R"(0\.0.0)", R"(0\.0.00)", R"(0\.0)"},
        {"0.0_0*0", "0.00_0*0", "0_0*0"},
        {"[>=1000]0.0,\"k\";0.0", "[>=1000]0.00,\"k\";0.00", "[>=1000]0,\"k\";0"},
        {"0.0;\"n/a; 0.0\";0", "0.00;\"n/a; 0.0\";0.0", "0;\"n/a; 0.0\";0"},
        {"0.0;d/m/yyyy", "0.00;d/m/yyyy", "0;d/m/yyyy"},
        {"General", "0.0", same, "12"},
        {"General", "0.000", "0.0", "12.25"},
        {"general", "0.000", "0.0", "-12,25"},
        {"General", "0.000E+00", "0.0E+00", "1.25E+12"},
        {"General", "0.0", same},
        {"[Red]General;-General", "[Red]0.00;-0.00", "[Red]0;-0", "0.5"},
        {"@", "(none)", "(none)"},
        {"\"Yes\";\"Yes\";\"No\"", "(none)", "(none)"},
        {"m/d/yyyy", "(none)", "(none)"},
        {"[h]:mm:ss.0", "(none)", "(none)"},
        {"mm:ss.00", "(none)", "(none)"},
        {"# ?/?", "(none)", "(none)"},
        {"# ?\?/100", "(none)", "(none)"},
        {"yyyy\"0.0\"", "(none)", "(none)"},
        {";;;", "(none)", "(none)"},
        {"", "(none)", "(none)"},
        {"\"open 0.0", "(none)", "(none)"},
        {"[open 0.0", "(none)", "(none)"},
        {"0.000000000000000000000000000000", same, "0.00000000000000000000000000000"},
    };
    for (const auto& [format, more, fewer, shows] : rows) {
        EXPECT_EQ(told(with_decimals(format, 1, shows), format), more) << format;
        EXPECT_EQ(told(with_decimals(format, -1, shows), format), fewer) << format;
    }
}

TEST(NumberFormatDisplay, ScalesByThousands) {
    const struct {
        const char* format;
        const char* down;
        const char* up;
    } rows[] = {
        {"#,##0", "#,##0,", same},
        {"#,##0,", "#,##0,,", "#,##0"},
        {"#,##0.0,,", "#,##0.0,,,", "#,##0.0,"},
        {"0,.0", "0,.0,", "0.0"},
        {"#,##0,,,,", same, "#,##0,,,"},
        {"#,##0_);(#,##0)", "#,##0,_);(#,##0,)", same},
        {"[$$-409]#,##0.00\" m\"", "[$$-409]#,##0.00,\" m\"", same},
        {"0.", "0.,", same},
        {"General", "#,##0,", same},
        {"0;0%", "0,;0%", same},
        {"0.0%", "(none)", "(none)"},
        {"0.0E+0", "(none)", "(none)"},
        {"d-mmm", "(none)", "(none)"},
        {"# ?/?", "(none)", "(none)"},
        {"@", "(none)", "(none)"},
    };
    for (const auto& [format, down, up] : rows) {
        EXPECT_EQ(told(with_scale(format, 1), format), down) << format;
        EXPECT_EQ(told(with_scale(format, -1), format), up) << format;
    }
}

// Excel takes 255 characters, however many bytes they are.
TEST(NumberFormatDisplay, GoesAsFarAsExcelTakesIt) {
    for (const auto& [filler, bytes] : {std::pair("x", 1), std::pair("€", 3)}) {
        const auto format = [&, filler = filler](int characters) {
            std::string code = "0.0\"";
            for (int i = 5; i < characters; ++i) code += filler;
            return code + "\"";
        };
        EXPECT_EQ(with_decimals(format(254), 1, "").change, FormatChange::Changed) << bytes;
        EXPECT_EQ(with_decimals(format(255), 1, "").change, FormatChange::TooLong) << bytes;
        EXPECT_EQ(with_decimals(format(255), -1, "").change, FormatChange::Changed) << bytes;
        EXPECT_EQ(with_scale(format(255), 1).change, FormatChange::TooLong) << bytes;
    }
}

}  // namespace
}  // namespace kestrune::brvblib

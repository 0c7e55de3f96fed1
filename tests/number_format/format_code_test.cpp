#include <gtest/gtest.h>

#include <random>
#include <string>

#include "number_format/BuiltInFormats.h"
#include "number_format/Calendar.h"
#include "number_format/FormatSpelling.h"
#include "number_format/NumberFormat.h"

namespace kestrune::number_format {
namespace {

TEST(FormatCode, IsTakenOrRefusedAsExcelDoes) {
    for (const char* good :
         {"",       "General",   "general",           "0.00",   "[Red]0", "[Color 56]0", "[h]:mm:ss",   "0;0;0;@",
          "\"]\"0", "[$$-409]0", "[$-409]0",          "A\"x\"", "0.0x",   "mm:ss.000",   "[>=1.5E+3]0", "[DBNum1]0",
          "# ?/?",  "0.0,,",     "[$-x-sysdate]dddd", "*-0",    "\\[0"})
        EXPECT_TRUE(is_valid_format(good)) << good << ": " << NumberFormat(good).error();
    for (const std::string& bad :
         {std::string("bad ["),      std::string("\"0"),       std::string("0\\"),     std::string("0_"),
          std::string("0*"),         std::string("[foo]0"),    std::string("[]0"),     std::string("[Color 57]0"),
          std::string("[Color 0]0"), std::string("0;0;0;@;0"), std::string("0 d"),     std::string("0E"),
          std::string("E+0"),        std::string("0E+"),       std::string("@0"),      std::string("General0"),
          std::string("d@"),         std::string("0;0;[>1]0"), std::string("ss.0000"), std::string("[>x]0"),
          std::string("g"),          std::string("?/0.5E+0"),  std::string(256, '0')}) {
        EXPECT_FALSE(is_valid_format(bad)) << bad;
        EXPECT_EQ(NumberFormat(bad).render(1.5).text, "1.5") << bad;
    }
}

TEST(FormatCode, KindsAreTold) {
    using Kind = FormatKind;
    struct Case {
        const char* code;
        Kind kind;
    };
    for (const auto& [code, kind] : {Case{"General", Kind::general},
                                     {"", Kind::general},
                                     {"#,##0_);(#,##0)", Kind::number},
                                     {"$#,##0", Kind::currency},
                                     {"[$€-407]0", Kind::currency},
                                     {"0 \"€\"", Kind::currency},
                                     {"_($* #,##0_)", Kind::currency},
                                     {"0.0%", Kind::percent},
                                     {"0E+0", Kind::scientific},
                                     {"# ?/?", Kind::fraction},
                                     {"m/d/yyyy", Kind::date},
                                     {"m/d h:mm", Kind::date},
                                     {"[Red]h:mm", Kind::time},
                                     {"[ss]", Kind::time},
                                     {"mmm", Kind::date},
                                     {"@", Kind::text},
                                     {"\"day\"0", Kind::number},
                                     {"[Red]0", Kind::number},
                                     {"bad [", Kind::general}})
        EXPECT_EQ(NumberFormat(code).kind(), kind) << code;
    EXPECT_TRUE(NumberFormat("[mm]:ss").is_date_or_time());
    EXPECT_FALSE(NumberFormat("\"m\"0").is_date_or_time());
}

TEST(FormatCode, BuiltInsHaveIds) {
    for (int id = 0; id <= 49; ++id) {
        const auto code = built_in_format(id);
        if (code.empty()) {
            EXPECT_TRUE(id >= 23 && id <= 26) << id;
            continue;
        }
        EXPECT_TRUE(is_valid_format(code)) << id;
        if (id < 27 || id > 36) {
            EXPECT_EQ(built_in_format_id(code), id);
        }
    }
    EXPECT_EQ(built_in_format(27), "m/d/yyyy");
    EXPECT_EQ(built_in_format_id("0.000"), std::nullopt);
}

TEST(FormatCode, FilesAndObjectModelSpellDifferently) {
    struct Case {
        const char* file;
        const char* object_model;
    };
    for (const auto& [file, object_model] : {Case{"\"$\"#,##0_);\\(\"$\"#,##0\\)", "$#,##0_);($#,##0)"},
                                             {"_(\"$\"* #,##0.00_);_(\"$\"* \\(#,##0.00\\);_(\"$\"* \"-\"?\?_);_(@_)",
                                              "_($* #,##0.00_);_($* (#,##0.00);_($* \"-\"?\?_);_(@_)"},
                                             {"[$-409]mmmm\\ d\\,\\ yyyy;@", "[$-409]mmmm d, yyyy;@"},
                                             {"d\\-mmm\\-yy", "d-mmm-yy"},
                                             {"0\\,0", "0\\,0"},
                                             {"0.00E+00", "0.00E+00"},
                                             {"0\\x\" - \"", "0\\x\" - \""},
                                             {"_-* #,##0_-;\\-* #,##0_-", "_-* #,##0_-;-* #,##0_-"}}) {
        EXPECT_EQ(object_model_spelling(file), object_model);
        EXPECT_EQ(file_spelling(object_model), file);
    }
    EXPECT_EQ(object_model_spelling("bad ["), "bad [");
}

TEST(FormatCode, AnyBytesAreRead) {
    std::mt19937 random(3);  // NOLINT(bugprone-random-generator-seed): the same codes every time
    const std::string_view pieces[] = {"0",    "#",  "?",        ".",        ",",   "/",  "%",     "E+", "E",    "@",
                                       ";",    "\"", "[",        "]",        "_",   "*",  "\\",    "m",  "d",    "yy",
                                       "h",    "s",  "General",  "AM/PM",    "[h]", "16", "[Red]", " ",  "[>5]", "é",
                                       "\xFF", "$",  "[$-F800]", "[$€-407]", "b",   "g",  "-",     "("};
    for (int round = 0; round < 10000; ++round) {
        std::string code;
        for (auto left = random() % 12; left > 0; --left) code += pieces[random() % std::size(pieces)];
        const NumberFormat format(code);
        for (const double value : {0.0, 1.0, -1.5, 44621.64, 1e15, -1e300, 1e-300, 0.999999999999}) {
            const Rendered shown = format.render(value);
            ASSERT_LE(shown.fill_at.value_or(0), shown.text.size()) << code;
            ASSERT_LT(shown.text.size(), 5000U) << code;
        }
        (void)format.render_text("abc");
        // Spelling a code for a file and back keeps what it shows.
        ASSERT_EQ(NumberFormat(file_spelling(code)).render(-1234.5).text, format.render(-1234.5).text) << code;
        ASSERT_EQ(NumberFormat(object_model_spelling(code)).render(-1234.5).text, format.render(-1234.5).text) << code;
    }
}

TEST(Calendar, GoesBothWays) {
    for (std::int64_t serial = 0; serial <= 2'958'465; serial += serial < 800 ? 1 : 97) {
        const auto date = date_from_serial(serial);
        ASSERT_TRUE(date) << serial;
        ASSERT_EQ(serial_from_date(*date), serial);
        if (serial >= 1462) {
            ASSERT_EQ(date_from_serial(serial - 1462, true), date) << serial;
            ASSERT_EQ(serial_from_date(*date, true), serial - 1462);
        }
    }
    EXPECT_EQ(date_from_serial(44621), (CalendarDate{2022, 3, 1, 2}));
    EXPECT_EQ(date_from_serial(59), (CalendarDate{1900, 2, 28, 2}));
    EXPECT_EQ(date_from_serial(36585), (CalendarDate{2000, 2, 29, 2}));
    EXPECT_EQ(date_from_serial(-1), std::nullopt);
    EXPECT_EQ(date_from_serial(2'958'466), std::nullopt);
    EXPECT_EQ(serial_from_date({2023, 2, 29, 0}), std::nullopt);
    EXPECT_EQ(serial_from_date({2023, 13, 1, 0}), std::nullopt);
    EXPECT_EQ(serial_from_date({1903, 12, 31, 0}, true), std::nullopt);
}

}  // namespace
}  // namespace kestrune::number_format
